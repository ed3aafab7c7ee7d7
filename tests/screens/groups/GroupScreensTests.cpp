// The three group tables, checked through one table of what each should show: a wrong entry
// in the screens' table of differences fails here.
#include "GroupsFixture.h"
#include "screens/ProcessState.h"
#include "screens/groups/CountryBreakdownTableViewController.h"
#include "screens/groups/CountryGroupTableViewController.h"
#include "screens/groups/DenominationBreakdownTableViewController.h"
#include "screens/groups/DenominationGroupTableViewController.h"
#include "screens/groups/YearBreakdownTableViewController.h"
#include "screens/groups/YearGroupTableViewController.h"

#include <QLabel>

namespace {
struct GroupCase {
    const char* name;
    int tab;
    const char* placeholder;
    const char* plural;
    const char* singular;
    void (*set)(Coins&, const QString&);
    QString (*read)(const Coins&);
    QStringList values;    // stored in this order; the first three times with quantity 4
    QStringList sorted;    // the rows, ascending
    QString typed;         // a search
    QStringList found;     // its rows, in order
    QString (*selected)(); // the selection variable, as text
    bool (*isScreen)(ViewController*);
    bool (*isCell)(TableViewCell*);
    bool (*isBreakdown)(ViewController*);
    QLabel* (*valueLabel)(TableViewCell*);
};

const GroupCase kCases[] = {
    {"Denomination", 0, "Sort and Search By Denomination", " Denominations", " Denomination",
     [](Coins& c, const QString& v) { c.setDenomination(v); },
     [](const Coins& c) { return c.denomination(); }, QStringList{"", "Dime", "dime", "Cent"},
     QStringList{"", "Cent", "Dime", "dime"}, "IM", QStringList{"Dime", "dime"},
     [] { return SelectedDenomination; }, isScreen<DenominationGroupTableViewController>,
     isCell<DenominationgroupTableViewCell>, isScreen<DenominationBreakdownTableViewController>,
     [](TableViewCell* c) {
         return static_cast<DenominationgroupTableViewCell*>(c)->DenominationLabel;
     }},
    {"Country", 1, "Search By Denomination", " Countries", " Country",
     [](Coins& c, const QString& v) { c.setCountry(v); },
     [](const Coins& c) { return c.country(); }, QStringList{"", "Peru", "peru", "Chile"},
     QStringList{"", "Chile", "Peru", "peru"}, "ER", QStringList{"Peru", "peru"},
     [] { return SelectedCountry; }, isScreen<CountryGroupTableViewController>,
     isCell<CountryGroupTableViewCell>, isScreen<CountryBreakdownTableViewController>,
     [](TableViewCell* c) { return static_cast<CountryGroupTableViewCell*>(c)->CountryLabel; }},
    {"Year", 2, "Sort and Search By Year", " Years", " Year",
     [](Coins& c, const QString& v) { c.setYear(v.toShort()); },
     [](const Coins& c) { return QString::number(c.year()); },
     QStringList{"1964", "999", "1000", "2019"},
     QStringList{"1000", "1964", "2019", "999"}, // texts: 999 after 1000
     "19", QStringList{"1964", "2019"}, [] { return QString::number(SelectedYear); },
     isScreen<YearGroupTableViewController>, isCell<YearTableViewCell>,
     isScreen<YearBreakdownTableViewController>,
     [](TableViewCell* c) { return static_cast<YearTableViewCell*>(c)->YearLabel; }},
};

class GroupScreenTest : public GroupsTest, public ::testing::WithParamInterface<GroupCase> {
protected:
    void addValues() {
        const GroupCase& k = GetParam();
        for (int i = 0; i < k.values.size(); ++i)
            for (int n = 0; n < (i == 0 ? 3 : 1); ++n) {
                auto c = ctx().insert<Coins>();
                c->setDenomination("Dime");
                c->setCountry("Peru");
                c->setYear(1964);
                c->setQuantity(i == 0 ? 4 : 1);
                k.set(*c, k.values[i]);
            }
        // Without a denomination or a country a coin forms no group (every coin has a year).
        if (k.tab != 2)
            ctx().insert<Coins>()->setQuantity(1);
        ASSERT_TRUE(ctx().save().ok());
    }
    QStringList shownValues(GroupTableViewController* g) {
        QStringList out;
        for (int row = 0; row < g->tableView->numberOfRows(0); ++row)
            out << GetParam().valueLabel(g->cellForRow(g->tableView, {0, row}))->text();
        return out;
    }
    QString countShown(GroupTableViewController* g, const QString& value) {
        const int row = int(g->ValueList.indexOf(value));
        auto* cell = static_cast<GroupTableViewCell*>(g->cellForRow(g->tableView, {0, row}));
        return cell->CountLabel->text();
    }
};
} // namespace

TEST_P(GroupScreenTest, EmptyStoreShowsNoRowsAndTheSingularHeader) {
    const GroupCase& k = GetParam();
    TabBarController* tabs = openGroups();
    ASSERT_NE(tabs, nullptr);
    GroupTableViewController* g = groupScreen(tabs, k.tab);
    ASSERT_TRUE(k.isScreen(g));
    EXPECT_EQ(tabs->tab(k.tab)->viewControllers().size(), 1);
    EXPECT_EQ(g->tableView->numberOfRows(0), 0);
    EXPECT_EQ(g->tableView->headerTitle(0), QString("0") + k.singular);
    EXPECT_EQ(g->searchController->placeholderText(), k.placeholder);
    EXPECT_EQ(g->tableView->sectionHeaderLabel()->alignment(), Qt::AlignCenter);
}

TEST_P(GroupScreenTest, GroupsCountsSearchesSortsAndOpensTheBreakdown) {
    const GroupCase& k = GetParam();
    addValues();
    TabBarController* tabs = openGroups();
    GroupTableViewController* g = groupScreen(tabs, k.tab);
    ASSERT_NE(g, nullptr);
    EXPECT_EQ(g->ValueList, k.sorted);
    EXPECT_EQ(shownValues(g), k.sorted);
    EXPECT_TRUE(k.isCell(g->cellForRow(g->tableView, {0, 0})));
    EXPECT_EQ(g->tableView->headerTitle(0), QString::number(k.sorted.size()) + k.plural);
    // Records are counted, not quantities.
    EXPECT_EQ(countShown(g, k.values[0]), "3");
    EXPECT_EQ(countShown(g, k.values[1]), "1");

    // Searching ignores case and never matches the empty value; the header counts every value.
    search(g->searchController, k.typed);
    EXPECT_EQ(g->FilteredValueList, k.found);
    EXPECT_EQ(g->tableView->headerTitle(0), QString::number(k.sorted.size()) + k.plural);

    // Sorting while searching reorders the rows shown only.
    barButton(g, "SortButton")->click();
    EXPECT_FALSE(SortAscending);
    QStringList reversed(k.found.rbegin(), k.found.rend());
    EXPECT_EQ(shownValues(g), reversed);
    g->searchController->clear();
    EXPECT_EQ(shownValues(g), k.sorted); // still in the old order
    barButton(g, "SortButton")->click();
    EXPECT_TRUE(SortAscending);
    EXPECT_EQ(shownValues(g), k.sorted);
    barButton(g, "SortButton")->click();
    EXPECT_EQ(shownValues(g), QStringList(k.sorted.rbegin(), k.sorted.rend()));

    // The counts follow the store; a value whose coins are gone stays listed.
    for (const CoinPtr& c : all<Coins>())
        if (k.read(*c) == k.values[1])
            ctx().deleteObject(c);
    ASSERT_TRUE(ctx().save().ok());
    barButton(g, "SortButton")->click();
    EXPECT_EQ(g->ValueList, k.sorted);
    EXPECT_EQ(countShown(g, k.values[1]), "0");

    // A tap stores the value and opens its breakdown in the same tab.
    g->tableView->selectRow({0, int(g->ValueList.indexOf(k.values[0]))});
    EXPECT_EQ(k.selected(), k.values[0]);
    ViewController* pushed = tabs->tab(k.tab)->topViewController();
    EXPECT_TRUE(k.isBreakdown(pushed));
    EXPECT_EQ(static_cast<BreakdownTableViewController*>(pushed)->CoinList.size(), 3);
}

INSTANTIATE_TEST_SUITE_P(Groups, GroupScreenTest, ::testing::ValuesIn(kCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(GroupsTest, OneValueReadsPluralAndTabsKeepTheirStacks) {
    addCoin("Dime", 1964);
    TabBarController* tabs = openGroups();
    GroupTableViewController* denominations = groupScreen(tabs, 0);
    EXPECT_EQ(denominations->tableView->headerTitle(0), "1 Denominations");
    // Each tab keeps its stack and its search.
    search(denominations->searchController, "di");
    denominations->tableView->selectRow({0, 0});
    EXPECT_EQ(groupScreen(tabs, 2)->tableView->headerTitle(0), "1 Years");
    tabs->setSelectedIndex(0);
    EXPECT_EQ(tabs->tab(0)->viewControllers().size(), 2);
    EXPECT_EQ(denominations->searchController->text(), "di");
    // The group screens' back button returns to the menu.
    tabs->tab(0)->popViewController(false);
    barButton(denominations, "BackButton")->click();
    EXPECT_EQ(top(), menu);
}

TEST_F(GroupsTest, ACountAbove32767IsFatal) {
    EXPECT_DEATH(
        {
            for (int i = 0; i < 32768; ++i) // unsaved: counted all the same
                ctx().insert<Coins>()->setDenomination("Cent");
            GroupTableViewController* g = groupScreen(openGroups(), 0);
            g->cellForRow(g->tableView, {0, 0});
        },
        "Fatal error");
}
