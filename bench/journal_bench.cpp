// Change journal figures on the collection of 32,000 coins with two pictures each: the undo of
// one edit and of a whole import, what the journal adds to a save of one coin, and how much the
// store grows as every coin is edited again and again. One figure per line.
#include "BenchCollection.h"
#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "model/Journal.h"
#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace BenchCollection;

namespace {

double ms(const QElapsedTimer& t) {
    return double(t.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// The figures below one second or one unit would lose too much at one decimal.
void printFine(const char* name, double value, const char* unit, const char* target) {
    std::printf("%-52s %10.2f %-3s (target %s)\n", name, value, unit, target);
}

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "journal_bench: %s\n", what);
    std::exit(1);
}

qint64 countOf(ManagedObjectContext& context, const char* sql) {
    SqliteStatement st(context.database()->handle(), QString::fromLatin1(sql));
    const qint64 n = st.step() == SQLITE_ROW ? st.columnInt(0) : -1;
    if (n < 0)
        fail(sql);
    return n;
}

// The store file and its log once the log is written back: what the collection takes on disk.
double storeBytes(ManagedObjectContext& context, const QString& dir) {
    // The context's read batch ends with the next turn of the event loop; the checkpoint cannot
    // empty the log while it lasts.
    QCoreApplication::processEvents();
    if (!context.database()->exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")))
        fail("the checkpoint failed");
    const QString store = QDir(dir).filePath(QStringLiteral("Pelvane.sqlite"));
    return double(QFileInfo(store).size() + QFileInfo(store + QStringLiteral("-wal")).size());
}

// Changes one coin's value and saves it, as the edit screen does.
void editOne(ManagedObjectContext& context, const CoinPtr& coin) {
    coin->setValue(coin->value() + 1);
    if (!context.save().ok())
        fail("a save failed");
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const int n = 32000;
    QTemporaryDir dir;
    build(dir.path(), n);
    auto container = open();
    ManagedObjectContext& context = *container->viewContext();

    // The whole collection in memory, as the main list holds it.
    FetchRequest all(QStringLiteral("Coins"));
    all.sortDescriptors = {{QStringLiteral("denomination"), true}};
    all.returnsObjectsAsFaults = false;
    const QList<CoinPtr> coins = context.fetch<Coins>(all);
    if (coins.size() != n)
        fail("the collection was not read whole");

    // One coin edited and saved, then undone; a different coin each run.
    std::vector<double> undos;
    QElapsedTimer t;
    for (int run = 0; run < 9; ++run) {
        const CoinPtr& coin = coins[(run * 7919) % n];
        const float before = coin->value();
        editOne(context, coin);
        QCoreApplication::processEvents();
        t.restart();
        const Result<Journal::StepInfo> undone = Journal::undo(context);
        undos.push_back(ms(t));
        if (!undone.ok() || undone.value().detail != Journal::Edit || coin->value() != before)
            fail("the edit was not undone");
    }
    print("undo: one edit", median(undos), "ms", "<= 30 ms");

    // The collection exported, imported into an empty store as one step, and that step undone.
    // The file and the second store go before the figures that follow.
    {
        const Result<QByteArray> text = Exchange::exchangeText(context);
        if (!text.ok())
            fail("the export failed");
        QTemporaryDir emptyDir;
        PersistentContainer::setDefaultDirectory(emptyDir.path());
        auto empty = open();
        ManagedObjectContext& device = *empty->viewContext();
        const Exchange::ImportResult imported = Exchange::mergeExchangeText(device, text.value());
        if (imported.created != n || imported.notSaved != 0)
            fail("the import did not create every coin");
        QCoreApplication::processEvents();
        t.restart();
        const Result<Journal::StepInfo> undone = Journal::undo(device);
        const double undoImport = double(t.nsecsElapsed()) / 1e9;
        if (!undone.ok() || undone.value().detail != Journal::Import)
            fail("the import was not undone");
        const qint64 left = countOf(device, "SELECT count(*) FROM Coins");
        if (left != 0 || countOf(device, "SELECT count(*) FROM Coins_pictures") != 0) {
            std::fprintf(stderr, "journal_bench: %lld coins left after the import was undone\n",
                         static_cast<long long>(left));
            return 1;
        }
        printFine("undo: import of 32,000 coins", undoImport, "s", "<= 3 s");
    }

    // Single-coin saves with the journal and without, in turn and in alternating order, so
    // that the machine's drift falls on both alike; each run edits 2,000 coins the others do
    // not, every coin once in all.
    const int perRun = 2000;
    int next = 0;
    auto timeSaves = [&](bool journal) {
        Journal::setRecording(context, journal);
        QCoreApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < perRun; ++i)
            editOne(context, coins[next++ % n]);
        return ms(timer);
    };
    // The log is written back into the store every so many pages, at a cost that falls on
    // whichever run reaches it: the totals of all runs are compared, not run by run.
    double withTotal = 0, withoutTotal = 0;
    for (int run = 0; run < 8; ++run) {
        double with, without;
        if (run % 2 == 0) {
            with = timeSaves(true);
            without = timeSaves(false);
        } else {
            without = timeSaves(false);
            with = timeSaves(true);
        }
        if (qEnvironmentVariableIsSet("PELVANE_BENCH_DETAIL"))
            std::printf("  2,000 saves: with the journal %.0f ms, without %.0f ms\n", with,
                        without);
        withTotal += with;
        withoutTotal += without;
    }
    Journal::setRecording(context, true);
    printFine("journal: save with journal / save without", withTotal / withoutTotal, "x", "<= 1.2");

    // Ten rounds of an edit of every coin, each a save and a step of its own as a user would
    // make them: 320,000 saves one by one, no group, about half a minute in all.
    const double sizeBefore = storeBytes(context, dir.path());
    const qint64 stepsBefore = countOf(context, "SELECT count(*) FROM Journal WHERE tbl = 0");
    t.restart();
    for (int round = 0; round < 10; ++round)
        for (const CoinPtr& coin : coins)
            editOne(context, coin);
    const double editing = double(t.nsecsElapsed()) / 1e9;
    const double growth = storeBytes(context, dir.path()) - sizeBefore;
    if (countOf(context, "SELECT count(*) FROM Journal WHERE tbl = 0") - stepsBefore !=
        10 * qint64(n))
        fail("the edits were not a step each");
    print("journal: store growth for 10 edits of each of 32,000 coins", growth / 1e6, "MB",
          "reported");
    if (qEnvironmentVariableIsSet("PELVANE_BENCH_DETAIL"))
        std::printf("  (320,000 saves in %.0f s)\n", editing);

    // What a person waits for in that journal: a coin's History reads every row kept of it in
    // one pass over the journal, since no save writes an index of coins.
    t.restart();
    const auto versions = Journal::versionsOf(context, coins[n / 2]->objectID());
    if (!versions.ok() || versions.value().size() < 10)
        fail("the coin's versions were not found");
    print("journal: a coin's versions in that journal", ms(t), "ms", "reported");

    return 0;
}
