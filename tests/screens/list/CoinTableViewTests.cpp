// The coin lists as a table: the view that fits the window until one is chosen, the columns,
// a click on a title as the Sort menu's choice, Enter, Delete, and the place kept on return.
#include "../ScreenFixture.h"
#include "../groups/GroupsFixture.h"
#include "platform/core/Console.h"
#include "platform/core/UserDefaults.h"
#include "screens/entry/EditViewController.h"

#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>

namespace {
QStringList names(const QList<CoinPtr>& coins) {
    QStringList out;
    for (const auto& c : coins)
        out << c->denomination();
    return out;
}
QString cellText(QTableView* grid, int row, int column) {
    return grid->model()->index(row, column).data().toString();
}
void clickTitle(QTableView* grid, int column) {
    QHeaderView* titles = grid->horizontalHeader();
    QTest::mouseClick(titles->viewport(), Qt::LeftButton, {},
                      QPoint(titles->sectionViewportPosition(column) + 10, titles->height() / 2));
}
// The menu a Delete key or a right-click opened, if any.
QMenu* openMenu() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* menu = qobject_cast<QMenu*>(w); menu && menu->isVisible())
            return menu;
    return nullptr;
}
} // namespace

class CoinTableTest : public GroupsTest {
protected:
    void SetUp() override {
        GroupsTest::SetUp();
        window->resize(1280, 800);
        QApplication::processEvents();
    }
    void press(QWidget* target, int key) {
        QTest::keyClick(target, Qt::Key(key));
        QApplication::processEvents();
    }
};

TEST_F(CoinTableTest, AWideWindowListsTheCoinsAsATableSortedByItsTitles) {
    addCoin("Dime", 1964, 2, 0.5f);
    addCoin("Cent", 1909, 0, 12.5f, "USA", "D");
    addCoin("Nickel", 1937, 3, 2.5f, "Mexico");
    auto* list = openList();
    ASSERT_NE(list, nullptr);
    QApplication::processEvents();
    TableView* table = list->tableView;
    ASSERT_EQ(table->presentation(), TableView::Presentation::Table);
    QTableView* grid = table->gridView();
    EXPECT_TRUE(grid->isVisible());
    EXPECT_FALSE(table->listView()->isVisible());
    // The table takes the window's width; the search and the count stand above it as on cards.
    EXPECT_GT(list->width(), 1200);
    EXPECT_TRUE(list->searchController->isVisible());
    EXPECT_EQ(table->sectionHeaderLabel()->text(), "# Coins = 3 of 3");
    EXPECT_EQ(grid->rowHeight(0), TableView::kGridRowHeight);
    QStringList titles;
    for (int c = 0; c < grid->model()->columnCount(); ++c)
        titles << grid->model()->headerData(c, Qt::Horizontal).toString();
    EXPECT_EQ(titles, QStringList({"", "Denomination", "Year", "Mint Mark", "Quantity", "Value",
                                   "Total Value", "Country"}));
    // The row of the cards in columns: a quantity of 0 counts as one coin, as there.
    EXPECT_EQ(cellText(grid, 1, 1), "Cent");
    EXPECT_EQ(cellText(grid, 1, 2), "1909");
    EXPECT_EQ(cellText(grid, 1, 3), "D");
    EXPECT_EQ(cellText(grid, 1, 4), "1");
    EXPECT_EQ(cellText(grid, 1, 5), "$12.50");
    EXPECT_EQ(cellText(grid, 1, 6), "$12.50");
    EXPECT_EQ(cellText(grid, 0, 6), "$1.00");
    EXPECT_EQ(cellText(grid, 1, 7), "USA");
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), -1); // store order

    // A click on a title is the Sort menu's choice, with its console line and its alternation.
    Console::startCapture();
    clickTitle(grid, CoinListView::Year);
    EXPECT_EQ(Console::captured(), QStringList({"Option 2 selected"}));
    EXPECT_EQ(names(list->CoinList), QStringList({"Dime", "Nickel", "Cent"}));
    EXPECT_EQ(list->searchController->placeholderText(), "Search by Year");
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), int(CoinListView::Year));
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    clickTitle(grid, CoinListView::Year);
    EXPECT_EQ(names(list->CoinList), QStringList({"Cent", "Nickel", "Dime"}));
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(cellText(grid, 0, 1), "Cent");
    // The menu and the titles stay in step; unsortable titles change nothing.
    list->chooseSort("By Country");
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), int(CoinListView::Country));
    clickTitle(grid, CoinListView::MintMark);
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), int(CoinListView::Country));
    Console::stopCapture();

    // The search keeps its rule: by the sort's key, counted in the header.
    QTest::keyClicks(list->searchController, "mex");
    EXPECT_EQ(grid->model()->rowCount(), 1);
    EXPECT_EQ(cellText(grid, 0, 1), "Nickel");
    EXPECT_EQ(table->sectionHeaderLabel()->text(), "# Coins = 1 of 3");
    list->searchController->clear();
    EXPECT_EQ(grid->model()->rowCount(), 3);
}

TEST_F(CoinTableTest, EnterOpensDeleteOffersAndTheReturnKeepsThePlace) {
    for (int i = 0; i < 120; ++i)
        addCoin(QStringLiteral("Coin %1").arg(i, 3, 10, QChar('0')), 1900 + i);
    auto* list = openList();
    ASSERT_NE(list, nullptr);
    QApplication::processEvents();
    QTableView* grid = list->tableView->gridView();
    ASSERT_TRUE(grid->isVisible());
    // More than 25 lines fit the window.
    EXPECT_GE(grid->viewport()->height() / grid->rowHeight(0), 25);

    list->tableView->setCurrentRow({0, 90});
    grid->setFocus();
    QApplication::processEvents();
    const int scrolled = grid->verticalScrollBar()->value();
    EXPECT_GT(scrolled, 0);
    press(grid, Qt::Key_Return);
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(SelectedDenomination, "Coin 090");
    // Back: the same line, scrolled as it was.
    window->navigationController()->goBack();
    QApplication::processEvents();
    EXPECT_EQ(top(), list);
    EXPECT_EQ(grid->currentIndex().row(), 90);
    EXPECT_EQ(grid->verticalScrollBar()->value(), scrolled);
    // Saved: the list is fetched again (the order reverses, as on cards) and keeps the coin.
    press(grid, Qt::Key_Enter);
    ASSERT_NE(topAs<EditViewController>(), nullptr);
    topAs<EditViewController>()->performUnwind("unwindToList");
    QApplication::processEvents();
    EXPECT_EQ(top(), list);
    ASSERT_TRUE(grid->currentIndex().isValid());
    EXPECT_EQ(list->CoinList.at(grid->currentIndex().row())->denomination(), "Coin 090");
    EXPECT_TRUE(grid->viewport()->rect().intersects(grid->visualRect(grid->currentIndex())));

    // Delete offers the row's delete action.
    const int row = grid->currentIndex().row();
    grid->setFocus();
    press(grid, Qt::Key_Delete);
    QMenu* menu = openMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions()[0]->text(), "delete");
    menu->actions()[0]->trigger();
    menu->close();
    EXPECT_EQ(all<Coins>().size(), 119);
    EXPECT_EQ(grid->model()->rowCount(), 119);
    EXPECT_NE(cellText(grid, row, 1), "Coin 090");
}

TEST_F(CoinTableTest, TheChosenViewIsKeptAndNarrowWindowsShowCards) {
    addCoin("Dime", 1964);
    auto* list = openList();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->tableView->presentation(), TableView::Presentation::Table);
    // Until a view is chosen, the list follows the window's width.
    window->resize(390, 800);
    QApplication::processEvents();
    EXPECT_EQ(list->tableView->presentation(), TableView::Presentation::Cards);
    EXPECT_TRUE(list->tableView->listView()->isVisible());
    window->resize(1280, 800);
    QApplication::processEvents();
    EXPECT_EQ(list->tableView->presentation(), TableView::Presentation::Table);

    // Chosen in the bar's View menu: kept for every list, at any width, and remembered.
    QMenu* view = list->viewSwitch->menu();
    ASSERT_EQ(view->actions().size(), 2);
    view->actions()[0]->trigger(); // Cards
    EXPECT_EQ(list->tableView->presentation(), TableView::Presentation::Cards);
    EXPECT_LE(list->width(), ViewController::kReadableWidth);
    EXPECT_EQ(UserDefaults::standard().objectForKey("CoinListView").toString(), "Cards");
    window->navigationController()->goBack();
    auto* again = openList();
    EXPECT_EQ(again->tableView->presentation(), TableView::Presentation::Cards);
    again->viewSwitch->menu()->actions()[1]->trigger(); // Table
    window->resize(390, 800);
    QApplication::processEvents();
    EXPECT_EQ(again->tableView->presentation(), TableView::Presentation::Table);
    EXPECT_TRUE(again->viewSwitch->menu()->actions()[1]->isChecked());
}

TEST_F(CoinTableTest, ABreakdownAsATableSortsByItsOwnColumnOnly) {
    addCoin("Dime", 1964, 2, 0.5f);
    addCoin("Dime", 1909, 1, 1.0f, "USA");
    addCoin("Dime", 1937, 3, 2.0f);
    BreakdownTableViewController* b = openBreakdown(0, "Dime");
    ASSERT_NE(b, nullptr);
    QApplication::processEvents();
    ASSERT_EQ(b->tableView->presentation(), TableView::Presentation::Table);
    QTableView* grid = b->tableView->gridView();
    ASSERT_TRUE(grid->isVisible());
    EXPECT_GT(b->width(), 1200);
    auto years = [&] {
        QStringList out;
        for (int r = 0; r < grid->model()->rowCount(); ++r)
            out << cellText(grid, r, CoinListView::Year);
        return out;
    };
    EXPECT_EQ(years(), QStringList({"1909", "1937", "1964"}));
    EXPECT_EQ(cellText(grid, 2, CoinListView::TotalValue), "$1.00");
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), int(CoinListView::Year));
    // The year title is the sort button; the others leave the group's order alone.
    clickTitle(grid, CoinListView::Year);
    EXPECT_EQ(years(), QStringList({"1964", "1937", "1909"}));
    EXPECT_EQ(b->SortAsc, false);
    clickTitle(grid, CoinListView::Value);
    EXPECT_EQ(years(), QStringList({"1964", "1937", "1909"}));
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), int(CoinListView::Year));
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(b->tableView->sectionHeaderLabel()->text(), "# of Coins: 6");
}
