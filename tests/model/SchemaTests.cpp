#include "StoreFixture.h"
#include "model/PrintedFetch.h"
#include "model/Snapshots.h"

#include <QFile>
#include <sqlite3.h>

namespace {
// Every row of a table as text, NULL shown as "NULL" and blobs as hex, read with plain SQLite.
QStringList rows(const QString& file, const char* table) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(file.toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(db, QByteArray("SELECT * FROM ") + table + " ORDER BY pk", -1, &st, nullptr);
    QStringList out;
    while (st && sqlite3_step(st) == SQLITE_ROW) {
        QStringList cells;
        for (int c = 0; c < sqlite3_column_count(st); ++c) {
            switch (sqlite3_column_type(st, c)) {
            case SQLITE_NULL:
                cells << QStringLiteral("NULL");
                break;
            case SQLITE_BLOB:
                cells << QString::fromLatin1(
                    QByteArray(static_cast<const char*>(sqlite3_column_blob(st, c)),
                               sqlite3_column_bytes(st, c))
                        .toHex());
                break;
            default:
                cells << QString::fromUtf8(
                    reinterpret_cast<const char*>(sqlite3_column_text(st, c)));
            }
        }
        out << cells.join(u'|');
    }
    sqlite3_finalize(st);
    sqlite3_close(db);
    return out;
}

} // namespace

// A number never set is 0, in memory and in the file, so that an equality on 0 finds it.
TEST_F(StoreTest, NumbersNeverSetAreStoredAsZero) {
    auto bare = ctx().insert<Coins>();
    bare->setDenomination(QStringLiteral("Sol"));
    auto cleared = coin("Peru", "Sol", 1935, "P", 3, 2.5f);
    cleared->setValue(QStringLiteral("year"), QVariant());
    cleared->setValue(QStringLiteral("value"), QVariant());
    EXPECT_TRUE(bare->hasValue(Coins::Attr::year));
    EXPECT_EQ(fetch(eq("year == %@", "0")).size(), 2); // unsaved, found in memory
    ASSERT_TRUE(ctx().save().ok());

    OtherConnection raw(path("Pelvane.sqlite"));
    EXPECT_EQ(
        raw.number("SELECT count(*) FROM Coins WHERE year IS NULL OR quantity IS NULL OR id IS "
                   "NULL OR value IS NULL OR totalValue IS NULL OR diameter IS NULL OR weight "
                   "IS NULL OR thickness IS NULL"),
        0);
    EXPECT_EQ(raw.number("SELECT count(*) FROM Coins WHERE country IS NULL"),
              1); // texts stay absent
    // Even another program cannot store an absent number.
    EXPECT_EQ(raw.exec("INSERT INTO Coins (denomination, year) VALUES ('X', NULL)"),
              SQLITE_CONSTRAINT);

    reopen();
    EXPECT_EQ(fetch(eq("year = %@", "0")).size(), 2);
    EXPECT_EQ(fetch(Predicate::andPredicate({eq("denomination = %@", "Sol"),
                                             eq("quantity == %@", "0"), eq("value=%@", "0")}))
                  .size(),
              1);
    EXPECT_EQ(fetch(eq("value=%@", "0")).size(), 2);
}

// A store written before numbers were kept as 0 is brought forward once when opened: its
// absent numbers become 0, everything else stays as it was, byte for byte.
TEST_F(StoreTest, StoreOfTheFirstSchemaIsBroughtForwardOnce) {
    container.reset();
    const QString file = path("Pelvane.sqlite");
    QFile::remove(file);
    QFile::remove(file + "-wal");
    QFile::remove(file + "-shm");
    ASSERT_TRUE(QFile::copy(PELVANE_TEST_DATA "/stores/written-by-schema-1.sqlite", file));
    QFile(file).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    const QStringList coinsBefore = rows(file, "Coins");
    const QStringList picturesBefore = rows(file, "Coins_pictures");
    ASSERT_EQ(coinsBefore.size(), 5);
    ASSERT_GT(coinsBefore.filter("NULL").size(), 0);

    reopen();
    const QStringList coinsAfter = rows(file, "Coins");
    EXPECT_EQ(rows(file, "Coins_pictures"), picturesBefore);
    ASSERT_EQ(coinsAfter.size(), coinsBefore.size());
    // Column by column: numbers that were NULL are 0, every other cell is unchanged.
    const auto& attributes = Model::coins().attributes;
    // What 0 reads as in each column: none for texts, "0" for whole numbers, "0.0" for reals.
    QStringList zeroOf{"0"};
    for (const auto& a : attributes)
        if (a.type != AttributeType::Data)
            zeroOf << (a.type == AttributeType::Text    ? QString()
                       : a.type == AttributeType::Int16 ? QStringLiteral("0")
                                                        : QStringLiteral("0.0"));
    for (qsizetype r = 0; r < coinsBefore.size(); ++r) {
        const QStringList before = coinsBefore[r].split('|'), after = coinsAfter[r].split('|');
        ASSERT_EQ(before.size(), after.size());
        for (qsizetype c = 0; c < before.size(); ++c) {
            SCOPED_TRACE(QStringLiteral("row %1 column %2").arg(r).arg(c).toStdString());
            if (before[c] == "NULL" && !zeroOf[c].isNull())
                EXPECT_EQ(after[c], zeroOf[c]);
            else
                EXPECT_EQ(after[c], before[c]);
        }
    }

    // The coin imported without a year is found by year 0, with its pictures and texts.
    const auto peru =
        fetch(Predicate::andPredicate({eq("denomination = %@", "Sol"), eq("year = %@", "0")}));
    ASSERT_EQ(peru.size(), 1);
    EXPECT_EQ(peru[0]->mintMark(), "P");
    EXPECT_EQ(fetch(eq("denomination == %@", "1 Cent"))[0]->frontImage().left(2), "\xff\xd8");

    // Once only: opening again changes nothing.
    container.reset();
    reopen();
    EXPECT_EQ(rows(file, "Coins"), coinsAfter);
    EXPECT_EQ(OtherConnection(file).number("PRAGMA user_version"),
              PersistentContainer::SchemaVersion);

    // The store as it was is kept before it changed, once.
    const QList<Snapshots::Entry> kept = Snapshots::list(file);
    ASSERT_EQ(kept.size(), 1);
    EXPECT_TRUE(kept[0].path.contains("-before-upgrade-"));
    EXPECT_EQ(rows(kept[0].path, "Coins"), coinsBefore);
}

// Screens carry on with nothing after a failed fetch, and say why on the console.
TEST_F(StoreTest, AFailedFetchIsPrintedAndGivesNothing) {
    ASSERT_EQ(OtherConnection(path("Pelvane.sqlite")).exec("DROP TABLE GradeNumbers"), SQLITE_OK);
    Console::startCapture();
    const auto found = fetchOrPrint(ctx(), FetchRequest(QStringLiteral("GradeNumbers")));
    ASSERT_FALSE(found.ok());
    EXPECT_NE(found.error().code, 0);
    ASSERT_EQ(Console::captured().size(), 1);
    EXPECT_TRUE(Console::captured().first().startsWith("Could not fetch. "));
}
