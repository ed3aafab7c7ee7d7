#pragma once
// The collection grouped by denomination.
#include "screens/groups/GroupTableViewController.h"

class DenominationgroupTableViewCell : public GroupTableViewCell {
    Q_OBJECT
public:
    using GroupTableViewCell::GroupTableViewCell;
    QLabel*& DenominationLabel = ValueLabel;
};

class DenominationGroupTableViewController : public GroupTableViewController {
    Q_OBJECT
public:
    explicit DenominationGroupTableViewController(QWidget* parent = nullptr)
        : GroupTableViewController(Kind::denomination(), parent) {}
    qint64& NumberOfDenominations = NumberOfValues;
    QString& DenominationName = ValueName;
    QStringList& DenominationList = ValueList;
    QStringList& FilteredDenominationList = FilteredValueList;
};
