// A collector browses the collection by group through the screens a person uses: every tab, a
// denomination's coins searched, sorted and thinned by a swipe, one coin edited, and the change
// found again after a restart.
#include "GroupsFixture.h"
#include "screens/entry/EditViewController.h"
#include "screens/list/MainListTableViewCell.h"
#include "screens/list/MainListTableViewController.h"

#include <QToolButton>

namespace {
QStringList groupRows(GroupTableViewController* g) {
    QStringList out;
    for (int row = 0; row < g->tableView->numberOfRows(0); ++row) {
        auto* cell = static_cast<GroupTableViewCell*>(g->cellForRow(g->tableView, {0, row}));
        out << cell->ValueLabel->text() + " " + cell->CountLabel->text();
    }
    return out;
}
QStringList coinRows(BreakdownTableViewController* b) {
    QStringList out;
    for (int row = 0; row < b->tableView->numberOfRows(0); ++row) {
        auto* cell = static_cast<BreakdownTableViewCell*>(b->cellForRow(b->tableView, {0, row}));
        out << cell->DenominationLabel->text() + " " + cell->Label2->text().left(4);
    }
    return out;
}
} // namespace

TEST_F(GroupsTest, WalkthroughFromTheMenuThroughEveryTabToAnEditThatSurvivesARestart) {
    const QList<std::tuple<const char*, int, const char*, float>> coins = {
        {"Dime", 1964, "USA", 0.5f},
        {"Dime", 1999, "USA", 1.25f},
        {"Dime", 2001, "Canada", 1.0f},
        {"Quarter", 1964, "USA", 2.0f},
        {"cent", 1964, "Canada", 0.1f}};
    qint16 id = 0;
    for (const auto& [denomination, year, country, value] : coins)
        addCoin(denomination, year, 1, value, country)->setId(++id);
    ASSERT_FALSE(ctx().save());

    // The edit screen saves to the coin the main list opened last, whichever list opens it:
    // the collector looks at the 2001 dime in the list first.
    menu->HandleButtonClick();
    menu->ListCoinsButton->click();
    auto* list = topAs<MainListTableViewController>();
    ASSERT_NE(list, nullptr);
    list->tableView->selectRow({0, 2});
    ASSERT_EQ(SelectedCoinID, 3);
    window->navigationController()->popToRootViewController(false);

    TabBarController* tabs = openGroups();
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(groupRows(groupScreen(tabs, 1)), QStringList({"Canada 2", "USA 3"}));
    EXPECT_EQ(groupRows(groupScreen(tabs, 2)), QStringList({"1964 3", "1999 1", "2001 1"}));
    GroupTableViewController* denominations = groupScreen(tabs, 0);
    EXPECT_EQ(groupRows(denominations), QStringList({"Dime 3", "Quarter 1", "cent 1"}));

    denominations->tableView->selectRow({0, 0});
    auto* dimes = dynamic_cast<BreakdownTableViewController*>(tabs->tab(0)->topViewController());
    ASSERT_NE(dimes, nullptr);
    EXPECT_EQ(coinRows(dimes), QStringList({"Dime 1964", "Dime 1999", "Dime 2001"}));
    search(dimes->searchController, "9");
    EXPECT_EQ(coinRows(dimes), QStringList({"Dime 1964", "Dime 1999"}));
    barButton(dimes, "SortButton")->click();
    EXPECT_EQ(coinRows(dimes), QStringList({"Dime 1999", "Dime 1964"}));
    // The swipe on the row showing 1999 deletes the first coin of the whole group, 1964.
    EXPECT_TRUE(dimes->tableView->triggerSwipeAction({0, 0}, "delete"));
    dimes->searchController->clear();
    EXPECT_EQ(coinRows(dimes), QStringList({"Dime 1999", "Dime 2001"}));
    EXPECT_EQ(dimes->tableView->headerTitle(0), "# of Coins: 3"); // until the next load

    dimes->tableView->selectRow({0, 1});
    auto* edit = dynamic_cast<EditViewController*>(tabs->tab(0)->topViewController());
    ASSERT_NE(edit, nullptr);
    edit->ValueTextField->clear();
    QTest::keyClicks(edit->ValueTextField, "9.99");
    edit->SaveButton->click();
    ASSERT_EQ(tabs->tab(0)->topViewController(), dimes);
    auto* row = static_cast<BreakdownTableViewCell*>(dimes->cellForRow(dimes->tableView, {0, 1}));
    EXPECT_EQ(row->Label4->text(), "$9.99 Total Value: $9.99");
    tabs->tab(0)->backButton()->click();
    barButton(denominations, "BackButton")->click();
    ASSERT_EQ(top(), menu);

    window.reset();
    relaunch();
    const auto left = all<Coins>("year");
    ASSERT_EQ(left.size(), 4);
    EXPECT_EQ(left[0]->denomination(), "Quarter"); // the 1964 dime is gone
    EXPECT_EQ(left[3]->year(), 2001);
    EXPECT_FLOAT_EQ(left[3]->value(), 9.99f);
    menu = new MainMenuViewController;
    window = std::make_unique<Window>(menu);
    window->show();
    EXPECT_EQ(groupRows(groupScreen(openGroups(), 0)),
              QStringList({"Dime 2", "Quarter 1", "cent 1"}));
}
