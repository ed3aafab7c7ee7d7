#include "StoreFixture.h"
#include "model/Backup.h"
#include "model/Snapshots.h"

#include <QDir>
#include <QFile>

namespace {
void touch(const QString& file, const QDateTime& time) {
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    ASSERT_TRUE(f.setFileTime(time, QFileDevice::FileModificationTime));
}
} // namespace

// Kept by calendar: the newest of each of the last 7 days, 4 weeks and 6 months that have one.
TEST(Snapshots, RetentionKeepsDaysWeeksAndMonths) {
    QList<QDate> daily;
    const QDate today(2026, 11, 24); // a Tuesday
    for (int i = 0; i < 400; ++i)
        daily << today.addDays(-i);
    const QList<QDate> kept = Snapshots::kept(daily);
    QList<QDate> expected;
    for (int i = 0; i < 7; ++i)
        expected << today.addDays(-i); // 24th back to the 18th
    // The Sundays that end the weeks before; this week's and last week's newest are kept days.
    expected << QDate(2026, 11, 15) << QDate(2026, 11, 8);
    // Last days of the months before: this month's newest is today.
    expected << QDate(2026, 10, 31) << QDate(2026, 9, 30) << QDate(2026, 8, 31)
             << QDate(2026, 7, 31) << QDate(2026, 6, 30);
    std::sort(expected.begin(), expected.end(), std::greater<>());
    EXPECT_EQ(kept, expected);

    // Sparse snapshots: a gap of months keeps the old ones, one per period.
    const QList<QDate> sparse = {QDate(2026, 11, 24), QDate(2026, 11, 24), QDate(2025, 1, 3),
                                 QDate(2025, 1, 2), QDate(2020, 5, 1)};
    EXPECT_EQ(Snapshots::kept(sparse), (QList<QDate>{QDate(2026, 11, 24), QDate(2025, 1, 3),
                                                     QDate(2025, 1, 2), QDate(2020, 5, 1)}));
}

// Taken when none is younger than a day and the store changed since; each one a whole store;
// older ones pruned by the calendar, and a snapshot that cannot be written said, not fatal.
TEST_F(StoreTest, SnapshotsAreTakenWhenDueAndPruned) {
    coin("Chile", "1 Peso", 1990);
    ASSERT_TRUE(ctx().save().ok());
    const QString store = container->storePath();
    const QDateTime now = QDateTime::currentDateTime();
    EXPECT_TRUE(Snapshots::due(store, now));

    const Result<QString> taken = Snapshots::take(store);
    ASSERT_TRUE(taken.ok()) << qPrintable(taken.error().message);
    EXPECT_TRUE(taken.value().endsWith("/Backups/Pelvane-" +
                                       QDate::currentDate().toString(Qt::ISODate) + ".sqlite"));
    const Result<Backup::StoreInfo> info = Backup::inspect(taken.value());
    ASSERT_TRUE(info.ok()) << qPrintable(info.error().message);
    EXPECT_EQ(info.value().coins, 1);
    EXPECT_FALSE(Snapshots::due(store, QDateTime::currentDateTime()));
    // A day later with nothing changed: still not due; changed since: due.
    const QDateTime tomorrow = now.addDays(1).addSecs(60);
    touch(taken.value(), now.addSecs(-10));
    touch(store, now.addSecs(-20));
    touch(store + "-wal", now.addSecs(-20));
    EXPECT_FALSE(Snapshots::due(store, tomorrow));
    touch(store + "-wal", now);
    EXPECT_TRUE(Snapshots::due(store, tomorrow));

    // Forty days of snapshots: seven days, this and three more weeks and two months stay.
    const QDate today = QDate::currentDate();
    for (int i = 1; i <= 40; ++i)
        ASSERT_TRUE(QFile::copy(taken.value(), Snapshots::folder(store) + "/Pelvane-" +
                                                   today.addDays(-i).toString(Qt::ISODate) +
                                                   ".sqlite"));
    Snapshots::prune(store, today);
    QList<QDate> left;
    for (const Snapshots::Entry& e : Snapshots::list(store))
        left << e.date;
    std::sort(left.begin(), left.end(), std::greater<>());
    QList<QDate> all;
    for (int i = 0; i <= 40; ++i)
        all << today.addDays(-i);
    EXPECT_EQ(left, Snapshots::kept(all));
    EXPECT_LE(left.size(), 7 + 4 + 6);

    // The folder cannot be made: the reason, nothing else.
    QDir(Snapshots::folder(store)).removeRecursively();
    writeFile(Snapshots::folder(store), "a file where the folder would be");
    const Result<QString> refused = Snapshots::take(store);
    ASSERT_FALSE(refused.ok());
    EXPECT_TRUE(refused.error().message.contains("Cannot make the folder"));
}
