#pragma once
// The coins of the denomination chosen on the group table.
#include "screens/groups/BreakdownTableViewController.h"

class DenominationBreakdownTableViewCell : public BreakdownTableViewCell {
    Q_OBJECT
public:
    using BreakdownTableViewCell::BreakdownTableViewCell;
};

class DenominationBreakdownTableViewController : public BreakdownTableViewController {
    Q_OBJECT
public:
    explicit DenominationBreakdownTableViewController(QWidget* parent = nullptr)
        : BreakdownTableViewController(Kind::denomination(), parent) {}
    void unwindToDenominationTableViewWithSegue(StoryboardSegue& segue) {
        unwindToTableView(segue);
    }
};
