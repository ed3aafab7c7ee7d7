#pragma once
// The collection grouped by year.
#include "screens/groups/GroupTableViewController.h"

class YearTableViewCell : public GroupTableViewCell {
    Q_OBJECT
public:
    using GroupTableViewCell::GroupTableViewCell;
    QLabel*& YearLabel = ValueLabel;
};

class YearGroupTableViewController : public GroupTableViewController {
    Q_OBJECT
public:
    explicit YearGroupTableViewController(QWidget* parent = nullptr)
        : GroupTableViewController(Kind::year(), parent) {}
    QList<CoinPtr>& CoinList = CardList;
    qint64& NumberOfYears = NumberOfValues;
    QString& YearName = ValueName;
    QStringList& YearList = ValueList;
    QStringList& FilteredYearList = FilteredValueList;
};
