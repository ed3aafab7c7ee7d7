// Group-table and breakdown figures: opening each group screen, a search keystroke and a sort on
// the benchmark collection and on one with thousands of distinct values; opening the breakdown
// of the largest group and of a group of 32,000 coins, and a keystroke there. One figure per
// line.
#include "BenchCollection.h"
#include "BenchSession.h"
#include "app/AppDelegate.h"
#include "app/AppStoryboard.h"
#include "app/LaunchOptions.h"
#include "platform/fakes/Fakes.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/TabBarController.h"
#include "platform/kit/Window.h"
#include "screens/groups/BreakdownTableViewController.h"
#include "screens/groups/GroupTableViewController.h"
#include "screens/menu/MainMenuViewController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <functional>

using namespace BenchCollection;

namespace {
double ms(const QElapsedTimer& t) {
    return double(t.nsecsElapsed()) / 1e6;
}

// A store of 32,000 coins like the benchmark collection's, each changed by `vary`.
void buildVaried(const QString& dir, const std::function<void(Coins&, int)>& vary) {
    std::vector<QByteArray> pics;
    for (int i = 0; i < 64; ++i)
        pics.push_back(picture(i));
    PersistentContainer::setDefaultDirectory(dir);
    auto c = open();
    for (int i = 0; i < 32000; ++i) {
        auto coin = c->viewContext()->insert<Coins>();
        fill(*coin, i, pics);
        vary(*coin, i);
    }
    if (!c->viewContext()->save().ok())
        std::exit(1);
}

struct Session : BenchSession {
    using BenchSession::BenchSession;
    TabBarController* tabs() {
        return static_cast<TabBarController*>(window->navigationController()->topViewController());
    }
    GroupTableViewController* group(int tab) {
        return static_cast<GroupTableViewController*>(tabs()->tab(tab)->viewControllers().value(0));
    }
    // The slowest of the keystrokes typing `typed`, each with its paint.
    double slowestKeystroke(SearchController* field, const QString& typed) {
        field->setActive(true); // the search starts as the field takes the focus
        QApplication::processEvents();
        double worst = 0;
        for (int i = 1; i <= typed.size(); ++i) {
            QElapsedTimer t;
            t.start();
            field->setText(typed.left(i));
            const double filtered = ms(t);
            QApplication::processEvents();
            const double laidOut = ms(t);
            window->repaint();
            worst = std::max(worst, ms(t));
            if (qEnvironmentVariableIsSet("PELVANE_BENCH_DETAIL"))
                std::printf("  %s: filter %.1f, layout %.1f, paint %.1f ms\n",
                            qPrintable(typed.left(i)), filtered, laidOut - filtered,
                            ms(t) - laidOut);
        }
        field->clear();
        field->setActive(false);
        QApplication::processEvents();
        return worst;
    }
};

const char* kTabs[] = {"Denomination", "Country", "Year"};

void groupFigures(const QString& dir, const char* collection, const QString& typed) {
    Session s(dir);
    char label[160];
    for (int tab = 0; tab < 3; ++tab) {
        const double open = s.timed([&] {
            if (tab == 0)
                s.menu->performSegue(QStringLiteral("TabBarController"));
            else
                s.tabs()->setSelectedIndex(tab);
        });
        std::snprintf(label, sizeof label, "groups: open %s, %s (fetch + paint)", kTabs[tab],
                      collection);
        print(label, open, "ms", "<= 120 ms");
    }
    s.tabs()->setSelectedIndex(1);
    GroupTableViewController* countries = s.group(1);
    std::snprintf(label, sizeof label, "groups: slowest keystroke, Country, %s", collection);
    print(label, s.slowestKeystroke(countries->searchController, typed), "ms", "<= 16 ms");
    const int drawnBefore = countries->tableView->cellsRequested();
    std::snprintf(label, sizeof label, "groups: sort Country, %s (toggle + paint)", collection);
    print(label, s.timed([&] { countries->SortButtonTapped(); }), "ms", "<= 150 ms");
    std::snprintf(label, sizeof label, "groups: rows drawn by that paint, %s", collection);
    print(label, countries->tableView->cellsRequested() - drawnBefore, "", "visible");
}

// Opens the breakdown of the value at the top of a group screen sorted by count.
void breakdownFigures(const QString& dir, int tab, const char* what, const QString& typed) {
    Session s(dir);
    s.menu->performSegue(QStringLiteral("TabBarController"));
    s.tabs()->setSelectedIndex(tab);
    GroupTableViewController* g = s.group(tab);
    int largest = 0;
    for (int row = 1; row < g->ValueList.size(); ++row)
        if (g->countOf(g->ValueList[row]) > g->countOf(g->ValueList[largest]))
            largest = row;
    const int coins = g->countOf(g->ValueList[largest]);
    char label[160];
    // The better of two opens, each reading every coin afresh: the machine is shared.
    double open = s.timed([&] { g->tableView->selectRow({0, largest}); });
    s.tabs()->tab(tab)->popViewController(false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // its coins go
    open = std::min(open, s.timed([&] { g->tableView->selectRow({0, largest}); }));
    auto* b = static_cast<BreakdownTableViewController*>(s.tabs()->tab(tab)->topViewController());
    if (b->CoinList.size() != coins)
        std::exit(1);
    std::snprintf(label, sizeof label, "breakdown: open %s (%d coins; fetch + paint)", what, coins);
    print(label, open, "ms", "<= 150 ms");
    std::snprintf(label, sizeof label, "breakdown: rows drawn by the paints of that open, %s",
                  what);
    print(label, b->tableView->cellsRequested(), "", "visible");
    std::snprintf(label, sizeof label, "breakdown: slowest keystroke, %s (\"%s\")", what,
                  qPrintable(typed));
    print(label, s.slowestKeystroke(b->searchController, typed), "ms", "<= 16 ms");
}
} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    hideOffscreenNotes();
    QApplication app(argc, argv);
    QTemporaryDir bench, manyValues, oneGroup;
    build(bench.path(), 32000);
    // About 8,000 denominations, 8,000 countries and 2,000 years.
    buildVaried(manyValues.path(), [](Coins& c, int i) {
        c.setDenomination(QStringLiteral("Denomination %1").arg(i % 8000));
        c.setCountry(QStringLiteral("Country %1").arg((i * 7) % 8000));
        c.setYear(qint16(1 + (i * 13) % 2000));
    });
    // One country for all 32,000 coins.
    buildVaried(oneGroup.path(), [](Coins& c, int) { c.setCountry(QStringLiteral("Canada")); });
    Fakes::install();
    AppStoryboard::install();

    groupFigures(bench.path(), "benchmark collection", QStringLiteral("united"));
    groupFigures(manyValues.path(), "8,000 values", QStringLiteral("country 12"));
    breakdownFigures(bench.path(), 1, "largest group of the benchmark collection",
                     QStringLiteral("1 cent"));
    breakdownFigures(oneGroup.path(), 1, "a group of 32,000 coins", QStringLiteral("1 cent"));
    return 0;
}
