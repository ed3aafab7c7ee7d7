// The rescue paths through the program as scripts run it: no output lands on the collection,
// restore works whatever state the collection is in and while others wait for it, one writer at
// a time, and backups that know when they were changed.
#include "Program.h"
#include "TestSupport.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QThread>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// The program started with extra environment, left running.
std::unique_ptr<QProcess> startProgram(const QString& dataDir, const QStringList& arguments,
                                       const QMap<QString, QString>& environment) {
    auto program = std::make_unique<QProcess>();
    program->setProcessEnvironment(programEnvironment(environment));
    program->start(QStringLiteral(PELVANE_BINARY),
                   QStringList{QStringLiteral("--data-dir"), dataDir} + arguments);
    EXPECT_TRUE(program->waitForStarted());
    return program;
}

// Waits until the file exists (a program got that far).
bool appears(const QString& file) {
    QElapsedTimer t;
    t.start();
    while (!QFileInfo::exists(file) && t.elapsed() < 20000)
        QThread::msleep(10);
    return QFileInfo::exists(file);
}

QStringList hiddenParts(const QString& folder) {
    return QDir(folder).entryList({".*.part*"}, QDir::Files | QDir::Hidden);
}

// What --backups lists first: the newest snapshot's path.
QString newestSnapshot(const QString& dataDir) {
    const ProgramRun run = runProgram(dataDir, {"--backups"});
    EXPECT_EQ(run.exitCode, 0);
    const QString first = run.output.section('\n', 0, 0);
    return first.section("  ", -1).trimmed();
}
} // namespace

// Every file the program writes refuses the collection's own files, however it is named, and the
// collection stays whole.
TEST_F(PelvaneTest, OutputsNeverLandOnTheCollection) {
    const QString store = sampleCollection(path("a"));
    ASSERT_EQ(runProgram(path("a"), {"--backup", path("a/Backups/kept.sqlite")}).exitCode, 1);
    const QByteArray before = storeDump(store);
    ASSERT_TRUE(QFile::link(store, path("link.sqlite")));
    ASSERT_TRUE(QFile::link(path("a/Pelvane.sqlite-wal"), path("dangling")));
    ASSERT_EQ(::link(qPrintable(store), qPrintable(path("hard.sqlite"))), 0);
    QDir().mkpath(path("a/Backups"));
    const QStringList targets = {store,
                                 path("link.sqlite"),
                                 path("hard.sqlite"),
                                 path("dangling"),
                                 path("a/../a/Pelvane.sqlite-shm"),
                                 path("a/Pelvane.sqlite-journal"),
                                 path("a/Pelvane.sqlite.lock"),
                                 path("a/Backups/Pelvane-2020-01-01.sqlite")};
    const QList<QStringList> commands = {
        {"--value-history"}, {"--export"}, {"--report", "country", "USA", "--pdf"}, {"--backup"}};
    for (const QStringList& command : commands)
        for (const QString& target : targets) {
            SCOPED_TRACE(qPrintable(command.first() + " " + target));
            const ProgramRun run = runProgram(path("a"), command + QStringList{target});
            EXPECT_EQ(run.exitCode, 1);
            EXPECT_TRUE(run.errors.contains("it is the collection's own file") ||
                        run.errors.contains("it is in the collection's snapshot folder"))
                << qPrintable(run.errors);
        }
    EXPECT_EQ(storeDump(store), before);
    EXPECT_FALSE(QFileInfo::exists(path("a/Pelvane.sqlite-journal")));
    EXPECT_EQ(QDir(path("a/Backups")).entryList(QDir::Files).size(), 0);
    // Elsewhere they still write.
    EXPECT_EQ(runProgram(path("a"), {"--value-history", path("history.csv")}).exitCode, 0);
    EXPECT_EQ(runProgram(path("a"), {"--backup", path("copy.sqlite")}).exitCode, 0);
}

// The recovery the README gives: with the collection file damaged (or cut short, or gone), list
// the snapshots and restore the newest. The damaged file is moved aside whole, never deleted.
TEST_F(PelvaneTest, RestoreWorksOnADamagedTruncatedOrMissingStore) {
    const QString store = sampleCollection(path("a"));
    // The restore keeps the collection as it was: the snapshot to go back to.
    ASSERT_EQ(runProgram(path("a"), {"--backup", path("good.sqlite")}).exitCode, 0);
    ASSERT_EQ(runProgram(path("a"), {"--restore", path("good.sqlite")}).exitCode, 0);
    const QByteArray whole = storeDump(store, Dump::WithoutJournal);

    struct Damage {
        const char* name;
        std::function<void()> apply;
    };
    const QList<Damage> damages = {
        {"a page overwritten", [&] { damagePage(store, "Coins_pictures"); }},
        {"the header overwritten",
         [&] {
             QFile f(store);
             ASSERT_TRUE(f.open(QIODevice::ReadWrite));
             f.write(QByteArray(100, '\x42'));
         }},
        {"cut short", [&] { ASSERT_TRUE(QFile(store).resize(QFileInfo(store).size() / 3)); }},
        {"gone", [&] { ASSERT_TRUE(QFile::remove(store)); }},
    };
    for (const Damage& damage : damages) {
        SCOPED_TRACE(damage.name);
        damage.apply();
        const QByteArray damaged = readFile(store);
        const QString snapshot = newestSnapshot(path("a"));
        ASSERT_TRUE(snapshot.contains("/Backups/Pelvane-")) << qPrintable(snapshot);
        const ProgramRun run = runProgram(path("a"), {"--restore", snapshot});
        EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
        EXPECT_EQ(storeDump(store, Dump::WithoutJournal), whole);
        EXPECT_EQ(runProgram(path("a"), {"--stats"}).output.section('\n', 0, 0), "Coins: 41");
        const QStringList aside = QDir(path("a")).entryList({"Pelvane-damaged-*.sqlite"});
        if (QString(damage.name) == "gone") {
            EXPECT_TRUE(run.output.contains("the collection held 0 coins"))
                << qPrintable(run.output);
            continue;
        }
        EXPECT_TRUE(run.output.contains("the damaged collection was moved to " + path("a") +
                                        "/Pelvane-damaged-"))
            << qPrintable(run.output);
        ASSERT_FALSE(aside.isEmpty());
        EXPECT_EQ(readFile(path("a/") + aside.last()), damaged);
        for (const QString& f : aside)
            QFile::rename(path("a/") + f, path("kept-") + f);
    }
}

// A restore holds the collection from its first check to its last rename: an import started
// meanwhile waits for it and then goes into the restored collection, or gives up naming the
// restore; it never writes into the file that is about to go. A restore killed half-way leaves
// the collection as it was and nothing behind.
TEST_F(PelvaneTest, NothingWritesBetweenARestoresSteps) {
    const QString store = sampleCollection(path("a"));
    ASSERT_EQ(runProgram(path("a"), {"--backup", path("backup.sqlite")}).exitCode, 0);
    ASSERT_EQ(OtherConnection(store).exec("DELETE FROM Coins WHERE pk > 5"), 0);
    // Coins of a country the collection does not have, and how many they make on their own.
    OtherConnection(sampleCollection(path("c"))).exec("UPDATE Coins SET country = 'Raced'");
    ASSERT_EQ(runProgram(path("c"), {"--export", path("new.csv")}).exitCode, 0);
    ASSERT_EQ(runProgram(path("d"), {"--import", path("new.csv")}).exitCode, 0);
    const qint64 raced =
        OtherConnection(path("d/Pelvane.sqlite")).number("SELECT count(*) FROM Coins");
    ASSERT_GT(raced, 30);

    auto safetyCopies = [this](qsizetype n) {
        QElapsedTimer t;
        t.start();
        while (QDir(path("a/Backups")).entryList({"*before-restore*"}).size() < n &&
               t.elapsed() < 20000)
            QThread::msleep(10);
        return QDir(path("a/Backups")).entryList({"*before-restore*"}).size() == n;
    };

    // The import waits out the restore, then merges into what was restored.
    auto restore = startProgram(path("a"), {"--restore", path("backup.sqlite")},
                                {{"PELVANE_TEST_PAUSE", "restore-swap:1500"}});
    ASSERT_TRUE(appears(path("a/Backups")));
    ProgramRun imported = runProgram(path("a"), {"--import", path("new.csv")});
    EXPECT_EQ(finishRun(*restore).exitCode, 0);
    EXPECT_EQ(imported.exitCode, 0) << qPrintable(imported.errors);
    EXPECT_EQ(OtherConnection(store).number("SELECT count(*) FROM Coins"), 41 + raced);
    EXPECT_EQ(OtherConnection(store).number("SELECT count(*) FROM Coins WHERE country = 'Raced'"),
              raced);

    // Told to wait less than the restore takes, it says who holds the collection.
    restore = startProgram(path("a"), {"--restore", path("backup.sqlite")},
                           {{"PELVANE_TEST_PAUSE", "restore-swap:3000"}});
    // Its safety copy is written once it holds the collection, just before the pause.
    ASSERT_TRUE(safetyCopies(2));
    auto quick =
        startProgram(path("a"), {"--import", path("new.csv")}, {{"PELVANE_LOCK_WAIT_MS", "100"}});
    imported = finishRun(*quick);
    EXPECT_EQ(imported.exitCode, 1);
    EXPECT_TRUE(imported.errors.contains("in use by a restore from " + path("backup.sqlite")) ||
                imported.errors.contains("pelvane --restore " + path("backup.sqlite")))
        << qPrintable(imported.errors);
    EXPECT_EQ(finishRun(*restore).exitCode, 0);
    EXPECT_EQ(OtherConnection(store).number("SELECT count(*) FROM Coins"), 41);

    // Killed between the safety copy and the rename: the collection as it was, and the copy it
    // had made goes at the next start.
    ASSERT_EQ(OtherConnection(store).exec("DELETE FROM Coins WHERE pk > 7"), 0);
    const QByteArray before = storeDump(store);
    restore = startProgram(path("a"), {"--restore", path("backup.sqlite")},
                           {{"PELVANE_TEST_PAUSE", "restore-swap:20000"}});
    ASSERT_TRUE(safetyCopies(3));
    ASSERT_FALSE(hiddenParts(path("a")).isEmpty());
    ::kill(pid_t(restore->processId()), SIGKILL);
    restore->waitForFinished();
    EXPECT_EQ(storeDump(store), before);
    EXPECT_EQ(runProgram(path("a"), {"--stats"}).exitCode, 0);
    EXPECT_TRUE(hiddenParts(path("a")).isEmpty()) << qPrintable(hiddenParts(path("a")).join(","));
    // Three restores, three safety copies: none took another's name.
    EXPECT_EQ(QDir(path("a/Backups")).entryList({"*before-restore*"}).size(), 3);
}

// One writer: a second window on the collection goes, saying where it is open; an import waits,
// then names the window; reading commands go on beside it.
TEST_F(PelvaneTest, OneWindowAndOneWriterAtATime) {
    sampleCollection(path("a"));
    auto window = startProgram(path("a"), {}, {{"QT_QPA_PLATFORM", "offscreen"}});
    QElapsedTimer t;
    t.start();
    while (!readFile(path("a/Pelvane.sqlite.lock")).contains("window") && t.elapsed() < 20000)
        QThread::msleep(10);
    auto second = startProgram(path("a"), {}, {{"QT_QPA_PLATFORM", "offscreen"}});
    const ProgramRun refused = finishRun(*second);
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.errors.contains("in use by Pelvane's window (process " +
                                        QString::number(window->processId()) + ")"))
        << qPrintable(refused.errors);
    auto import =
        startProgram(path("a"), {"--import", kSampleFile}, {{"PELVANE_LOCK_WAIT_MS", "200"}});
    const ProgramRun waited = finishRun(*import);
    EXPECT_EQ(waited.exitCode, 1);
    EXPECT_TRUE(waited.errors.contains("Pelvane's window")) << qPrintable(waited.errors);
    EXPECT_EQ(runProgram(path("a"), {"--export", path("out.csv")}).exitCode, 0);
    EXPECT_EQ(runProgram(path("a"), {"--backup", path("copy.sqlite")}).exitCode, 0);
    window->kill();
    window->waitForFinished();
    // The kernel let go of the killed window's lock.
    EXPECT_EQ(runProgram(path("a"), {"--import", kSampleFile}).exitCode, 0);
}

// A backup knows when a byte of it changed: a restore refuses it with the reason and the
// collection stays, or (a byte no row reads) restores exactly what was backed up.
TEST_F(PelvaneTest, ABackupWithAByteChangedIsNeverRestoredSilently) {
    const QString store = sampleCollection(path("a"));
    ASSERT_EQ(runProgram(path("a"), {"--backup", path("good.sqlite")}).exitCode, 0);
    const QByteArray original = storeDump(store, Dump::WithoutJournal);
    const QByteArray good = readFile(path("good.sqlite"));
    // A byte of a picture, of a history row and of a coin's text.
    QList<qsizetype> offsets = {good.indexOf("\xFF\xD8\xFF") + 200, good.indexOf("Sample coin") + 2,
                                good.indexOf("Brien") + 1};
    QRandomGenerator random(7);
    for (int i = 0; i < 25; ++i)
        offsets << qsizetype(random.bounded(qint64(100), qint64(good.size())));
    int refused = 0;
    for (const qsizetype at : offsets) {
        SCOPED_TRACE(at);
        ASSERT_GT(at, 99);
        QByteArray changed = good;
        changed[at] = char(changed[at] ^ 0x01);
        writeFile(path("changed.sqlite"), changed);
        ASSERT_EQ(OtherConnection(store).exec("UPDATE Coins SET notes = 'after' WHERE pk = 3"), 0);
        const QByteArray current = storeDump(store);
        const ProgramRun run = runProgram(path("a"), {"--restore", path("changed.sqlite")});
        if (run.exitCode == 1) {
            ++refused;
            EXPECT_EQ(storeDump(store), current);
        } else {
            EXPECT_EQ(run.exitCode, 0);
            EXPECT_EQ(storeDump(store, Dump::WithoutJournal), original) << qPrintable(run.output);
        }
        EXPECT_EQ(readFile(path("changed.sqlite")), changed);
    }
    EXPECT_GE(refused, 3);
    const ProgramRun picture = [&] {
        QByteArray changed = good;
        changed[offsets.first()] = char(changed[offsets.first()] ^ 0x01);
        writeFile(path("changed.sqlite"), changed);
        return runProgram(path("a"), {"--restore", path("changed.sqlite")});
    }();
    EXPECT_TRUE(picture.errors.contains("does not match its checksum"))
        << qPrintable(picture.errors);
}

// What a restore leaves as it found it: a backup in WAL mode with its log (neither is changed),
// a collection that is a symlink (the file it names takes the backup, with its permissions), and
// what killed backups left half-written.
TEST_F(PelvaneTest, RestoreLeavesTheGivenFileTheLinkAndTheModeAlone) {
    const QString store = sampleCollection(path("a"));
    const QString wal = path("wal.sqlite");
    ASSERT_TRUE(QFile::copy(store, wal));
    auto writer = std::make_unique<OtherConnection>(wal);
    ASSERT_EQ(writer->exec("PRAGMA journal_mode=WAL; PRAGMA wal_autocheckpoint=0;"
                           "UPDATE Coins SET notes = 'only in the log' WHERE pk = 2"),
              0);
    const QByteArray file = readFile(wal), log = readFile(wal + "-wal");
    ASSERT_FALSE(log.isEmpty());
    QDir().mkpath(path("elsewhere"));
    QDir().mkpath(path("b"));
    ASSERT_TRUE(QFile::copy(store, path("elsewhere/real.sqlite")));
    ASSERT_EQ(::chmod(qPrintable(path("elsewhere/real.sqlite")), 0640), 0);
    ASSERT_TRUE(QFile::link(path("elsewhere/real.sqlite"), path("b/Pelvane.sqlite")));
    // Left by killed backups, beside the backup and beside the collection.
    writeFile(path(".x.sqlite.AbC123.part"), QByteArray(4096, 'x'));
    writeFile(path("elsewhere/.real.sqlite.XyZ789.part"), QByteArray(4096, 'x'));

    const ProgramRun run = runProgram(path("b"), {"--restore", wal});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_EQ(readFile(wal), file);
    EXPECT_EQ(readFile(wal + "-wal"), log);
    writer.reset();
    EXPECT_TRUE(QFileInfo(path("b/Pelvane.sqlite")).isSymLink());
    EXPECT_EQ(OtherConnection(path("elsewhere/real.sqlite"))
                  .number("SELECT count(*) FROM Coins WHERE notes = 'only in the log'"),
              1);
    struct stat info {};
    ASSERT_EQ(::stat(qPrintable(path("elsewhere/real.sqlite")), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0640u);
    EXPECT_TRUE(hiddenParts(path("elsewhere")).isEmpty());
    ASSERT_EQ(runProgram(path("b"), {"--backup", path("x.sqlite")}).exitCode, 0);
    EXPECT_TRUE(hiddenParts(dir()).isEmpty());
}
