#include "../ScreenFixture.h"
#include "platform/Console.h"
#include "platform/ImageCoding.h"
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

TEST_F(ScreenTest, MainListSortsAlternatelySearchesAndCounts) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    addCoin("Dime", 1964, 2, 0.5f);
    addCoin("Cent", 1909, 0, 12.5f, "USA");
    addCoin("Nickel", 1937, 3, 2.55f, "");
    menu->performSegue("ListCoins");
    auto* list = topAs<MainListTableViewController>();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(names(list->CoinList), QStringList({"Dime", "Cent", "Nickel"})); // store order
    EXPECT_EQ(list->CoinCount, 5);
    EXPECT_EQ(list->tableView->headerTitle(0), "# Coins = 3 of 3");

    Console::startCapture();
    list->chooseSort("By Year");
    EXPECT_EQ(Console::captured(), QStringList({"Option 2 selected"}));
    EXPECT_EQ(names(list->CoinList), QStringList({"Dime", "Nickel", "Cent"})); // descending
    list->chooseSort("By Year");
    EXPECT_EQ(names(list->CoinList), QStringList({"Cent", "Nickel", "Dime"}));
    list->chooseSort("By Name");
    EXPECT_EQ(names(list->CoinList), QStringList({"Nickel", "Dime", "Cent"}));
    EXPECT_EQ(list->searchController->placeholderText(), "Search by Denomination");

    list->chooseSort("By Value");
    QTest::keyClicks(list->searchController, "2.5");
    EXPECT_EQ(names(list->FilteredCoinList).size(), 2);
    EXPECT_EQ(list->tableView->numberOfRows(0), 2);
    EXPECT_EQ(list->tableView->headerTitle(0), "# Coins = 2 of 3");
    list->searchController->clear();
    list->chooseSort("By Country");
    QTest::keyClicks(list->searchController, "a");
    EXPECT_FALSE(names(list->FilteredCoinList).contains("Nickel")); // empty country skipped
    EXPECT_EQ(list->FilteredCoinList.size(), 2);
    list->searchController->clear();

    // The row of the zero-quantity coin shows one coin and its value as the total.
    const int row = int(list->CoinList.indexOf(
        *std::find_if(list->CoinList.begin(), list->CoinList.end(),
                      [](const CoinPtr& c) { return c->denomination() == "Cent"; })));
    auto* cell = static_cast<MainListTableViewCell*>(list->cellForRow(list->tableView, {0, row}));
    EXPECT_EQ(cell->Label3->text(), "Qty: 1");
    EXPECT_EQ(cell->Label4->text(), "Value: $12.50  Total Value: $12.50");
    EXPECT_EQ(cell->Label2->text(), "Year: 1909  Mint Mark: P");
    QLocale::setDefault(QLocale::c());

    // Swipe delete removes the coin from the store.
    EXPECT_TRUE(list->tableView->triggerSwipeAction({0, row}, "delete"));
    EXPECT_EQ(list->CoinList.size(), 2);
    EXPECT_EQ(all<Coins>().size(), 2);
}

TEST_F(ScreenTest, RowTapFillsTheCurrentCoinAndOpensTheEditScreen) {
    auto c = addCoin("Lincoln Cent", 1909, 2, 3.5f);
    c->setId(42);
    c->setSerialNumber("PCGS 123");
    c->setBackImage(ImageCoding::coinPictureData(QImage(10, 10, QImage::Format_RGB32)));
    ctx().save();
    menu->performSegue("ListCoins");
    auto* list = topAs<MainListTableViewController>();
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
    const QByteArray picture = ImageCoding::coinPictureData(QImage(50, 50, QImage::Format_RGB32));
    for (int i = 0; i < 300; ++i) {
        auto c = ctx().insert<Coins>();
        c->setDenomination(QStringLiteral("Coin %1").arg(i));
        c->setYear(qint16(1900 + i % 100));
        c->setFrontImage(picture);
    }
    ASSERT_FALSE(ctx().save());
    menu->performSegue("ListCoins");
    auto* list = topAs<MainListTableViewController>();
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
    menu->performSegue("ListCoins");
    auto* list = topAs<MainListTableViewController>();
    list->DarkMode = true;
    auto* cell = static_cast<MainListTableViewCell*>(list->cellForRow(list->tableView, {0, 0}));
    for (QLabel* l : {cell->DenominationLabel, cell->Label2, cell->Label3, cell->Label4})
        EXPECT_TRUE(l->styleSheet().contains("color: black")) << l->text().toStdString();
    EXPECT_FALSE(cell->CountryLabel->styleSheet().contains("color: black"));
}
