#pragma once
// The coins of the country chosen on the group table.
#include "screens/groups/BreakdownTableViewController.h"

class CountryBreakdownTableViewCell : public BreakdownTableViewCell {
    Q_OBJECT
public:
    using BreakdownTableViewCell::BreakdownTableViewCell;
};

class CountryBreakdownTableViewController : public BreakdownTableViewController {
    Q_OBJECT
public:
    explicit CountryBreakdownTableViewController(QWidget* parent = nullptr)
        : BreakdownTableViewController(Kind::country(), parent) {}
    void unwindToCountryTableViewWithSegue(StoryboardSegue& segue) { unwindToTableView(segue); }
};
