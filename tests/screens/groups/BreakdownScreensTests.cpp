// The three breakdown lists, checked through one table of what each should show: a wrong entry
// in the screens' table of differences fails here.
#include "GroupsFixture.h"
#include "screens/ProcessState.h"
#include "screens/entry/EditViewController.h"
#include "screens/groups/CountryBreakdownTableViewController.h"
#include "screens/groups/DenominationBreakdownTableViewController.h"
#include "screens/groups/PrintCoinsViewController.h"
#include "screens/groups/YearBreakdownTableViewController.h"

namespace {
struct BreakdownCase {
    const char* name;
    int tab;
    QString groupValue; // the row tapped on the group screen
    const char* title;
    const char* placeholder;
    QStringList rows; // "denomination year", in order
    const char* header;
    const char* footer;
    QStringList firstRowLabels; // Label2, Label3, Label4
    QString typed;
    QStringList found;
    const char* foundFooter;
    QStringList sortedWhileSearching; // after one tap of the sort button
    const char* origin;
    bool (*isScreen)(ViewController*);
    bool (*isCell)(TableViewCell*);
};

const BreakdownCase kCases[] = {
    {"Denomination", 0, "Dime", "Denomination", "Sort and Search By Year",
     QStringList{"Dime 1964", "Dime 1999", "Dime 2001"}, "# of Coins: 7",
     "Valuation for displayed coins: $7.00",
     QStringList{"1964  Mint Mark: P", "1  USA", "$0.50 Total Value: $0.50"}, "9",
     QStringList{"Dime 1964", "Dime 1999"}, "Valuation for displayed coins: $3.00",
     QStringList{"Dime 1999", "Dime 1964"}, "DenominationBreakdown",
     isScreen<DenominationBreakdownTableViewController>,
     isCell<DenominationBreakdownTableViewCell>},
    {"Country", 1, "USA", "Country", "Sort and Search By Denomination",
     QStringList{"Dime 1964", "Dime 1999", "Nickel 1950", "Quarter 1964"}, "# of Coins: 7",
     "Valuation for displayed coins: $9.05",
     QStringList{"1964  Mint Mark: P", "1  Country: USA", "$0.50 Total Value: $0.50"}, "I",
     QStringList{"Dime 1964", "Dime 1999", "Nickel 1950"}, "Valuation for displayed coins: $3.05",
     QStringList{"Nickel 1950", "Dime 1964", "Dime 1999"}, "CountryBreakdown",
     isScreen<CountryBreakdownTableViewController>, isCell<CountryBreakdownTableViewCell>},
    {"Year", 2, "1964", "Year", "Search By Denomination",
     QStringList{"Dime 1964", "Quarter 1964", "cent 1964"}, "# of Coins: 5",
     "Valuation for displayed coins: $6.60",
     QStringList{"Year: 1964  Mint Mark: P", "Qty: 1", "Value: $0.50 Total Value: $0.50"}, "T",
     QStringList{"Quarter 1964", "cent 1964"}, "Valuation for displayed coins: $6.10",
     QStringList{"Quarter 1964", "cent 1964"}, // one year: the order stays
     "YearBreakdown", isScreen<YearBreakdownTableViewController>,
     isCell<YearBreakdownTableViewCell>},
};

QString rowName(const CoinPtr& c) {
    return c->denomination() + " " + QString::number(c->year());
}
QStringList rowNames(const QList<CoinPtr>& coins) {
    QStringList out;
    for (const auto& c : coins)
        out << rowName(c);
    return out;
}

class BreakdownScreenTest : public GroupsTest, public ::testing::WithParamInterface<BreakdownCase> {
protected:
    void SetUp() override {
        GroupsTest::SetUp();
        numbered(addCoin("Dime", 1999, 2, 1.25f, "USA", "D"));
        numbered(addCoin("Dime", 1964, 1, 0.5f, "USA", "P"));
        numbered(addCoin("Quarter", 1964, 3, 2.0f, "USA", "S"));
        numbered(addCoin("cent", 1964, 1, 0.1f, "Canada", "P"));
        numbered(addCoin("Dime", 2001, 4, 1.0f, "Canada", "P"));
        numbered(addCoin("Nickel", 1950, 1, 0.05f, "USA", "P"));
    }
    // Every coin gets an id of its own, as the menu's repair gives them.
    void numbered(const CoinPtr& coin) {
        coin->setId(++lastId_);
        ASSERT_TRUE(ctx().save().ok());
    }
    // Opens the breakdown of the case's value by a tap on its group row.
    BreakdownTableViewController* open() {
        return openBreakdown(GetParam().tab, GetParam().groupValue);
    }
    QStringList shown(BreakdownTableViewController* b) {
        QStringList out;
        for (int row = 0; row < b->tableView->numberOfRows(0); ++row) {
            auto* cell =
                static_cast<BreakdownTableViewCell*>(b->cellForRow(b->tableView, {0, row}));
            out << cell->DenominationLabel->text() + " " +
                       cell->Label2->text().section("  ", 0, 0).remove("Year: ");
        }
        return out;
    }

private:
    qint16 lastId_ = 0;
};
} // namespace

TEST_P(BreakdownScreenTest, ShowsTotalsRowsSearchAndSort) {
    const BreakdownCase& k = GetParam();
    BreakdownTableViewController* b = open();
    ASSERT_TRUE(k.isScreen(b));
    EXPECT_EQ(b->title(), k.title);
    EXPECT_EQ(b->searchController->placeholderText(), k.placeholder);
    EXPECT_EQ(shown(b), k.rows);
    EXPECT_TRUE(k.isCell(b->cellForRow(b->tableView, {0, 0})));
    EXPECT_EQ(b->tableView->headerTitle(0), k.header);
    EXPECT_EQ(b->tableView->footerTitle(0), k.footer);
    EXPECT_EQ(b->tableView->sectionFooterLabel()->text(), k.footer);
    EXPECT_TRUE(b->tableView->sectionFooterLabel()->isVisibleTo(b));
    auto* first = static_cast<BreakdownTableViewCell*>(b->cellForRow(b->tableView, {0, 0}));
    EXPECT_EQ(QStringList({first->Label2->text(), first->Label3->text(), first->Label4->text()}),
              k.firstRowLabels);
    EXPECT_TRUE(barButton(b, "ShareButton")->isEnabled());

    search(b->searchController, k.typed);
    EXPECT_EQ(shown(b), k.found);
    EXPECT_EQ(b->tableView->footerTitle(0), k.foundFooter);
    EXPECT_EQ(b->tableView->headerTitle(0), k.header);
    barButton(b, "SortButton")->click();
    EXPECT_EQ(shown(b), k.sortedWhileSearching);
    EXPECT_EQ(rowNames(b->CoinList), k.rows); // the whole group keeps its order

    b->searchController->clear();
    // The group was handed over when the screen opened: the values the group screen also
    // stores for others are not read again.
    ASSERT_TRUE(b->group().has_value());
    EXPECT_EQ(b->group()->value, k.groupValue);
    SelectedDenomination = SelectedCountry = "elsewhere";
    SelectedYear = 1066;
    barButton(b, "SortButton")->click(); // ascending again, by a new fetch
    EXPECT_EQ(shown(b), k.rows);
    barButton(b, "SortButton")->click();
    EXPECT_EQ(shown(b), QStringList(k.rows.rbegin(), k.rows.rend()));

    // The print button opens the print screen on this group, whatever the search narrowed.
    search(b->searchController, k.typed);
    barButton(b, "PrintButton")->click();
    auto* print = dynamic_cast<PrintCoinsViewController*>(tabs->tab(k.tab)->topViewController());
    ASSERT_NE(print, nullptr);
    EXPECT_EQ(CalledFromList, k.origin);
    ASSERT_TRUE(print->group().has_value());
    EXPECT_EQ(print->group()->value, k.groupValue);
    EXPECT_EQ(print->group()->ascending, SortAscending);
    QStringList printed = rowNames(print->CoinList);
    printed.sort();
    QStringList group = k.rows;
    group.sort();
    EXPECT_EQ(printed, group);
}

// A quantity below zero (an exchange file may hold one) takes coins away from the count.
TEST_P(BreakdownScreenTest, ANegativeQuantityIsSubtracted) {
    const BreakdownCase& k = GetParam();
    numbered(addCoin("Dime", 1964, -9, 1.0f, "USA", "P")); // in every case's group
    BreakdownTableViewController* b = open();
    const int before = QString::fromLatin1(k.header).section(": ", 1).toInt();
    EXPECT_EQ(b->tableView->headerTitle(0), "# of Coins: " + QString::number(before - 9));
    EXPECT_EQ(b->CoinCount, before - 9);
}

TEST_P(BreakdownScreenTest, SwipeWhileSearchingDeletesTheCoinAtThatPlaceOfTheWholeGroup) {
    const BreakdownCase& k = GetParam();
    BreakdownTableViewController* b = open();
    search(b->searchController, k.typed);
    barButton(b, "SortButton")->click();
    const CoinPtr shownFirst = b->FilteredCoinList.first();
    const CoinPtr groupFirst = b->CoinList.first();
    EXPECT_TRUE(b->tableView->triggerSwipeAction({0, 0}, "delete"));
    EXPECT_FALSE(ctx().hasChanges());
    // The coin at row 0 of the whole group went, whichever coin row 0 showed.
    const QStringList left = rowNames(all<Coins>());
    EXPECT_FALSE(left.contains(rowName(groupFirst)));
    EXPECT_EQ(left.size(), 5);
    EXPECT_EQ(b->CoinList.size(), k.rows.size() - 1);
    EXPECT_FALSE(b->FilteredCoinList.contains(shownFirst));
    EXPECT_FALSE(b->FilteredCoinList.contains(groupFirst));
    // Totals stay as the load made them.
    EXPECT_EQ(b->tableView->headerTitle(0), k.header);
    b->searchController->clear();
    EXPECT_EQ(b->tableView->footerTitle(0), k.footer);
}

TEST_P(BreakdownScreenTest, ATapFillsTheCurrentCoinOpensItAndComesBackWithoutAFetch) {
    const BreakdownCase& k = GetParam();
    BreakdownTableViewController* b = open();
    b->tableView->selectRow({0, 0});
    auto* edit = dynamic_cast<EditViewController*>(tabs->tab(k.tab)->topViewController());
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->detailItem, b->CoinList.first());
    EXPECT_EQ(CalledFromList, k.origin);
    EXPECT_EQ(SelectedDenomination, "Dime");
    EXPECT_EQ(SelectedYear, 1964);
    EXPECT_EQ(SelectedCountry, "USA");
    EXPECT_EQ(SelectedMintMark, "P");
    EXPECT_EQ(SelectedCoinID, 0); // the main list's alone
    EXPECT_EQ(edit->YearTextField->text(), "1964");

    numbered(addCoin("Dime", 1964, 1, 1, "USA", "P")); // in every group shown; no fetch sees it
    // The save writes the coin the main list noted last, here the one opened.
    SelectedCoinID = b->CoinList.first()->id();
    edit->ValueTextField->setText("9.99");
    edit->SaveButton->click();
    ASSERT_EQ(tabs->tab(k.tab)->topViewController(), b);
    EXPECT_EQ(rowNames(b->CoinList), k.rows);
    EXPECT_EQ(b->tableView->numberOfRows(0), k.rows.size());
    EXPECT_FALSE(ctx().hasChanges());
    auto* row = static_cast<BreakdownTableViewCell*>(b->cellForRow(b->tableView, {0, 0}));
    EXPECT_TRUE(row->Label4->text().endsWith("$9.99 Total Value: $9.99"))
        << row->Label4->text().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Breakdowns, BreakdownScreenTest, ::testing::ValuesIn(kCases),
                         [](const auto& info) { return std::string(info.param.name); });
