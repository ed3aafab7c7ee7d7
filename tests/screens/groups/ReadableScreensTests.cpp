// The group, breakdown, statistics, valuation, reference, exchange, rate & share and overview
// screens as a screen reader and a translator meet them.
#include "../Walks.h"
#include "GroupsFixture.h"
#include "screens/statistics/StatisticsViewController.h"

#include <QAccessibleTableInterface>
#include <QRegularExpression>
#include <QTableView>
#include <functional>

namespace {
// Figures, amounts and dates are data, whatever the language.
bool isFigure(const QString& text) {
    static const QRegularExpression figure(QStringLiteral("^[-+$0-9.,:/ ]+$"));
    return figure.match(text).hasMatch();
}

// The accessible name of a list's row, as a reader asks it.
QString rowName(QAbstractItemView* view, int row) {
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(view);
    QAccessibleTableInterface* table = list ? list->tableInterface() : nullptr;
    if (!table)
        return {};
    QAccessibleInterface* cell = table->cellAt(row, 0);
    return cell ? cell->text(QAccessible::Name) : QString();
}
} // namespace

class ReadableScreensTest : public GroupsTest {
protected:
    void TearDown() override {
        QCoreApplication::removeTranslator(&marking);
        GroupsTest::TearDown();
    }
    // Opens a screen with every text marked by the translator and returns what a reader and a
    // translator would miss on it: its unnamed controls, its untranslated texts, and its bar
    // buttons' untranslated titles.
    std::string missed(const std::function<ViewController*()>& open, const QStringList& data = {}) {
        QCoreApplication::installTranslator(&marking);
        ViewController* screen = open();
        QApplication::processEvents();
        QStringList out;
        if (!screen)
            return "screen not opened";
        const QString name = QString::fromLatin1(screen->metaObject()->className());
        for (const QString& control : Walks::unnamedControls(screen))
            out << name + QStringLiteral(" unnamed: ") + control;
        const auto isData = [&](const QString& t) { return isFigure(t) || data.contains(t); };
        for (const QString& text : Walks::unmarkedTexts(screen, isData))
            out << name + QStringLiteral(" untranslated: ") + text;
        NavigationItem& bar = screen->navigationItem();
        for (const auto* items : {&bar.leftItems, &bar.rightItems})
            for (const BarButtonItem& item : *items)
                if (!item.title.contains(QChar(Walks::MarkingTranslator::kMark)))
                    out << name + QStringLiteral(" untranslated bar button: ") + item.title;
        window->navigationController()->popToRootViewController(false);
        QApplication::processEvents();
        QCoreApplication::removeTranslator(&marking);
        return out.join(QLatin1Char('\n')).toStdString();
    }
    ViewController* openFromMenu(const char* segue, const char* then = nullptr) {
        menu->performSegue(QString::fromLatin1(segue));
        if (then)
            top()->performSegue(QString::fromLatin1(then));
        return top();
    }
    Walks::MarkingTranslator marking;
};

TEST_F(ReadableScreensTest, EveryControlIsNamedAndEveryTextTranslated) {
    addCoin("Cent", 1999, 3, 2.5f, "Canada", "P");
    addCoin("Dime", 1967, 1, 4.0f, "Mexico", "Mo");
    const ObjectPtr grade = ctx().insertNewObject(QStringLiteral("GradeNumbers"));
    grade->setValue(QStringLiteral("grade"), QStringLiteral("MS-63"));
    ASSERT_TRUE(ctx().save().ok());
    // The collection's own values, which stay as they are in every language.
    const QStringList data = {"Cent", "Dime", "Canada", "Mexico", "1999", "1967", "MS-63"};

    for (int tab = 0; tab < 3; ++tab)
        EXPECT_EQ(missed([&] { return groupScreen(openGroups(), tab); }, data), "")
            << "group tab " << tab;
    EXPECT_EQ(missed([&] { return openBreakdown(1, "Canada"); }, data), "");
    EXPECT_EQ(missed([&] { return openFromMenu("Statistics"); }, data), "");
    EXPECT_EQ(missed([&] { return openFromMenu("CoinValuation"); }, data), "");
    EXPECT_EQ(missed([&] { return openFromMenu("ReferenceLists"); }, data), "");
    for (const char* list : {"GradeNumberList", "StrikeCharacterList", "EdgeList"})
        EXPECT_EQ(missed([&] { return openFromMenu("ReferenceLists", list); }, data), "") << list;
    EXPECT_EQ(missed([&] { return openFromMenu("ReferenceLists", "AddGradeNumber"); }, data), "");
    EXPECT_EQ(missed([&] { return openFromMenu("ImportExport"); }, data), "");
    EXPECT_EQ(missed([&] { return openFromMenu("ImportExport", "ExportCoins"); }, data), "");
    EXPECT_EQ(missed([&] { return openFromMenu("ImportExport", "ImportCoins"); }, data), "");
    EXPECT_EQ(missed([&] { return openFromMenu("RateShare"); }, data), "");
    EXPECT_EQ(missed([&] { return openFromMenu("Overview"); }, data), "");
}

TEST_F(ReadableScreensTest, RowsAreReadAsTheyAreSeen) {
    addCoin("Cent", 1999, 3, 2.5f, "Canada", "P");
    addCoin("Dime", 1967, 1, 4.0f, "Canada", "D");
    addCoin("Peso", 1950, 1, 9.0f, "Mexico", "Mo");

    // A group row: its value and its number of coin records, one or many.
    GroupTableViewController* countries = groupScreen(openGroups(), 1);
    QAbstractItemView* rows = countries->tableView->listView();
    EXPECT_EQ(rows->accessibleName(), "Groups by country");
    const int canada = int(countries->ValueList.indexOf("Canada"));
    const int mexico = int(countries->ValueList.indexOf("Mexico"));
    EXPECT_EQ(rowName(rows, canada), "Canada, 2 coins");
    EXPECT_EQ(rowName(rows, mexico), "Mexico, 1 coin");
    window->navigationController()->popToRootViewController(false);

    // A breakdown row: its lines in the order drawn, the money as shown.
    BreakdownTableViewController* canadian = openBreakdown(1, "Canada");
    ASSERT_TRUE(canadian);
    EXPECT_EQ(rowName(canadian->tableView->listView(), 0),
              "Cent, 1999  Mint Mark: P, 3  Country: Canada, $2.50 Total Value: $7.50");
}

TEST_F(ReadableScreensTest, StatisticsHeadersAreColumnHeaders) {
    addCoin("Cent", 1999, 3, 2.5f, "Canada", "P");
    menu->performSegue("Statistics");
    auto* screen = topAs<StatisticsViewController>();
    ASSERT_TRUE(screen);
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::CountryPage);
    QTableView* table = screen->Tables[StatisticsViewController::CountryPage];
    QAccessibleInterface* a = QAccessible::queryAccessibleInterface(table);
    ASSERT_TRUE(a && a->tableInterface());
    EXPECT_EQ(a->text(QAccessible::Name), "Statistics: pieces and value by country");
    QAccessibleTableInterface* t = a->tableInterface();
    ASSERT_EQ(t->columnCount(), 3);
    QStringList headers;
    for (int c = 0; c < 3; ++c) {
        QAccessibleInterface* cell = t->cellAt(0, c);
        ASSERT_TRUE(cell && cell->tableCellInterface());
        for (QAccessibleInterface* h : cell->tableCellInterface()->columnHeaderCells())
            headers << h->text(QAccessible::Name);
    }
    EXPECT_EQ(headers, (QStringList{"Country", "Pieces", "Value"}));
    EXPECT_EQ(t->cellAt(0, 0)->text(QAccessible::Name), "Canada");
}
