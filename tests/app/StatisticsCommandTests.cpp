#include "Program.h"
#include "TestSupport.h"
#include "model/PersistentContainer.h"
#include "model/Records.h"
#include "model/ValueHistory.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
// The three figures worked out from an exchange file itself: its lines, quantities (field 11)
// and values (field 16, a 32-bit float as the store keeps it).
QString expectedFrom(const QByteArray& file) {
    qint64 coins = 0, pieces = 0;
    double value = 0;
    for (const QByteArray& line : file.split('\n')) {
        const QList<QByteArray> fields = line.split('^');
        if (fields.size() < 17)
            continue;
        ++coins;
        const int quantity = fields[11].toInt();
        pieces += quantity;
        value += double(quantity) * double(fields[16].toFloat());
    }
    return QStringLiteral("Coins: %1\nPieces: %2\nTotal value: %3\n")
        .arg(coins)
        .arg(pieces)
        .arg(QString::number(value, 'f', 2));
}
} // namespace

// Scripts read the collection's totals in a fixed form, with no display.
TEST_F(PelvaneTest, StatsPrintsTheCollectionsThreeFigures) {
    const QString store = dir() + "/store";
    ProgramRun r = runProgram(store, {"--stats"});
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, "Coins: 0\nPieces: 0\nTotal value: 0.00\n");

    const QString sample = PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv";
    ASSERT_EQ(runProgram(store, {"--import", sample}).exitCode, 0);
    // A negative quantity takes its pieces and its value away.
    writeFile(dir() + "/more.csv", "[PELVANE]\nRome^1 As^^^0.0^^^^^^^-2^^^0.0^0.0^1.25^0.0^-5^^\n");
    ASSERT_EQ(runProgram(store, {"--import", dir() + "/more.csv"}).exitCode, 0);
    r = runProgram(store, {"--stats"});
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_TRUE(r.errors.isEmpty()) << r.errors.toStdString();
    EXPECT_EQ(r.output, expectedFrom(readFile(sample) + readFile(dir() + "/more.csv")));
    EXPECT_TRUE(r.output.startsWith("Coins: 41\n")) << r.output.toStdString();

    // One command at a time.
    r = runProgram(store, {"--stats", "--export", dir() + "/x.csv"});
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(r.errors.startsWith("pelvane: --export and --stats cannot be combined."));
    EXPECT_TRUE(runProgram(QStringList{"--help"}).output.contains("--stats"));

    // A collection that cannot be read is said to be so, never counted as empty.
    writeFile(store + "/Pelvane.sqlite", QByteArray(8192, 'x'));
    QFile::remove(store + "/Pelvane.sqlite-wal");
    r = runProgram(store, {"--stats"});
    EXPECT_NE(r.exitCode, 0);
    EXPECT_TRUE(r.output.isEmpty()) << r.output.toStdString();
}

// The value per day, as scripts chart it: one row per day with a saved change, the state at
// the end of that day, the last row the collection --stats sums.
TEST_F(PelvaneTest, ValueHistoryWritesOneRowPerDayOfChanges) {
    const QString store = dir() + "/store";
    QDateTime now(QDate(2025, 12, 30), QTime(23, 0));
    ValueHistory::setClock([&now] { return now; });
    {
        PersistentContainer::setDefaultDirectory(store);
        PersistentContainer container(QStringLiteral("Pelvane"));
        container.loadPersistentStores({});
        ManagedObjectContext& ctx = *container.viewContext();
        auto a = ctx.insert<Coins>();
        a->setDenomination("1 Florin");
        a->setQuantity(2);
        a->setValue(1.1f);
        ASSERT_TRUE(ctx.save().ok());
        now = now.addSecs(7200); // past midnight: the next day
        auto b = ctx.insert<Coins>();
        b->setDenomination("Crown");
        b->setQuantity(1);
        b->setValue(20);
        ASSERT_TRUE(ctx.save().ok());
        now = now.addDays(3);
        a->setQuantity(5);
        ASSERT_TRUE(ctx.save().ok());
    }
    ValueHistory::setClock({});
    const QString csv = dir() + "/history.csv";
    ProgramRun r = runProgram(store, {"--value-history", csv});
    ASSERT_EQ(r.exitCode, 0) << r.errors.toStdString();
    EXPECT_EQ(readFile(csv), "date,pieces,total_value\n2025-12-30,2,2.20\n2025-12-31,3,22.20\n"
                             "2026-01-03,6,25.50\n");
    EXPECT_EQ(runProgram(store, {"--stats"}).output, "Coins: 2\nPieces: 6\nTotal value: 25.50\n");

    // A folder is no file to write: refused, named, and left as it is.
    QDir().mkpath(dir() + "/folder");
    r = runProgram(store, {"--value-history", dir() + "/folder"});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.errors.contains(dir() + "/folder")) << r.errors.toStdString();
    EXPECT_TRUE(QFileInfo(dir() + "/folder").isDir());
    r = runProgram(store, {"--value-history", csv, "--stats"});
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(runProgram(QStringList{"--help"}).output.contains("--value-history FILE"));
}

// The clock set back between imports: the days follow the order the changes were saved in, so
// no day shows fewer pieces or less value than the changes allow, and the last row is still
// what --stats sums.
TEST_F(PelvaneTest, ValueHistoryFollowsTheChangesWhenTheClockIsSetBack) {
    const QString faketime = QStandardPaths::findExecutable("faketime");
    if (faketime.isEmpty())
        GTEST_SKIP() << "faketime is not installed";
    const QString store = dir() + "/store";
    // Country, denomination, year, quantity and value of each coin on its line; every key is
    // given, since an empty one matches no stored coin.
    auto importAt = [&](const char* when, const QList<QStringList>& coins) {
        QByteArray file = "[PELVANE]\n";
        for (const QStringList& c : coins) {
            QList<QByteArray> fields(21);
            fields[0] = c[0].toUtf8();
            fields[1] = c[1].toUtf8();
            fields[8] = "M";
            fields[18] = c[2].toUtf8();
            fields[11] = c[3].toUtf8();
            fields[16] = c[4].toUtf8();
            file += fields.join('^') + '\n';
        }
        const QString path = dir() + "/import.csv";
        writeFile(path, file);
        const ProgramRun r = runProgram(store, {"--import", path}, {faketime, when});
        EXPECT_EQ(r.exitCode, 0) << when << ": " << r.errors.toStdString();
    };
    importAt("2026-06-01 12:00:00",
             {{"Chile", "10 Pesos", "1990", "5", "2.0"}, {"Peru", "1 Sol", "1991", "2", "1.5"}});
    // A month back: four pieces fewer of the first coin, each worth more.
    importAt("2026-05-01 12:00:00", {{"Chile", "10 Pesos", "1990", "1", "3.0"}});
    importAt("2026-05-20 12:00:00", {{"Peru", "1 Sol", "1991", "4", "1.5"}});
    // And forward again.
    importAt("2026-06-03 12:00:00", {{"Rome", "1 As", "-5", "1", "4.0"}});

    const QString csv = dir() + "/history.csv";
    const ProgramRun r = runProgram(store, {"--value-history", csv});
    ASSERT_EQ(r.exitCode, 0) << r.errors.toStdString();
    EXPECT_EQ(readFile(csv), "date,pieces,total_value\n2026-06-01,5,9.00\n2026-06-03,6,13.00\n");
    EXPECT_EQ(runProgram(store, {"--stats"}).output, "Coins: 3\nPieces: 6\nTotal value: 13.00\n");
}

// --undo takes back the last change and says which; --changes lists the steps newest first with
// the undone marked; the value history's last row still equals --stats after each undo; neither
// runs with another command.
TEST_F(PelvaneTest, UndoAndChangesFromTheCommandLine) {
    const QString store = dir() + "/store";
    ASSERT_EQ(runProgram(store, {"--import", kSampleFile}).exitCode, 0);
    {
        PersistentContainer::setDefaultDirectory(store);
        PersistentContainer container(QStringLiteral("Pelvane"));
        container.loadPersistentStores({});
        ManagedObjectContext& ctx = *container.viewContext();
        FetchRequest request(QStringLiteral("Coins"));
        request.sortDescriptors = {{QStringLiteral("denomination"), true}};
        const QList<CoinPtr> coins = ctx.fetch<Coins>(request);
        ASSERT_GE(coins.size(), 2);
        coins[0]->setQuantity(9);
        ASSERT_TRUE(ctx.save().ok());
        ctx.deleteObject(coins[1]);
        ASSERT_TRUE(ctx.save().ok());
    }
    const QString csv = dir() + "/history.csv";
    auto lastDayMatchesStats = [&] {
        ASSERT_EQ(runProgram(store, {"--value-history", csv}).exitCode, 0);
        const QStringList last =
            QString::fromUtf8(readFile(csv)).trimmed().split('\n').last().split(',');
        const QStringList stats = runProgram(store, {"--stats"}).output.split('\n');
        EXPECT_EQ("Pieces: " + last.value(1), stats.value(1));
        EXPECT_EQ("Total value: " + last.value(2), stats.value(2));
    };
    lastDayMatchesStats();

    ProgramRun r = runProgram(store, {"--undo"});
    EXPECT_EQ(r.exitCode, 0) << qPrintable(r.errors);
    EXPECT_TRUE(r.output.startsWith("Undid the Delete of ")) << qPrintable(r.output);
    lastDayMatchesStats();
    r = runProgram(store, {"--undo"});
    EXPECT_TRUE(r.output.startsWith("Undid the Edit of ")) << qPrintable(r.output);
    lastDayMatchesStats();

    r = runProgram(store, {"--changes"});
    EXPECT_EQ(r.exitCode, 0);
    QStringList lines = r.output.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 5) << qPrintable(r.output);
    for (QString& line : lines)
        line = line.section("  ", 1);
    EXPECT_TRUE(lines[0].startsWith("Undid the Edit of "));
    EXPECT_TRUE(lines[2].startsWith("Deleted ") && lines[2].endsWith("  (undone)"));
    EXPECT_EQ(lines[4], "Imported Pelvane-sample.csv: 40 created, 0 updated");

    ASSERT_EQ(runProgram(store, {"--undo"}).exitCode, 0);
    r = runProgram(store, {"--undo"});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.errors.contains("There is nothing to undo.")) << qPrintable(r.errors);
    EXPECT_EQ(runProgram(store, {"--stats"}).output, "Coins: 0\nPieces: 0\nTotal value: 0.00\n");
    lastDayMatchesStats();

    for (const QStringList& both :
         {QStringList{"--undo", "--changes"}, QStringList{"--changes", "--stats"},
          QStringList{"--undo", "--export", csv}}) {
        r = runProgram(store, both);
        EXPECT_EQ(r.exitCode, 2) << qPrintable(both.join(' '));
        EXPECT_TRUE(r.errors.contains("cannot be combined")) << qPrintable(r.errors);
    }
}

// A journal written before its steps and rows shared one table is carried over whole: the same
// steps in the same states, and undo reaches back through them (the second import was undone
// and stays ready to redo; undoing now takes back the first import, pictures included).
TEST_F(PelvaneTest, AJournalOfTheEarlierLayoutIsCarriedOver) {
    const QString store = dir() + "/store";
    QDir().mkpath(store);
    const QString file = store + "/Pelvane.sqlite";
    ASSERT_TRUE(QFile::copy(PELVANE_TEST_DATA "/stores/written-by-schema-5.sqlite", file));
    QFile(file).setPermissions(QFile::ReadOwner | QFile::WriteOwner);

    ProgramRun r = runProgram(store, {"--changes"});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.errors);
    QStringList lines = r.output.trimmed().split('\n');
    for (QString& line : lines)
        line = line.section("  ", 1);
    EXPECT_EQ(
        lines,
        QStringList({"Undid the Import of b.csv", "Imported b.csv: 3 created, 0 updated  (undone)",
                     "Undid the Import of b.csv", "Imported b.csv: 3 created, 0 updated  (undone)",
                     "Imported a.csv: 3 created, 0 updated"}));
    EXPECT_EQ(runProgram(store, {"--stats"}).output.section('\n', 0, 0), "Coins: 3");

    r = runProgram(store, {"--undo"});
    EXPECT_EQ(r.output, "Undid the Import of a.csv\n") << qPrintable(r.errors);
    EXPECT_EQ(runProgram(store, {"--stats"}).output.section('\n', 0, 0), "Coins: 0");
    OtherConnection raw(file);
    EXPECT_EQ(raw.number("SELECT count(*) FROM Coins_pictures"), 0);
    EXPECT_EQ(raw.number("PRAGMA user_version"), PersistentContainer::SchemaVersion);
    EXPECT_EQ(raw.number("SELECT count(*) FROM sqlite_master WHERE name LIKE 'Journal_%' AND "
                         "type = 'table'"),
              0);
}
