#include "../ScreenFixture.h"
#include "exchange/ExchangeReader.h"
#include "model/ValueHistory.h"
#include "platform/kit/Appearance.h"
#include "screens/entry/EditViewController.h"
#include "screens/statistics/CoinHistoryViewController.h"
#include "screens/statistics/StatisticsCharts.h"
#include "screens/statistics/StatisticsViewController.h"
#include "screens/valuation/ValuationViewController.h"

#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QHorizontalBarSeries>
#include <QLabel>
#include <QLineSeries>
#include <QTabWidget>
#include <QTableWidget>
#include <QValueAxis>

namespace {
struct Sums {
    qint64 pieces = 0;
    double value = 0;
};
// Pieces and value per country worked out from an exchange file itself: quantity in field 11,
// value in field 16 (a 32-bit float, as the store keeps it), the country in field 0.
QMap<QString, Sums> byCountryFrom(const QByteArray& file) {
    QMap<QString, Sums> out;
    for (const QByteArray& line : file.split('\n')) {
        const QList<QByteArray> f = line.split('^');
        if (f.size() < 17)
            continue;
        Sums& s = out[QString::fromUtf8(f[0])];
        s.pieces += f[11].toInt();
        s.value += double(f[11].toInt()) * double(f[16].toFloat());
    }
    return out;
}

// A cell's text as the table shows it.
QString cell(QTableView* table, int row, int column) {
    return table->model()->index(row, column).data().toString();
}
int rowCount(QTableView* table) {
    return table->model()->rowCount();
}

// The records of a CSV file: a quoted field may hold separators, doubled quotes and line breaks.
QList<QStringList> readCsv(const QString& text) {
    QList<QStringList> records;
    QStringList record;
    QString field;
    bool quoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (quoted) {
            if (c == u'"' && i + 1 < text.size() && text[i + 1] == u'"')
                field += text[++i];
            else if (c == u'"')
                quoted = false;
            else
                field += c;
        } else if (c == u'"') {
            quoted = true;
        } else if (c == u',') {
            record << std::exchange(field, {});
        } else if (c == u'\n') {
            record << std::exchange(field, {});
            records << std::exchange(record, {});
        } else {
            field += c;
        }
    }
    return records;
}
} // namespace

class StatisticsTest : public DollarScreenTest {
protected:
    void SetUp() override {
        DollarScreenTest::SetUp();
        ValueHistory::setClock([this] { return now; });
    }
    void TearDown() override {
        ValueHistory::setClock({});
        DollarScreenTest::TearDown();
    }
    StatisticsViewController* open() {
        menu->HandleButtonClick();
        menu->StatisticsButton->click();
        return topAs<StatisticsViewController>();
    }
    QDateTime now = QDateTime(QDate(2026, 1, 10), QTime(9, 0));
};

// The countries' numbers, in the table and in the bars, are the sums of the file imported;
// the value line ends at the collection's total.
TEST_F(StatisticsTest, ChartsAndTablesShowTheCollectionsOwnSums) {
    const QByteArray sample = readFile(PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv");
    Exchange::mergeExchangeText(ctx(), sample);
    ASSERT_TRUE(ctx().save().ok());
    const QMap<QString, Sums> expected = byCountryFrom(sample);
    ASSERT_GT(expected.size(), 11); // enough countries for an "Other"

    auto* screen = open();
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(screen->title(), "Statistics");
    Sums whole;
    for (const Sums& s : expected) {
        whole.pieces += s.pieces;
        whole.value += s.value;
    }
    EXPECT_EQ(screen->SummaryLabel->text(), QStringLiteral("%1 pieces, worth %2")
                                                .arg(whole.pieces)
                                                .arg(QLocale().toCurrencyString(whole.value)));

    screen->ChartTabs->setCurrentIndex(StatisticsViewController::CountryPage);
    QTableView* table = screen->Tables[StatisticsViewController::CountryPage];
    ASSERT_EQ(rowCount(table), 11);
    EXPECT_EQ(cell(table, 10, 0), "Other");
    Sums listed, other = whole;
    double previous = 1e300;
    for (int r = 0; r < 10; ++r) {
        const QString country = cell(table, r, 0);
        ASSERT_TRUE(expected.contains(country)) << country.toStdString();
        const Sums& s = expected[country];
        EXPECT_EQ(cell(table, r, 1), QString::number(s.pieces)) << country.toStdString();
        EXPECT_EQ(cell(table, r, 2), QLocale().toCurrencyString(s.value));
        EXPECT_LE(s.value, previous); // largest first
        previous = s.value;
        other.pieces -= s.pieces;
        other.value -= s.value;
    }
    EXPECT_EQ(cell(table, 10, 1), QString::number(other.pieces));
    EXPECT_EQ(cell(table, 10, 2), QLocale().toCurrencyString(other.value));
    // The bars hold the same values, largest at the top (the last bar of the set).
    const auto bars = screen->Charts[StatisticsViewController::CountryPage]->chart()->series();
    ASSERT_EQ(bars.size(), 1);
    const QBarSet* set = static_cast<QHorizontalBarSeries*>(bars[0])->barSets().value(0);
    ASSERT_EQ(set->count(), 11);
    EXPECT_NEAR(set->at(10), expected[cell(table, 0, 0)].value, 1e-6);
    EXPECT_NEAR(set->at(0), other.value, 1e-6);

    // One day of history: the line's last point is today's total.
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::ValuePage);
    const auto line = static_cast<QLineSeries*>(
        screen->Charts[StatisticsViewController::ValuePage]->chart()->series().value(0));
    ASSERT_NE(line, nullptr);
    ASSERT_GE(line->count(), 1);
    EXPECT_NEAR(line->at(line->count() - 1).y(), whole.value, 1e-6);
    EXPECT_EQ(screen->csv(StatisticsViewController::ValuePage),
              QStringLiteral("date,pieces,total_value\n2026-01-10,%1,%2\n")
                  .arg(whole.pieces)
                  .arg(QString::number(whole.value, 'f', 2))
                  .toUtf8());

    // Decades: every piece is in one.
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::DecadePage);
    qint64 decadePieces = 0;
    for (const auto& d : screen->Decades)
        decadePieces += d.pieces;
    EXPECT_EQ(decadePieces, whole.pieces);
}

// A revaluation on the valuation screen and an import that updates a coin are each a change
// the statistics list and the coin's history shows; a row opens the coin read-only, and a coin
// deleted since is said to be so.
TEST_F(StatisticsTest, RevaluationsAndImportsAreChangesThatOpenTheirCoin) {
    addCoin("Lincoln Cent", 1909, 2, 1.0f, "USA", "S");
    addCoin("Mercury Dime", 1944, 1, 2.0f, "USA", "D");
    now = now.addDays(40);
    menu->performSegue("CoinValuation");
    auto* valuation = topAs<ValuationViewController>();
    valuation->ValueTableView->selectRow({0, 0});
    QTest::keyClicks(valuation->NewValueTextField, "30");
    valuation->SaveButton->click();
    window->navigationController()->popToRootViewController(false);
    now = now.addDays(3);
    Exchange::mergeExchangeText(
        ctx(), QByteArray("[PELVANE]\nUSA^Mercury Dime^^^0.0^^^^D^^^4^^^0.0^0.0^2.5^0.0^1944^^\n"));
    ASSERT_TRUE(ctx().save().ok());

    auto* screen = open();
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::ChangesPage);
    QTableView* changes = screen->Tables[StatisticsViewController::ChangesPage];
    ASSERT_EQ(rowCount(changes), 4); // two added, one revalued, one imported
    EXPECT_EQ(cell(changes, 0, 0), "Lincoln Cent, USA 1909");
    EXPECT_EQ(cell(changes, 0, 1), "$2.00");
    EXPECT_EQ(cell(changes, 0, 2), "$60.00");
    EXPECT_EQ(cell(changes, 0, 3), "2026-02-19");
    EXPECT_EQ(cell(changes, 0, 4), "Revaluation");
    EXPECT_EQ(cell(changes, 1, 0), "Mercury Dime, USA 1944");
    EXPECT_EQ(cell(changes, 1, 2), "$10.00");
    EXPECT_EQ(cell(changes, 1, 4), "Import");
    // The last month holds the revaluation and the import, not the coins added before it.
    screen->MonthButton->click();
    EXPECT_EQ(rowCount(changes), 2);
    screen->AllButton->click();

    // The value line: the day the coins were added, the revaluation, the import, today.
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::ValuePage);
    EXPECT_EQ(screen->csv(StatisticsViewController::ValuePage),
              "date,pieces,total_value\n2026-01-10,3,4.00\n2026-02-19,3,62.00\n"
              "2026-02-22,6,70.00\n");
    screen->YearButton->click();
    EXPECT_EQ(rowCount(screen->Tables[StatisticsViewController::ValuePage]), 3);

    // A row opens its coin read-only with its history, never the edit form.
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::ChangesPage);
    screen->MonthButton->click();
    changes->setCurrentIndex(changes->model()->index(1, 0));
    QTest::keyClick(changes, Qt::Key_Return);
    QApplication::processEvents();
    auto* coinHistory = topAs<CoinHistoryViewController>();
    ASSERT_NE(coinHistory, nullptr);
    EXPECT_EQ(window->findChild<EditViewController*>(), nullptr);
    EXPECT_EQ(coinHistory->CoinLabel->text(), "Mercury Dime, USA 1944");
    EXPECT_EQ(coinHistory->QuantityValue->text(), "4");
    EXPECT_EQ(coinHistory->ValueValue->text(), "$2.50");
    EXPECT_EQ(coinHistory->MintMarkValue->text(), "D");
    QTableWidget* rows = coinHistory->HistoryTable;
    ASSERT_EQ(rows->rowCount(), 2);
    EXPECT_EQ(cell(rows, 0, 1), "Added");
    EXPECT_EQ(cell(rows, 1, 1), "Import");
    EXPECT_EQ(cell(rows, 1, 2), "1 → 4");
    EXPECT_EQ(cell(rows, 1, 3), "$2.00 → $2.50");
    EXPECT_EQ(cell(rows, 1, 4), "$2.00 → $10.00");

    // A coin deleted while its row is listed is not opened.
    const CoinPtr dime = coinHistory->detailItem;
    window->navigationController()->popViewController(false);
    ctx().deleteObject(dime);
    ASSERT_TRUE(ctx().save().ok());
    // The Enter that opened the row does not answer the alert as well.
    changes->setCurrentIndex(changes->model()->index(1, 0));
    QTest::keyClick(changes, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(top(), screen);
    EXPECT_TRUE(alertText().startsWith("Coin Deleted / This coin has been deleted."))
        << alertText().toStdString();
    dismissAlert();
}

// The chart is saved as a PNG and the numbers as CSV where the user picks; a chart follows the
// dark appearance.
TEST_F(StatisticsTest, SavesTheChartAndItsDataAndFollowsTheAppearance) {
    addCoin("Lincoln Cent", 1909, 2, 1.0f, "USA");
    addCoin("Sol", 1950, 1, 3.0f, "Peru, Republic");
    auto* screen = open();
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::CountryPage);
    fakes.documentPicker->next = dir() + "/countries.png";
    button("SaveChartButton")->click();
    EXPECT_TRUE(fakes.documentPicker->suggested.endsWith("Documents/Pelvane-countries.png"));
    const QImage saved(dir() + "/countries.png");
    ASSERT_FALSE(saved.isNull());
    EXPECT_EQ(saved.size(), screen->Charts[StatisticsViewController::CountryPage]->grab().size());
    fakes.documentPicker->next = dir() + "/countries.csv";
    button("ExportDataButton")->click();
    EXPECT_EQ(readFile(dir() + "/countries.csv"),
              "country,pieces,total_value\n\"Peru, Republic\",1,3.00\nUSA,2,2.00\n");
    // The list of changes has no chart to save.
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::ChangesPage);
    EXPECT_FALSE(button("SaveChartButton")->isEnabled());
    // A folder is no file to write: said, nothing lost.
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::DecadePage);
    fakes.documentPicker->next = dir();
    button("ExportDataButton")->click();
    EXPECT_TRUE(alertText().startsWith("Data Not Exported / ")) << alertText().toStdString();
    dismissAlert();

    EXPECT_EQ(screen->Charts[0]->chart()->theme(), QChart::ChartThemeLight);
    Appearance::setDark(true);
    window->navigationController()->popToRootViewController(false);
    screen = open();
    EXPECT_EQ(screen->Charts[0]->chart()->theme(), QChart::ChartThemeDark);
    Appearance::setDark(false);
}

namespace {
// The ticks a figures axis shows: from its low end to its high end in steps of its interval.
QList<double> ticks(QChartView* view) {
    QList<double> out;
    for (QAbstractAxis* axis : view->chart()->axes())
        if (auto* figures = qobject_cast<QValueAxis*>(axis)) {
            EXPECT_EQ(figures->tickType(), QValueAxis::TicksDynamic);
            EXPECT_EQ(figures->tickAnchor(), 0);
            for (double at = figures->min(); at <= figures->max() + 1e-9;
                 at += figures->tickInterval())
                out << at;
        }
    return out;
}
} // namespace

// The axes of figures stand on round numbers (1, 2, 2.5 or 5 times a power of ten), written
// as the language writes them, whatever the largest figure.
TEST_F(StatisticsTest, ChartAxesTickAtRoundNumbers) {
    addCoin("Lincoln Cent", 1909, 2814, 5.0f, "USA");
    addCoin("Sol", 1950, 1, 3.0f, "Peru");
    auto* screen = open();
    ASSERT_NE(screen, nullptr);
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::CountryPage);
    QChartView* countries = screen->Charts[StatisticsViewController::CountryPage];
    // Value by country: 14,070 at most.
    EXPECT_EQ(ticks(countries), (QList<double>{0, 2500, 5000, 7500, 10000, 12500, 15000}));
    const QImage drawn = countries->grab().toImage();
    EXPECT_FALSE(drawn.isNull());
    for (QAbstractAxis* axis : countries->chart()->axes())
        if (auto* figures = qobject_cast<QValueAxis*>(axis)) {
            EXPECT_EQ(figures->labelFormat(), "%.0f");
        }
    EXPECT_TRUE(countries->chart()->localizeNumbers());

    // Other ranges, through the same charts.
    for (const auto& [quantity, value, wanted] :
         {std::tuple{1, 0.3f, QList<double>{0, 0.5, 1, 1.5, 2, 2.5, 3}},
          std::tuple{30, 1.0f, QList<double>{0, 5, 10, 15, 20, 25, 30}}}) {
        window->navigationController()->popToRootViewController(false);
        for (const CoinPtr& c : all<Coins>())
            ctx().deleteObject(c);
        ASSERT_TRUE(ctx().save().ok());
        addCoin("Dime", 1964, quantity, value, "USA");
        addCoin("Sol", 1950, 1, 3.0f, "Peru");
        screen = open();
        ASSERT_NE(screen, nullptr);
        screen->ChartTabs->setCurrentIndex(StatisticsViewController::CountryPage);
        EXPECT_EQ(ticks(screen->Charts[StatisticsViewController::CountryPage]), wanted)
            << quantity << " x " << value;
    }
    // Pieces never step below one.
    const StatisticsCharts::Scale pieces = StatisticsCharts::scale(0, 3, true);
    EXPECT_EQ(pieces.step, 1);
    const StatisticsCharts::Scale money = StatisticsCharts::scale(0, 0.3);
    EXPECT_EQ(money.step, 0.05);
    EXPECT_EQ(money.decimals, 2);
    const StatisticsCharts::Scale quarters = StatisticsCharts::scale(0, 14);
    EXPECT_EQ(quarters.step, 2.5);
    EXPECT_EQ(quarters.decimals, 1);
    // Below zero as well.
    const StatisticsCharts::Scale loss = StatisticsCharts::scale(-120, 480);
    EXPECT_EQ(loss.low, -200);
    EXPECT_EQ(loss.high, 600);
    EXPECT_EQ(loss.step, 200);
}

// Each tab's CSV file holds the rows of the table the tab shows, cell for cell, read back from
// the file the Export Data button writes; a name holding a separator, a quote or a line break
// (a carriage return too) comes out quoted.
TEST_F(StatisticsTest, EachCsvFileHoldsTheTableItsTabShows) {
    // More than eleven countries, so that the rest is summed; the names a file must quote are
    // among the ten largest.
    const QStringList countries = {"Nor\rway",
                                   "Peru, Republic",
                                   "Côte \"d'Ivoire\"",
                                   "Line\nFeed",
                                   "",
                                   "Canada",
                                   "Mexico",
                                   "Japan",
                                   "Chile",
                                   "Brazil",
                                   "India",
                                   "Kenya",
                                   "Spain"};
    const int n = int(countries.size());
    for (int i = 0; i < n; ++i)
        addCoin(i == 0 ? QStringLiteral("Pe\rso") : QStringLiteral("Cent %1").arg(i % 3),
                1900 + 13 * i, n - i, 1.25f * float(n - i), countries[i]);
    auto* screen = open();
    ASSERT_NE(screen, nullptr);
    const auto money = [](const QString& amount) {
        return QLocale().toCurrencyString(amount.toDouble());
    };
    const auto orNone = [](const QString& name) {
        return name.isEmpty() ? QStringLiteral("(none)") : name;
    };
    QByteArray files[StatisticsViewController::PageCount];
    for (int p = 0; p < StatisticsViewController::PageCount; ++p) {
        SCOPED_TRACE(p);
        screen->ChartTabs->setCurrentIndex(p);
        const QString path = dir() + QStringLiteral("/page%1.csv").arg(p);
        fakes.documentPicker->next = path;
        button("ExportDataButton")->click();
        files[p] = readFile(path);
        const QList<QStringList> records = readCsv(QString::fromUtf8(files[p]));
        QTableView* table = screen->Tables[p];
        ASSERT_GT(rowCount(table), 0);
        ASSERT_EQ(records.size(), rowCount(table) + 1); // the titles, then a record per row
        for (int r = 0; r < rowCount(table); ++r) {
            const QStringList& f = records[r + 1];
            ASSERT_EQ(f.size(), records[0].size()) << r;
            const QStringList expected =
                p == StatisticsViewController::ChangesPage
                    ? QStringList{QStringLiteral("%1, %2 %3").arg(orNone(f[0]), orNone(f[1]), f[2]),
                                  money(f[3]), money(f[4]), f[5], f[6]}
                    : QStringList{p == StatisticsViewController::DecadePage ? f[0] : orNone(f[0]),
                                  f[1], money(f[2])};
            ASSERT_EQ(table->model()->columnCount(), expected.size());
            for (int c = 0; c < expected.size(); ++c)
                EXPECT_EQ(cell(table, r, c), expected[c]) << r << "," << c;
        }
    }
    // The file's own text: the names quoted (a carriage return as well as a line feed), the rest
    // summed under its English name.
    const QByteArray& byCountry = files[StatisticsViewController::CountryPage];
    EXPECT_TRUE(byCountry.startsWith("country,pieces,total_value\n\"Nor\rway\",13,211.25\n"))
        << byCountry.toStdString();
    EXPECT_TRUE(byCountry.contains("\n\"Line\nFeed\","));
    EXPECT_TRUE(byCountry.contains("\n\"Côte \"\"d'Ivoire\"\"\","));
    EXPECT_TRUE(byCountry.contains("\n,9,101.25\n")); // no country: an empty field
    EXPECT_TRUE(byCountry.endsWith("\nOther,6,17.50\n")) << byCountry.toStdString();
    EXPECT_TRUE(files[StatisticsViewController::ChangesPage].contains(
        "\n\"Pe\rso\",\"Nor\rway\",1900,0.00,211.25,"));
}
