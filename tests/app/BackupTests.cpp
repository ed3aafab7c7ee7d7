#include "Program.h"
#include "TestSupport.h"
#include "model/PersistentContainer.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <sqlite3.h>
#include <sys/stat.h>

// A backup is the store, exact: texts the exchange file changes, doubles, both pictures, and two
// coins that share every import key come back as they were, in a new folder or over a collection
// that changed, which is kept as a snapshot first.
TEST_F(PelvaneTest, BackupAndRestoreAreExact) {
    const QString store = sampleCollection(path("a"));
    // A change still in the log of a program that has the store open goes with the backup.
    auto writer = std::make_unique<OtherConnection>(store);
    ASSERT_EQ(writer->exec("PRAGMA wal_autocheckpoint=0;"
                           "UPDATE Coins SET notes = 'only in the log' WHERE pk = 2"),
              SQLITE_OK);
    const QByteArray original = storeDump(store);
    ASSERT_TRUE(original.contains("Coins_pictures"));
    ASSERT_TRUE(original.contains(QByteArray("only in the log").toBase64()));

    ProgramRun run = runProgram(path("a"), {"--backup", path("copy.sqlite")});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_EQ(run.output, "Backed up 41 coins to " + path("copy.sqlite") + "\n");
    EXPECT_FALSE(QFileInfo::exists(path("copy.sqlite-wal")));
    writer.reset();
    // And one of a store nobody has open, copied as its file.
    ASSERT_EQ(runProgram(path("a"), {"--backup", path("closed.sqlite")}).exitCode, 0);
    EXPECT_EQ(storeDump(path("closed.sqlite")), original);

    run = runProgram(path("b"), {"--restore", path("copy.sqlite")});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_EQ(storeDump(path("b/Pelvane.sqlite")), original);
    EXPECT_EQ(OtherConnection(path("b/Pelvane.sqlite")).number("PRAGMA application_id"),
              0x50656C76);

    // Over a collection that changed since: that one is kept.
    ASSERT_EQ(OtherConnection(store).exec("DELETE FROM Coins WHERE pk > 10"), SQLITE_OK);
    const QByteArray changed = storeDump(store);
    run = runProgram(path("a"), {"--restore", path("copy.sqlite")});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_TRUE(run.output.startsWith("Restored 41 coins from " + path("copy.sqlite") +
                                      "; the collection held 10 coins, kept in " +
                                      path("a/Backups/Pelvane-")))
        << qPrintable(run.output);
    // The same collection and history, and one step more: the restore, which can be undone.
    EXPECT_EQ(storeDump(store, Dump::WithoutJournal),
              storeDump(path("copy.sqlite"), Dump::WithoutJournal));
    EXPECT_EQ(runProgram(path("a"), {"--changes"}).output.section('\n', 0, 0).section("  ", 1),
              "Restored copy.sqlite");
    const QStringList kept = QDir(path("a/Backups")).entryList({"*before-restore*.sqlite"});
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(storeDump(path("a/Backups/") + kept.first()), changed);
    // The restore is one change: undone, the collection is the one it replaced.
    run = runProgram(path("a"), {"--undo"});
    EXPECT_EQ(run.output, "Undid the Restore of copy.sqlite\n") << qPrintable(run.errors);
    EXPECT_EQ(storeDump(store, Dump::Collection),
              storeDump(path("a/Backups/") + kept.first(), Dump::Collection));
    EXPECT_EQ(runProgram(path("a"), {"--stats"}).output.section('\n', 0, 0), "Coins: 10");

    run = runProgram(path("a"), {"--backups"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.output.contains(QDate::currentDate().toString(Qt::ISODate) + "      10 coins"))
        << qPrintable(run.output);

    // An older schema is brought forward on the copy; the file given is never changed.
    const QString old = path("schema1.sqlite");
    ASSERT_TRUE(QFile::copy(PELVANE_TEST_DATA "/stores/written-by-schema-1.sqlite", old));
    const QByteArray oldBytes = readFile(old);
    run = runProgram(path("c"), {"--restore", old});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_EQ(readFile(old), oldBytes);
    EXPECT_EQ(OtherConnection(path("c/Pelvane.sqlite")).number("PRAGMA user_version"),
              PersistentContainer::SchemaVersion);
}

// What is no whole Pelvane store is refused with the reason, and the collection stays as it was.
TEST_F(PelvaneTest, RestoreRefusesWhatIsNoWholeBackup) {
    const QString store = sampleCollection(path("a"));
    ASSERT_EQ(runProgram(path("a"), {"--backup", path("good.sqlite")}).exitCode, 0);
    const QByteArray before = readFile(store);

    struct Case {
        const char* name;
        std::function<void(const QString&)> make;
        const char* reason;
    };
    const QList<Case> cases = {
        {"random.bin", [](const QString& f) { writeFile(f, QByteArray(5000, '\x5A')); },
         "is not a Pelvane backup: it is no SQLite database"},
        {"foreign.db",
         [](const QString& f) {
             OtherConnection(f).exec("CREATE TABLE notes(a); PRAGMA user_version=2");
         },
         "is not a Pelvane backup: it is the database of another program"},
        {"other-program.db",
         [](const QString& f) {
             OtherConnection(f).exec("CREATE TABLE t(a); PRAGMA application_id=7");
         },
         "it is the database of another program"},
        {"newer.sqlite",
         [this](const QString& f) {
             QFile::copy(path("good.sqlite"), f);
             OtherConnection(f).exec("PRAGMA user_version=9");
         },
         "was written by a newer Pelvane (store version 9; this one reads up to 7)"},
        {"no-notes.sqlite",
         [this](const QString& f) {
             QFile::copy(path("good.sqlite"), f);
             OtherConnection(f).exec("ALTER TABLE Coins DROP COLUMN notes");
         },
         "is not a whole Pelvane backup: the table Coins has no column notes"},
        {"damaged.sqlite",
         [this](const QString& f) {
             QFile::copy(path("good.sqlite"), f);
             damagePage(f, "Coins_pictures");
         },
         "is damaged"},
        {"folder", [](const QString& f) { QDir().mkpath(f); }, "is not a regular file"},
        {"missing.sqlite", [](const QString&) {}, "does not exist"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const QString file = path(c.name);
        c.make(file);
        const ProgramRun run = runProgram(path("a"), {"--restore", file});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(run.errors.startsWith("The restore of " + store + " from " + file +
                                          " failed: " + file));
        EXPECT_TRUE(run.errors.contains(c.reason)) << qPrintable(run.errors);
        EXPECT_EQ(readFile(store), before);
    }
    EXPECT_FALSE(QDir(path("a/Backups")).exists()); // nothing was about to be replaced

    // Another program that has the collection open (not one of Pelvane's, which wait for the
    // lock) would lay its log over the restored file.
    {
        OtherConnection window(store);
        ASSERT_EQ(window.number("SELECT count(*) FROM Coins"), 41);
        const ProgramRun run = runProgram(path("a"), {"--restore", path("good.sqlite")});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.errors, "The restore of " + store + " from " + path("good.sqlite") +
                                  " failed: The collection is open in another program: close "
                                  "it and try again\n");
    }
    EXPECT_EQ(readFile(store), before);
    EXPECT_FALSE(QDir(path("a/Backups")).exists());
}

// A backup is written only to a regular file, never over the collection itself, and never as an
// empty collection over a backup that holds coins (a mistyped data folder).
TEST_F(PelvaneTest, BackupKeepsWhatItMustNotReplace) {
    sampleCollection(path("a"));
    ASSERT_EQ(::mkfifo(qPrintable(path("fifo")), 0600), 0);
    QDir().mkpath(path("folder"));
    for (const QString& target : {path("fifo"), path("folder")}) {
        const ProgramRun run = runProgram(path("a"), {"--backup", target});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.errors, "The backup of " + path("a/Pelvane.sqlite") + " to " + target +
                                  " failed: Cannot write " + target +
                                  ": it is not a regular file\n");
    }
    struct stat info {};
    ASSERT_EQ(::stat(qPrintable(path("fifo")), &info), 0);
    EXPECT_TRUE(S_ISFIFO(info.st_mode));

    ProgramRun run = runProgram(path("a"), {"--backup", path("a/Pelvane.sqlite")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("it is the collection's own file")) << qPrintable(run.errors);

    ASSERT_EQ(runProgram(path("a"), {"--backup", path("full.sqlite")}).exitCode, 0);
    const QByteArray full = readFile(path("full.sqlite"));
    ASSERT_EQ(runProgram(path("empty"), {"--export", path("empty.csv")}).exitCode, 0);
    run = runProgram(path("empty"), {"--backup", path("full.sqlite")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("the collection is empty and the backup holds 41 coins"))
        << qPrintable(run.errors);
    EXPECT_EQ(readFile(path("full.sqlite")), full);
}

// A backup that cannot be written says the real cause and leaves nothing in the target's
// folder: a disk that fills up while the copy is made, a name longer than a folder takes. A long
// name that a folder does take is written, its temporary name beside it cut to fit.
TEST_F(PelvaneTest, ABackupThatCannotBeWrittenSaysWhy) {
    const QString store = sampleCollection(path("a"));
    QDir().mkpath(path("out"));
    const QString longest = path("out/") + QString(255 - 7, 'b') + ".sqlite";
    ProgramRun run = runProgram(path("a"), {"--backup", longest});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_EQ(QDir(path("out")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{QFileInfo(longest).fileName()});
    // Two-byte characters: the temporary name is cut between them, never inside one.
    const QString accented = path("out/x") + QString(123, QChar(0xe9)) + ".sqlite";
    run = runProgram(path("a"), {"--backup", accented});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_TRUE(QFileInfo(accented).isFile());
    QFile::remove(accented);

    const QString tooLong = path("out/") + QString(256 - 7, 'c') + ".sqlite";
    run = runProgram(path("a"), {"--backup", tooLong});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "The backup of " + store + " to " + tooLong + " failed: Cannot write " +
                              tooLong + ": File name too long\n");
    EXPECT_EQ(QDir(path("out")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{QFileInfo(longest).fileName()});

    // A disk smaller than the collection, in a mount namespace of its own; what the folder
    // holds is listed before the namespace goes.
    const QString unshare = QStandardPaths::findExecutable(QStringLiteral("unshare"));
    if (unshare.isEmpty() || QProcess::execute(unshare, {"-rm", "true"}) != 0)
        GTEST_SKIP() << "no mount namespaces here";
    constexpr qint64 kDisk = 64 * 1024;
    ASSERT_GT(QFileInfo(store).size(), 2 * kDisk);
    QDir().mkpath(path("small"));
    const QString target = path("small/backup.sqlite");
    run = runProgram(path("a"), {"--backup", target},
                     {unshare, "-rm", "sh", "-c",
                      QStringLiteral("mount -t tmpfs -o size=%1 tmpfs \"$0\" || exit 99; \"$@\"; "
                                     "status=$?; echo \"left:$(ls -A \"$0\")\"; exit $status")
                          .arg(kDisk),
                      path("small")});
    EXPECT_EQ(run.exitCode, 1) << qPrintable(run.errors);
    EXPECT_TRUE(run.errors.startsWith("The backup of " + store + " to " + target + " failed: "))
        << qPrintable(run.errors);
    EXPECT_TRUE(run.errors.endsWith(": No space left on device\n")) << qPrintable(run.errors);
    EXPECT_EQ(run.output, "left:\n");
}
