#include "../ScreenFixture.h"
#include "platform/core/Console.h"
#include "screens/entry/EditViewController.h"
#include "screens/list/MainListTableViewCell.h"
#include "screens/list/MainListTableViewController.h"

#include <QFocusEvent>

namespace {
QStringList names(const QList<CoinPtr>& coins) {
    QStringList out;
    for (const auto& c : coins)
        out << c->denomination();
    return out;
}
} // namespace

TEST_F(DollarScreenTest, MainListSortsAlternatelySearchesAndCounts) {
    addCoin("Dime", 1964, 2, 0.5f);
    addCoin("Cent", 1909, 1, 12.5f, "USA");
    addCoin("Nickel", 1937, 3, 2.55f, "");
    addCoin("Maple Leaf", 1988, 0, 2100);
    auto* list = openList();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(names(list->CoinList), QStringList({"Dime", "Cent", "Nickel", "Maple Leaf"}));
    EXPECT_EQ(list->CoinCount, 6);
    EXPECT_EQ(list->tableView->headerTitle(0), "# Coins = 4 of 4");
    // Typed before any sort is chosen, a search has no key: every coin stays shown.
    QTest::keyClicks(list->searchController, "Dime");
    EXPECT_EQ(list->tableView->numberOfRows(0), 4);
    EXPECT_EQ(list->tableView->headerTitle(0), "# Coins = 4 of 4");
    list->searchController->clear();

    // Every fetch reads the direction and then flips it: after the load each sort shows the list
    // descending, then ascending when chosen again. Each key orders the coins differently.
    Console::startCapture();
    const struct {
        const char* title;
        const char* placeholder;
        QStringList ascending;
    } sorts[] = {
        {"By Name", "Search by Denomination", {"Cent", "Dime", "Maple Leaf", "Nickel"}},
        {"By Year", "Search by Year", {"Cent", "Nickel", "Dime", "Maple Leaf"}},
        {"By Quantity", "Search by Quantity", {"Maple Leaf", "Cent", "Dime", "Nickel"}},
        {"By Value", "Search by Value", {"Dime", "Nickel", "Cent", "Maple Leaf"}},
    };
    for (const auto& sort : sorts) {
        list->chooseSort(sort.title);
        EXPECT_EQ(names(list->CoinList),
                  QStringList(sort.ascending.rbegin(), sort.ascending.rend()))
            << sort.title;
        list->chooseSort(sort.title);
        EXPECT_EQ(names(list->CoinList), sort.ascending) << sort.title;
        EXPECT_EQ(list->searchController->placeholderText(), sort.placeholder);
    }
    ASSERT_EQ(Console::captured().size(), 8);
    EXPECT_EQ(Console::captured()[2], "Option 2 selected");

    // The search follows the sort key; the header counts the coins shown.
    const std::tuple<const char*, const char*, int> searches[] = {
        {"By Name", "CENT", 1}, {"By Year", "8", 1},    {"By Quantity", "3", 1},
        {"By Value", "2.5", 2}, {"By Country", "a", 3},
    };
    for (const auto& [title, text, found] : searches) {
        list->chooseSort(title);
        QTest::keyClicks(list->searchController, text);
        EXPECT_EQ(list->FilteredCoinList.size(), found) << title;
        EXPECT_EQ(list->tableView->numberOfRows(0), found) << title;
        EXPECT_EQ(list->tableView->headerTitle(0), QStringLiteral("# Coins = %1 of 4").arg(found));
        list->searchController->clear();
    }
    EXPECT_EQ(list->searchController->placeholderText(), "Search by Country");

    // The row of the zero-quantity coin shows one coin and its value as the total.
    const int row = int(names(list->CoinList).indexOf("Maple Leaf"));
    auto* cell = static_cast<MainListTableViewCell*>(list->cellForRow(list->tableView, {0, row}));
    EXPECT_EQ(cell->Label3->text(), "Qty: 1");
    EXPECT_EQ(cell->Label4->text(), "Value: $2,100.00  Total Value: $2,100.00");
    EXPECT_EQ(cell->Label2->text(), "Year: 1988  Mint Mark: P");

    // Swipe delete removes the coin from the store.
    EXPECT_TRUE(list->tableView->triggerSwipeAction({0, row}, "delete"));
    EXPECT_EQ(list->CoinList.size(), 3);
    EXPECT_EQ(list->tableView->headerTitle(0), "# Coins = 3 of 3");
    EXPECT_EQ(all<Coins>().size(), 3);
    EXPECT_FALSE(ctx().hasChanges());
}

TEST_F(ScreenTest, RowTapFillsTheCurrentCoinAndOpensTheEditScreen) {
    auto c = addCoin("Lincoln Cent", 1909, 2, 3.5f);
    c->setId(42);
    c->setSerialNumber("PCGS 123");
    c->setBackImage(coinPicture());
    ctx().save();
    auto* list = openList();
    list->tableView->selectRow({0, 0});
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->detailItem, c);
    EXPECT_EQ(CalledFromList, "MAINCOINLIST");
    EXPECT_EQ(SelectedCoinID, 42);
    EXPECT_EQ(SelectedDenomination, "Lincoln Cent");
    EXPECT_EQ(SelectedSerialNumber, "PCGS 123");
    EXPECT_EQ(ZoomImages.size(), 1); // the back picture only
    EXPECT_EQ(ShareBackImageData, c->backImage());
    EXPECT_EQ(edit->ValueTextField->text(), "3.50");

    // Saving returns to the list, which fetches again and so reverses its order.
    edit->DenominationTextField->setText(" Wheat Cent ");
    edit->SaveButtonClicked();
    EXPECT_EQ(top(), list);
    EXPECT_EQ(c->denomination(), "Wheat Cent");
    EXPECT_EQ(*list->SortAsc, true); // the return fetched again
}

TEST_F(ScreenTest, OnlyTheVisibleRowsAreDrawnAndASortKeepsTheCoinsInMemory) {
    const QByteArray picture = coinPicture();
    for (int i = 0; i < 300; ++i) {
        auto c = ctx().insert<Coins>();
        c->setDenomination(QStringLiteral("Coin %1").arg(i));
        c->setYear(qint16(1900 + i % 100));
        c->setFrontImage(picture);
    }
    ASSERT_TRUE(ctx().save().ok());
    auto* list = openList();
    QApplication::processEvents();
    window->repaint();
    const int drawn = list->tableView->cellsRequested();
    EXPECT_GT(drawn, 0);
    EXPECT_LE(drawn, 20); // a 844-point window holds about eight rows of 100

    const CoinPtr first = list->CoinList.first();
    list->chooseSort("By Year");
    EXPECT_TRUE(list->CoinList.contains(first)); // the same object, not a copy read again
    EXPECT_EQ(list->CoinList.first()->year(), 1999);

    // The search starts when its field takes focus; every keystroke then filters.
    QFocusEvent focus(QEvent::FocusIn, Qt::MouseFocusReason);
    QApplication::sendEvent(list->searchController, &focus);
    EXPECT_TRUE(list->searchController->isActive());
    QTest::keyClicks(list->searchController, "199");
    EXPECT_EQ(list->FilteredCoinList.size(), 30); // 1990 to 1999, three times each
    EXPECT_EQ(list->tableView->headerTitle(0), "# Coins = 30 of 300");
}

// In dark mode the rows stay pale: their four text lines turn black, the country line keeps
// the appearance's colour.
TEST_F(ScreenTest, DarkRowsBlackenTheFourTextLinesOnly) {
    addCoin("Dime", 1964);
    auto* list = openList();
    list->DarkMode = true;
    auto* cell = static_cast<MainListTableViewCell*>(list->cellForRow(list->tableView, {0, 0}));
    for (QLabel* l : {cell->DenominationLabel, cell->Label2, cell->Label3, cell->Label4})
        EXPECT_TRUE(l->styleSheet().contains("color: black")) << l->text().toStdString();
    EXPECT_FALSE(cell->CountryLabel->styleSheet().contains("color: black"));
}
