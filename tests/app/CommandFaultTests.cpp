#include "Program.h"
#include "TestSupport.h"

#include <QBuffer>
#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {
const QString kSample = QStringLiteral(PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv");

// An exchange file of `count` coins of Chile, one denomination each, every key field given
// (an empty one never matches a stored coin).
QByteArray chileanCoins(int count) {
    QByteArray file = "[PELVANE]\n";
    for (int i = 0; i < count; ++i) {
        QList<QByteArray> fields(21);
        fields[0] = "Chile";
        fields[1] = QByteArray::number(i) + " Pesos";
        fields[8] = "So";
        fields[18] = "1990";
        file += fields.join('^') + '\n';
    }
    return file;
}

QString fileType(const QString& path) {
    struct stat info {};
    if (::stat(qPrintable(path), &info) != 0)
        return "missing";
    return S_ISFIFO(info.st_mode)  ? "fifo"
           : S_ISCHR(info.st_mode) ? "device"
           : S_ISDIR(info.st_mode) ? "folder"
                                   : "file";
}

// The program started as a child, for tests that act on the store while it runs.
struct Running {
    QProcess process;
    explicit Running(const QStringList& arguments, bool window = false) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        if (!window)
            env.remove("QT_QPA_PLATFORM");
        process.setProcessEnvironment(env);
        process.start(PELVANE_BINARY, arguments);
        EXPECT_TRUE(process.waitForStarted());
    }
    ProgramRun finish() {
        EXPECT_TRUE(process.waitForFinished(60000));
        ProgramRun run{process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                       QString::fromUtf8(process.readAllStandardOutput()),
                       QString::fromUtf8(process.readAllStandardError())};
        return run;
    }
};
} // namespace

// The export, the report and the backup write only regular files: a pipe, a folder or (for
// root) a device is refused with the reason and left as it was.
TEST_F(PelvaneTest, OutputsGoOnlyToRegularFiles) {
    ASSERT_EQ(runProgram(dir() + "/store", {"--import", kSample}).exitCode, 0);
    QStringList targets{path("fifo"), path("folder")};
    ASSERT_EQ(::mkfifo(qPrintable(path("fifo")), 0600), 0);
    QDir().mkpath(path("folder"));
    if (::mknod(qPrintable(path("device")), S_IFCHR | 0666, makedev(1, 3)) == 0)
        targets << path("device"); // a null device of our own, as root may make
    for (const QString& target : targets) {
        SCOPED_TRACE(qPrintable(target));
        const QString type = fileType(target);
        for (const QStringList& command :
             {QStringList{"--export", target}, QStringList{"--backup", target},
              QStringList{"--report", "country", "Canada", "--pdf", target}}) {
            const ProgramRun run = runProgram(dir() + "/store", command);
            EXPECT_EQ(run.exitCode, 1) << qPrintable(command.first());
            EXPECT_TRUE(
                run.errors.endsWith("Cannot write " + target + ": it is not a regular file\n"))
                << qPrintable(run.errors);
            EXPECT_EQ(fileType(target), type);
        }
    }
}

// A file its owner made read-only is not replaced by someone who may only write into its
// folder: the write is refused with the system's reason and the file left as it was.
TEST_F(PelvaneTest, OutputsLeaveAFileTheUserMayNotWrite) {
    const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
    if (setpriv.isEmpty() || ::getuid() != 0)
        GTEST_SKIP() << "runs the program as another user, which takes root";
    // That user reaches the test's folder and writes into one folder of it.
    ASSERT_EQ(::chmod(qPrintable(QDir::tempPath()), 0711), 0);
    ASSERT_EQ(::chmod(qPrintable(dir()), 0711), 0);
    const QString shared = path("shared");
    ASSERT_TRUE(QDir().mkpath(shared));
    ASSERT_EQ(::chmod(qPrintable(shared), 0777), 0);
    for (const QString& command : {QStringLiteral("--export"), QStringLiteral("--value-history")}) {
        const QString file = shared + "/kept" + command + ".csv";
        writeFile(file, "[PELVANE]\n");
        ASSERT_EQ(::chmod(qPrintable(file), 0444), 0);
        const ProgramRun run =
            runProgram(shared + "/data", {command, file},
                       {setpriv, "--reuid=65534", "--regid=65534", "--clear-groups"});
        EXPECT_EQ(run.exitCode, 1) << qPrintable(command);
        EXPECT_TRUE(run.errors.endsWith("Cannot write " + file + ": Permission denied\n"))
            << qPrintable(run.errors);
        EXPECT_EQ(readFile(file), "[PELVANE]\n");
    }
}

// An empty collection (a mistyped data folder) is not exported over a file that holds coins;
// into a new or empty file it is.
TEST_F(PelvaneTest, AnEmptyCollectionKeepsAnExportThatHoldsCoins) {
    ASSERT_EQ(runProgram(dir() + "/full", {"--export", path("backup.csv")}).exitCode, 0);
    ASSERT_EQ(runProgram(dir() + "/full", {"--import", kSample}).exitCode, 0);
    ASSERT_EQ(runProgram(dir() + "/full", {"--export", path("backup.csv")}).exitCode, 0);
    const QByteArray backup = readFile(path("backup.csv"));

    ProgramRun run = runProgram(dir() + "/mistyped", {"--export", path("backup.csv")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, "Not writing " + path("backup.csv") +
                              ": the collection is empty and the file holds 40 coins. Check the "
                              "data folder, or write to another file.\n");
    EXPECT_EQ(readFile(path("backup.csv")), backup);

    writeFile(path("empty.csv"), "");
    for (const QString& file : {path("empty.csv"), path("new.csv")}) {
        EXPECT_EQ(runProgram(dir() + "/mistyped", {"--export", file}).exitCode, 0);
        EXPECT_EQ(readFile(file), "[PELVANE]\n");
    }
}

// The store's file deleted or cut short while an import runs: the import says nothing was
// kept and exits 1, instead of counting coins that went with the file (or a SIGBUS).
TEST_F(PelvaneTest, AnImportNoticesItsStoreGoneMissing) {
    writeFile(path("many.csv"), chileanCoins(60000));
    for (const bool truncate : {false, true}) {
        SCOPED_TRACE(truncate ? "cut short" : "deleted");
        const QString folder = path(truncate ? "cut" : "deleted");
        ASSERT_EQ(runProgram(folder, {"--import", kSample}).exitCode, 0);
        const QString store = folder + "/Pelvane.sqlite";
        Running import({"--data-dir", folder, "--import", path("many.csv")});
        ASSERT_TRUE(
            waitUntil([&] { return QFileInfo(store + "-wal").size() > 256 * 1024; }, 30000));
        if (truncate)
            ASSERT_TRUE(QFile::resize(store, 0));
        else
            ASSERT_TRUE(QFile::remove(store));
        const ProgramRun run = import.finish();
        EXPECT_EQ(run.exitCode, 1) << qPrintable(run.errors);
        EXPECT_TRUE(run.errors.contains("Pelvane.sqlite was deleted, replaced or cut short while "
                                        "the import ran: nothing was kept."))
            << qPrintable(run.errors);
        EXPECT_FALSE(run.output.contains("created")) << qPrintable(run.output);
    }
}

// Pictures are checked on the way in as the export checks them on the way out: one the export
// could not write (cut inside its header) is left out with a warning naming the coin, and a
// large but valid one is kept and exported.
TEST_F(PelvaneTest, TheImportKeepsOnlyPicturesTheExportCanWrite) {
    QImage large(5900, 5900, QImage::Format_RGB32);
    large.fill(Qt::darkYellow);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(large.save(&buffer, "JPEG", 30));
    const QByteArray whole = jpeg.toBase64();
    const QByteArray cut = whole.left(64); // valid base64, a header cut short
    // No quantization tables of its own, after a picture that has them: it must not be read
    // with the tables of the picture before it.
    const QByteArray tableless =
        readFile(PELVANE_TEST_DATA "/pictures/no-tables-read-with-the-last-pictures-tables.jpg")
            .toBase64();
    writeFile(path("pictures.csv"), "[PELVANE]\nPeru^1 Sol^^^^^^^^^^^^^^^^^1936^" + cut +
                                        "^\nPeru^2 Soles^^^^^^^^^^^^^^^^^1936^" + whole +
                                        "^\nPeru^5 Soles^^^^^^^^^^^^^^^^^1936^" + tableless +
                                        "^\n");
    ProgramRun run = runProgram(dir() + "/store", {"--import", path("pictures.csv")});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_EQ(run.output, "3 created, 0 updated, 0 skipped\n");
    for (const char* coin : {"1 Sol", "5 Soles"})
        EXPECT_TRUE(run.errors.contains(QStringLiteral("Warning: the front picture of %1, 1936, "
                                                       "Peru cannot be read; the coin is kept "
                                                       "without it\n")
                                            .arg(coin)))
            << qPrintable(run.errors);
    EXPECT_FALSE(run.errors.contains("2 Soles"));
    run = runProgram(dir() + "/store", {"--export", path("out.csv")});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    const QList<QByteArray> lines = readFile(path("out.csv")).split('\n');
    ASSERT_EQ(lines.size(), 5);
    EXPECT_EQ(lines[1].split('^').value(19), ""); // 1 Sol
    EXPECT_GT(lines[2].split('^').value(19).size(), 100);
    EXPECT_EQ(lines[3].split('^').value(19), ""); // 5 Soles
}

// Two imports of one file at once: the lookups and saves of each hold the write lock together,
// so every coin is made once.
TEST_F(PelvaneTest, TwoImportsAtOnceMakeEachCoinOnce) {
    writeFile(path("coins.csv"), chileanCoins(3000));
    ASSERT_EQ(runProgram(dir() + "/store", {"--import", kSample}).exitCode, 0);
    Running first({"--data-dir", dir() + "/store", "--import", path("coins.csv")});
    Running second({"--data-dir", dir() + "/store", "--import", path("coins.csv")});
    const ProgramRun a = first.finish(), b = second.finish();
    EXPECT_EQ(a.exitCode, 0) << qPrintable(a.errors);
    EXPECT_EQ(b.exitCode, 0) << qPrintable(b.errors);
    EXPECT_EQ(OtherConnection(dir() + "/store/Pelvane.sqlite").number("SELECT count(*) FROM Coins"),
              3040);
    // Between them, each coin created once and found once.
    const QRegularExpression counts("(\\d+) created, (\\d+) updated");
    const auto ma = counts.match(a.output), mb = counts.match(b.output);
    EXPECT_EQ(ma.captured(1).toInt() + mb.captured(1).toInt(), 3000);
    EXPECT_EQ(ma.captured(2).toInt() + mb.captured(2).toInt(), 3000);
}

// A line the import must stop at (a number that does not parse in a new coin, or more fields
// than a coin has) stops the program, and every coin merged before that line is in the file.
TEST_F(PelvaneTest, AnImportStoppedAtABadLineKeepsTheCoinsBeforeIt) {
    for (const QByteArray& bad :
         {QByteArray("Chile^Bad^^^^^^^So^^^many^^^^^^^1990^^"), QByteArray(22, '^')}) {
        SCOPED_TRACE(bad.constData());
        const QString store = dir() + "/stop" + QString::number(bad.size());
        writeFile(path("bad.csv"), chileanCoins(100) + bad + "\n" + chileanCoins(5).mid(10));
        const ProgramRun run = runProgram(store, {"--import", path("bad.csv")});
        EXPECT_NE(run.exitCode, 0);
        EXPECT_TRUE(run.errors.contains("Fatal error")) << qPrintable(run.errors);
        EXPECT_EQ(OtherConnection(store + "/Pelvane.sqlite").number("SELECT count(*) FROM Coins"),
                  100);
    }
}

// A report from a store that cannot be read writes nothing and says why: not "no coins", not a
// list with its pictures missing.
TEST_F(PelvaneTest, AReportFromADamagedStoreWritesNothing) {
    ASSERT_EQ(runProgram(dir() + "/sample", {"--import", kSample}).exitCode, 0);
    for (const char* table : {"Coins", "Coins_pictures"}) {
        SCOPED_TRACE(table);
        const QString folder = path(table);
        QDir().mkpath(folder);
        ASSERT_TRUE(QFile::copy(dir() + "/sample/Pelvane.sqlite", folder + "/Pelvane.sqlite"));
        damagePage(folder + "/Pelvane.sqlite", table);
        const ProgramRun run =
            runProgram(folder, {"--report", "country", "Canada", "--pdf", path("list.pdf")});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.errors, "Cannot read the collection " + folder +
                                  "/Pelvane.sqlite: database disk image is malformed\n")
            << qPrintable(run.errors);
        EXPECT_FALSE(QFile::exists(path("list.pdf")));
    }
}

// The window's start takes the daily snapshot on a worker, after the window is up; a snapshot
// that cannot be written is said once and the program goes on.
TEST_F(PelvaneTest, TheWindowTakesTheDailySnapshotInTheBackground) {
    ASSERT_EQ(runProgram(dir() + "/store", {"--import", kSample}).exitCode, 0);
    const QString snapshot =
        dir() + "/store/Backups/Pelvane-" + QDate::currentDate().toString(Qt::ISODate) + ".sqlite";
    {
        Running window({"--data-dir", dir() + "/store"}, true);
        EXPECT_TRUE(waitUntil([&] { return QFile::exists(snapshot); }, 20000));
        EXPECT_TRUE(waitUntil(
            [&] {
                return window.process.readAllStandardError().contains("Snapshot taken: " +
                                                                      snapshot.toUtf8());
            },
            20000));
        window.process.terminate();
        window.process.waitForFinished();
    }
    ASSERT_EQ(runProgram(dir() + "/other", {"--import", kSample}).exitCode, 0);
    writeFile(dir() + "/other/Backups", "a file where the folder would be");
    Running window({"--data-dir", dir() + "/other"}, true);
    QByteArray errors;
    EXPECT_TRUE(waitUntil(
        [&] {
            errors += window.process.readAllStandardError();
            return errors.contains("Could not take a snapshot: Cannot make the folder");
        },
        20000));
    QThread::msleep(500);
    errors += window.process.readAllStandardError();
    EXPECT_EQ(errors.count("Could not take a snapshot"), 1);
    EXPECT_EQ(window.process.state(), QProcess::Running);
    window.process.terminate();
    window.process.waitForFinished();
}

// A snapshot dated in the future, by its file's time or by its name, holds no daily snapshot
// back: each is said once and left where it is.
TEST_F(PelvaneTest, ASnapshotDatedInTheFutureHoldsNoneBack) {
    const QString store = dir() + "/store";
    ASSERT_EQ(runProgram(store, {"--import", kSample}).exitCode, 0);
    const QDate today = QDate::currentDate();
    const QDateTime now = QDateTime::currentDateTime();
    QDir().mkpath(store + "/Backups");
    // Written while the clock was a year ahead; and one named for a date to come, an hour old.
    const QString ahead =
        store + "/Backups/Pelvane-" + today.addDays(-2).toString(Qt::ISODate) + ".sqlite";
    const QString named =
        store + "/Backups/Pelvane-" + today.addYears(3).toString(Qt::ISODate) + ".sqlite";
    for (const auto& [file, time] :
         {std::pair{ahead, now.addDays(365)}, std::pair{named, now.addSecs(-3600)}}) {
        ASSERT_TRUE(QFile::copy(store + "/Pelvane.sqlite", file));
        QFile f(file);
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        ASSERT_TRUE(f.setFileTime(time, QFileDevice::FileModificationTime));
    }
    const QString snapshot = store + "/Backups/Pelvane-" + today.toString(Qt::ISODate) + ".sqlite";
    Running window({"--data-dir", store}, true);
    QByteArray errors;
    EXPECT_TRUE(waitUntil(
        [&] {
            errors += window.process.readAllStandardError();
            return errors.contains("Snapshot taken: " + snapshot.toUtf8());
        },
        20000))
        << errors.constData();
    window.process.terminate();
    window.process.waitForFinished();
    errors += window.process.readAllStandardError();
    for (const QString& file : {ahead, named}) {
        EXPECT_EQ(errors.count("Snapshot " + file.toUtf8() + " is dated in the future; ignored"), 1)
            << errors.constData();
        EXPECT_TRUE(QFile::exists(file));
    }
}
