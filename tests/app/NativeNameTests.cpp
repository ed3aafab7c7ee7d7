#include "Program.h"
#include "TestSupport.h"

#include <QFile>

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

// File names on the command line are the system's bytes: names that are not UTF-8 (Latin-1
// here) reach the files they name, and two that differ in such a byte stay two files.
namespace {
const QString kSample = QStringLiteral(PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv");

QByteArray bytes(const QString& path) {
    return QFile::encodeName(path);
}

// The names in a folder as the system has them, sorted.
QList<QByteArray> namesIn(const QByteArray& folder) {
    QList<QByteArray> names;
    if (DIR* dir = ::opendir(folder.constData())) {
        while (const dirent* entry = ::readdir(dir))
            if (QByteArray name(entry->d_name); name != "." && name != "..")
                names << name;
        ::closedir(dir);
    }
    std::sort(names.begin(), names.end());
    return names;
}

QByteArray contentOf(const QByteArray& file) {
    QByteArray out;
    const int fd = ::open(file.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return "<unreadable>";
    char buffer[65536];
    for (ssize_t n; (n = ::read(fd, buffer, sizeof buffer)) > 0;)
        out.append(buffer, n);
    ::close(fd);
    return out;
}

// Removes the folder when the test ends: Qt's own removal of the test's folder cannot reach names
// that are not UTF-8.
struct RemovedAtEnd {
    QString folder;
    ~RemovedAtEnd() { QProcess::execute(QStringLiteral("rm"), {"-rf", "--", folder}); }
};

void putFile(const QByteArray& file, const QByteArray& content) {
    const int fd = ::open(file.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(::write(fd, content.constData(), size_t(content.size())), content.size());
    ::close(fd);
}
} // namespace

// Each command that writes a file writes it under the very bytes it was given: an export, a
// value history, a report and a backup to names that differ only in a Latin-1 letter give one
// file each, as an ASCII name would. The checks that guard a full file read that same file.
TEST_F(PelvaneTest, OutputsKeepTheBytesOfTheirNames) {
    const QByteArray data = bytes(path("data"));
    ASSERT_EQ(runProgram(path("data"), {"--import", kSample}).exitCode, 0);
    ASSERT_EQ(runProgram(path("data"), {"--export", path("plain.csv")}).exitCode, 0);
    ASSERT_EQ(runProgram(path("data"), {"--value-history", path("plain-history.csv")}).exitCode, 0);
    const QByteArray out = bytes(path("out"));
    ASSERT_EQ(::mkdir(out.constData(), 0755), 0);
    const RemovedAtEnd removed{path("out")};

    QList<QByteArray> expected;
    for (const char* letter : {"\xe9", "\xe8"}) {
        const QByteArray exported = out + "/caf" + letter + ".csv";
        const QByteArray history = out + "/history" + letter + ".csv";
        const QByteArray pdf = out + "/Pérou" + letter + ".pdf";
        const QByteArray backup = out + "/copy" + letter + ".sqlite";
        for (const QList<QByteArray>& command : {QList<QByteArray>{"--export", exported},
                                                 {"--value-history", history},
                                                 {"--report", "country", "Peru", "--pdf", pdf},
                                                 {"--backup", backup}}) {
            const ProgramRun run =
                runProgramWithBytes(QList<QByteArray>{"--data-dir", data} + command);
            EXPECT_EQ(run.exitCode, 0) << command.first().constData() << qPrintable(run.errors);
        }
        EXPECT_EQ(contentOf(exported), contentOf(bytes(path("plain.csv"))));
        EXPECT_EQ(contentOf(history), contentOf(bytes(path("plain-history.csv"))));
        EXPECT_TRUE(contentOf(pdf).startsWith("%PDF-"));
        EXPECT_TRUE(contentOf(backup).startsWith(QByteArray("SQLite format 3\0", 16)));
        expected << "caf" + QByteArray(letter) + ".csv"
                 << "history" + QByteArray(letter) + ".csv"
                 << "Pérou" + QByteArray(letter) + ".pdf"
                 << "copy" + QByteArray(letter) + ".sqlite";
    }
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(namesIn(out), expected);

    // An empty collection (a mistyped data folder) is not written over the files that hold
    // coins: the guard reads the file named, not another.
    const QByteArray empty = bytes(path("empty"));
    ProgramRun run = runProgramWithBytes({"--data-dir", empty, "--export", out + "/caf\xe9.csv"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("the file holds 40 coins")) << qPrintable(run.errors);
    run = runProgramWithBytes({"--data-dir", empty, "--backup", out + "/copy\xe9.sqlite"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("the backup holds 40 coins")) << qPrintable(run.errors);
    EXPECT_EQ(contentOf(out + "/caf\xe9.csv"), contentOf(bytes(path("plain.csv"))));
    EXPECT_EQ(namesIn(out), expected);
}

// Files given to read are read under their bytes: an import from a Latin-1 name, and a restore
// from a backup so named; a name that differs in that letter is another file, which is missing.
TEST_F(PelvaneTest, InputsAreReadByTheBytesOfTheirNames) {
    const QByteArray out = bytes(path("out"));
    ASSERT_EQ(::mkdir(out.constData(), 0755), 0);
    const RemovedAtEnd removed{path("out")};
    const QByteArray sample = out + "/P\xe9rou.csv";
    putFile(sample, contentOf(bytes(kSample)));
    const QByteArray first = bytes(path("first")), second = bytes(path("second"));

    ProgramRun run = runProgramWithBytes({"--data-dir", first, "--import", sample});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_EQ(run.output, "40 created, 0 updated, 0 skipped\n");
    run = runProgramWithBytes({"--data-dir", first, "--import", out + "/P\xe8rou.csv"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("No such file or directory")) << qPrintable(run.errors);

    ASSERT_EQ(
        runProgramWithBytes({"--data-dir", first, "--backup", out + "/b\xe9.sqlite"}).exitCode, 0);
    run = runProgramWithBytes({"--data-dir", second, "--restore", out + "/b\xe8.sqlite"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("does not exist")) << qPrintable(run.errors);
    run = runProgramWithBytes({"--data-dir", second, "--restore", out + "/b\xe9.sqlite"});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_TRUE(run.output.startsWith("Restored 40 coins from ")) << qPrintable(run.output);
    run = runProgram(path("second"), {"--stats"});
    EXPECT_TRUE(run.output.startsWith("Coins: 40\n")) << qPrintable(run.output);
    EXPECT_EQ(namesIn(out), (QList<QByteArray>{"P\xe9rou.csv", "b\xe9.sqlite"}));
}

// A data folder named in Latin-1 holds the collection, its snapshots, its documents and its
// preferences; nothing goes to a folder of a similar name, and the folder whose name differs in
// that letter is another collection.
TEST_F(PelvaneTest, DataFolderKeepsTheBytesOfItsName) {
    const QByteArray parent = bytes(path("parent"));
    ASSERT_EQ(::mkdir(parent.constData(), 0755), 0);
    const RemovedAtEnd removed{path("parent")};
    const QByteArray data = parent + "/coins\xe9";
    ProgramRun run = runProgramWithBytes({"--data-dir", data, "--import", bytes(kSample)});
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_TRUE(namesIn(data).contains("Pelvane.sqlite"));
    run = runProgramWithBytes({"--data-dir", data, "--stats"});
    EXPECT_TRUE(run.output.startsWith("Coins: 40\n")) << qPrintable(run.output);
    run = runProgramWithBytes({"--data-dir", parent + "/coins\xe8", "--stats"});
    EXPECT_TRUE(run.output.startsWith("Coins: 0\n")) << qPrintable(run.output);

    // The report without --pdf goes to the documents folder inside it.
    run = runProgramWithBytes({"--data-dir", data, "--report", "country", "Peru"});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_TRUE(contentOf(data + "/Documents/CoinListByCountry.pdf").startsWith("%PDF-"));
    // A restore keeps the collection as a snapshot in its Backups folder, which lists it.
    ASSERT_EQ(
        runProgramWithBytes({"--data-dir", data, "--backup", bytes(path("b.sqlite"))}).exitCode, 0);
    run = runProgramWithBytes({"--data-dir", data, "--restore", bytes(path("b.sqlite"))});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    const QList<QByteArray> snapshots = namesIn(data + "/Backups");
    ASSERT_EQ(snapshots.size(), 1);
    EXPECT_TRUE(snapshots.first().contains("before-restore")) << snapshots.first().constData();
    run = runProgramWithBytes({"--data-dir", data, "--backups"});
    EXPECT_TRUE(run.output.contains(QString::fromUtf8(snapshots.first())))
        << qPrintable(run.output);
    // A window session keeps its preferences there too, and saves its picture by name.
    run = runProgramWithBytes({"--data-dir", data, "--grab", parent + "/shot\xe9.png"},
                              {"env", "QT_QPA_PLATFORM=offscreen"});
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_TRUE(contentOf(parent + "/shot\xe9.png").startsWith("\x89PNG"));
    EXPECT_TRUE(namesIn(data).contains("Pelvane.ini"));

    EXPECT_EQ(namesIn(parent), (QList<QByteArray>{"coins\xe8", "coins\xe9", "shot\xe9.png"}));
}
