// Value history figures on 32,000 coins with 200,000 events spread over ten years: opening the
// statistics screen, the value series alone, and what recording the events adds to a save of
// 30,000 changed coins. One figure per line.
#include "BenchProgram.h"
#include "model/Sqlite.h"
#include "model/ValueHistory.h"
#include "platform/kit/NavigationController.h"
#include "screens/statistics/StatisticsViewController.h"

#include <algorithm>
#include <sqlite3.h>

using namespace BenchCollection;

namespace {
// Fills the history up to `events` with changes of random coins on every day of ten years
// before `today`, as ten years of use would leave it.
bool addHistory(ManagedObjectContext& context, int coins, int events, const QDate& today) {
    SqliteDatabase& db = *context.database();
    const qint64 have = ValueHistory::count(context).value();
    if (!db.exec(QStringLiteral("BEGIN")))
        return false;
    SqliteStatement insert(
        db.handle(), QStringLiteral("INSERT INTO ValueEvents (time, day, coin, denomination, "
                                    "country, year, quantityBefore, valueBefore, quantityAfter, "
                                    "valueAfter, cause) VALUES (?1, ?2, ?3, '1 Cent', 'Canada', "
                                    "1900, 1, ?4, 1, ?5, 'Edited')"));
    QRandomGenerator rng(7);
    const QDate first = today.addYears(-10);
    const qint64 more = events - have;
    for (qint64 i = 0; i < more; ++i) {
        const QDate day = first.addDays(i * first.daysTo(today) / more);
        insert.bindInt(1, day.startOfDay().toMSecsSinceEpoch());
        insert.bindText(2, day.toString(Qt::ISODate));
        insert.bindInt(3, 1 + rng.bounded(coins));
        insert.bindDouble(4, rng.bounded(250.0));
        insert.bindDouble(5, rng.bounded(250.0));
        if (insert.step() != SQLITE_DONE)
            return false;
        insert.reset();
    }
    for (const QString& sql : ValueHistory::fold())
        if (!db.exec(sql))
            return false;
    return db.exec(QStringLiteral("COMMIT"));
}

double median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}
} // namespace

int main(int argc, char** argv) {
    const int n = 32000;
    const int events = 200000;
    Program program(argc, argv, n);
    ManagedObjectContext& context = *program.running->delegate.persistentContainer().viewContext();
    const QDate today = QDate::currentDate();
    if (!addHistory(context, n, events, today) || ValueHistory::count(context).value() != events)
        return 1;

    // Each open is a fresh screen; the best of three, as the other screens are measured.
    auto* nav = program.window->navigationController();
    QElapsedTimer t;
    std::vector<double> opens;
    for (int run = 0; run < 3; ++run) {
        nav->popToRootViewController(false);
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        t.start();
        program.menu->performSegue(QStringLiteral("Statistics"));
        QApplication::processEvents();
        program.window->repaint();
        opens.push_back(ms(t));
    }
    auto* screen = static_cast<StatisticsViewController*>(nav->topViewController());
    if (screen->Series.size() < 3000)
        return 1;
    print("statistics: open, 32,000 coins and 200,000 events",
          *std::min_element(opens.begin(), opens.end()), "ms", "<= 150 ms");

    std::vector<double> series;
    for (int run = 0; run < 5; ++run) {
        t.restart();
        const auto days = ValueHistory::series(context);
        series.push_back(ms(t));
        if (!days.ok() || days.value().size() < 3000)
            return 1;
    }
    print("statistics: value series, 10 years of daily changes", median(series), "ms", "<= 30 ms");

    // The same 30,000 coins saved with a changed value (an event each) and with a changed
    // weight (none), in turn.
    nav->popToRootViewController(false);
    QApplication::processEvents();
    FetchRequest request(QStringLiteral("Coins"));
    request.returnsObjectsAsFaults = false;
    QList<CoinPtr> coins = context.fetch<Coins>(request);
    coins.resize(30000);
    std::vector<double> ratios;
    for (int run = 0; run < 5; ++run) {
        for (const CoinPtr& c : coins)
            c->setValue(c->value() + 1);
        t.restart();
        if (!context.save().ok())
            return 1;
        const double with = ms(t);
        for (const CoinPtr& c : coins)
            c->setWeight(c->weight() + 1);
        t.restart();
        if (!context.save().ok())
            return 1;
        const double without = ms(t);
        if (qEnvironmentVariableIsSet("PELVANE_BENCH_DETAIL"))
            std::printf("  save: with events %.1f ms, without %.1f ms\n", with, without);
        ratios.push_back(with / without);
    }
    print("history: save with events / save without", median(ratios), "x", "<= 1.15");
    return 0;
}
