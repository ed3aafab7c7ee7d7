#include "StoreFixture.h"
#include "model/Snapshots.h"
#include "model/Sqlite.h"
#include "model/ValueHistory.h"

#include <QFile>
#include <sqlite3.h>

namespace {
// A clock the test turns by hand.
struct Clock {
    QDateTime now = QDateTime(QDate(2026, 3, 1), QTime(10, 0));
    Clock() {
        ValueHistory::setClock([this] { return now; });
    }
    ~Clock() { ValueHistory::setClock({}); }
    void nextDay() { now = now.addDays(1); }
};

struct Change {
    QString cause;
    qint64 quantityBefore, quantityAfter;
    double valueBefore, valueAfter;
    bool operator==(const Change&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Change& c) {
    return out << c.cause.toStdString() << " " << c.quantityBefore << "x" << c.valueBefore << " -> "
               << c.quantityAfter << "x" << c.valueAfter;
}

class ValueHistoryTest : public StoreTest {
protected:
    QList<Change> changesOf(const CoinPtr& coin) {
        QList<Change> out;
        const auto events = ValueHistory::eventsOf(ctx(), coin->objectID());
        EXPECT_TRUE(events.ok());
        for (const ValueHistory::Event& e : events.valueOr({}))
            out.append({e.cause, e.quantityBefore, e.quantityAfter, e.valueBefore, e.valueAfter});
        return out;
    }
    Clock clock;
};
} // namespace

// Each way a coin's value or quantity changes is one event of that coin, saved with it; a
// change of anything else, or one never saved, is none.
TEST_F(ValueHistoryTest, EverySavedChangeOfValueOrQuantityIsOneEvent) {
    CoinPtr penny = coin("UK", "1 Penny", 1967, "", 3, 0.5f);
    CoinPtr crown = coin("UK", "Crown", 1965, "", 1, 4);
    ASSERT_TRUE(ctx().save().ok());
    EXPECT_EQ(changesOf(penny), (QList<Change>{{"Added", 0, 3, 0, 0.5}}));

    penny->setValue(0.75f);
    penny->setNotes("worn");
    ASSERT_TRUE(ctx().save().ok());
    penny->setNotes("very worn"); // no value change: no event
    penny->setMintMark("L");
    ASSERT_TRUE(ctx().save().ok());
    {
        const ValueHistory::Cause cause(ctx(), ValueHistory::Revaluation);
        crown->setValue(6);
        ASSERT_TRUE(ctx().save().ok());
    }
    penny->setQuantity(5);
    penny->setQuantity(3); // set back before a save: nothing happened
    ASSERT_TRUE(ctx().save().ok());
    EXPECT_EQ(changesOf(penny),
              (QList<Change>{{"Added", 0, 3, 0, 0.5}, {"Edited", 3, 3, 0.5, 0.75}}));
    EXPECT_EQ(changesOf(crown),
              (QList<Change>{{"Added", 0, 1, 0, 4}, {"Revaluation", 1, 1, 4, 6}}));

    // A change left pending and then thrown away with the store records nothing.
    crown->setQuantity(9);
    const qint64 before = ValueHistory::count(ctx()).value();
    reopen();
    EXPECT_EQ(ValueHistory::count(ctx()).value(), before);

    // A delete keeps the coin's history, with what it held and where it came from.
    const CoinPtr gone = fetch(eq("denomination == %@", "Crown")).first();
    const qint64 row = gone->objectID();
    ctx().deleteObject(gone);
    ASSERT_TRUE(ctx().save().ok());
    const auto events = ValueHistory::eventsOf(ctx(), row).value();
    ASSERT_EQ(events.size(), 3);
    EXPECT_EQ(events.last().cause, "Deleted");
    EXPECT_EQ(events.last().quantityBefore, 1);
    EXPECT_EQ(events.last().valueBefore, 6);
    EXPECT_EQ(events.last().quantityAfter, 0);
    EXPECT_EQ(events.last().country, "UK");
    EXPECT_EQ(events.last().year, 1965);

    // A save whose event cannot be written writes neither the change nor the event: they are
    // one transaction.
    const CoinPtr kept = fetch().first();
    kept->setValue(99);
    ASSERT_EQ(sqlite3_exec(ctx().database()->handle(),
                           "CREATE TEMP TRIGGER no_room BEFORE INSERT ON ValueEvents BEGIN "
                           "SELECT RAISE(ABORT, 'no room'); END",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    EXPECT_FALSE(ctx().save().ok());
    OtherConnection other(path("Pelvane.sqlite"));
    EXPECT_EQ(other.number("SELECT count(*) FROM Coins WHERE value = 99"), 0);
    EXPECT_EQ(other.number("SELECT count(*) FROM ValueEvents WHERE valueAfter = 99"), 0);
    ASSERT_EQ(sqlite3_exec(ctx().database()->handle(), "DROP TRIGGER IF EXISTS temp.no_room",
                           nullptr, nullptr, nullptr),
              SQLITE_OK)
        << sqlite3_errmsg(ctx().database()->handle());
    ASSERT_TRUE(ctx().save().ok());
    EXPECT_EQ(other.number("SELECT count(*) FROM Coins WHERE value = 99"), 1);
    EXPECT_EQ(other.number("SELECT count(*) FROM ValueEvents WHERE valueAfter = 99"), 1);

    // Another program's write is none of the collection's history, and does not fail for it.
    const qint64 recorded = ValueHistory::count(ctx()).value();
    ASSERT_EQ(other.exec("UPDATE Coins SET quantity = 7"), SQLITE_OK);
    EXPECT_EQ(ValueHistory::count(ctx()).value(), recorded);
}

// A store made before the history begins it when first opened: one baseline event a coin,
// dated then, in the same step as the tables, and never again.
TEST_F(ValueHistoryTest, AnOlderStoreGetsOneBaselineEventPerCoin) {
    container.reset();
    const QString file = path("Pelvane.sqlite");
    for (const char* suffix : {"", "-wal", "-shm"})
        QFile::remove(file + suffix);
    ASSERT_TRUE(QFile::copy(PELVANE_TEST_DATA "/stores/written-by-schema-1.sqlite", file));
    QFile(file).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    reopen();
    const auto coins = fetch();
    ASSERT_EQ(coins.size(), 5);
    OtherConnection other(file);
    EXPECT_EQ(other.number("SELECT count(*) FROM ValueEvents"), 5);
    EXPECT_EQ(other.number("SELECT count(DISTINCT coin) FROM ValueEvents WHERE cause = "
                           "'Baseline' AND quantityBefore = 0"),
              5);
    const auto series = ValueHistory::series(ctx()).value();
    ASSERT_EQ(series.size(), 1);
    EXPECT_EQ(series[0].day, QDate(2026, 3, 1));
    const auto [pieces, value] = totals();
    EXPECT_EQ(series[0].pieces, pieces);
    EXPECT_DOUBLE_EQ(series[0].value, value);
    // A baseline is where the history starts, not a change.
    EXPECT_TRUE(ValueHistory::largestChanges(ctx(), std::nullopt, 10).value().isEmpty());

    clock.nextDay();
    reopen();
    EXPECT_EQ(other.number("SELECT count(*) FROM ValueEvents"), 5);
    // The snapshot kept before the change has no history; it is the store as it was.
    const QList<Snapshots::Entry> kept = Snapshots::list(file);
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(OtherConnection(kept[0].path)
                  .number("SELECT count(*) FROM sqlite_master WHERE name = 'ValueEvents'"),
              0);
}
