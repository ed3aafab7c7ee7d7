#pragma once
// The coins of the year chosen on the group table.
#include "screens/groups/BreakdownTableViewController.h"

class YearBreakdownTableViewCell : public BreakdownTableViewCell {
    Q_OBJECT
public:
    using BreakdownTableViewCell::BreakdownTableViewCell;
};

class YearBreakdownTableViewController : public BreakdownTableViewController {
    Q_OBJECT
public:
    explicit YearBreakdownTableViewController(QWidget* parent = nullptr)
        : BreakdownTableViewController(Kind::year(), parent) {}
    void unwindToYearTableViewWithSegue(StoryboardSegue& segue) { unwindToTableView(segue); }
};
