#pragma once
// The collection grouped by country.
#include "screens/groups/GroupTableViewController.h"

class CountryGroupTableViewCell : public GroupTableViewCell {
    Q_OBJECT
public:
    using GroupTableViewCell::GroupTableViewCell;
    QLabel*& CountryLabel = ValueLabel;
};

class CountryGroupTableViewController : public GroupTableViewController {
    Q_OBJECT
public:
    explicit CountryGroupTableViewController(QWidget* parent = nullptr)
        : GroupTableViewController(Kind::country(), parent) {}
    qint64& NumberOfCountries = NumberOfValues;
    QString& CountryName = ValueName;
    QStringList& CountryList = ValueList;
    QStringList& FilteredCountryList = FilteredValueList;
};
