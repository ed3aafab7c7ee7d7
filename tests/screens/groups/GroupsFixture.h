#pragma once
// The group tables in their tab bar, opened from the menu as a person does.
#include "../ScreenFixture.h"
#include "platform/kit/TabBarController.h"
#include "screens/groups/BreakdownTableViewController.h"
#include "screens/groups/GroupTableViewController.h"

#include <QPushButton>

// Whether a screen or a cell is of the named class.
template <typename T> bool isScreen(ViewController* s) {
    return dynamic_cast<T*>(s) != nullptr;
}
template <typename T> bool isCell(TableViewCell* c) {
    return dynamic_cast<T*>(c) != nullptr;
}

class GroupsTest : public DollarScreenTest {
protected:
    TabBarController* openGroups() {
        menu->HandleButtonClick();
        menu->GroupByButton->click();
        return dynamic_cast<TabBarController*>(top());
    }
    // The group screen of a tab, shown.
    GroupTableViewController* groupScreen(TabBarController* tabs, int tab) {
        tabs->setSelectedIndex(tab);
        return dynamic_cast<GroupTableViewController*>(tabs->tab(tab)->viewControllers().value(0));
    }
    // The breakdown of a group's value, opened by a tap on its row.
    BreakdownTableViewController* openBreakdown(int tab, const QString& value) {
        tabs = openGroups();
        GroupTableViewController* g = groupScreen(tabs, tab);
        g->tableView->selectRow({0, int(g->ValueList.indexOf(value))});
        return dynamic_cast<BreakdownTableViewController*>(tabs->tab(tab)->topViewController());
    }
    static QPushButton* barButton(ViewController* screen, const char* name) {
        return screen->navigationController()->findChild<QPushButton*>(QString::fromLatin1(name));
    }
    // Types into the screen's search field as a person does.
    static void search(SearchController* field, const QString& text) {
        field->clear();
        QTest::keyClicks(field, text);
    }
    TabBarController* tabs = nullptr;
};
