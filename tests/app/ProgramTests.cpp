#include "Program.h"
#include "TestSupport.h"

#include <QFileInfo>

// Backups and scripts run the program where there is no display at all.
TEST_F(PelvaneTest, ExportAndImportRunWithoutADisplay) {
    auto run = [&](const QStringList& arguments) {
        return runProgram(dir() + "/store", arguments).exitCode;
    };
    EXPECT_EQ(run({"--import", PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv"}), 0);
    const QString exported = dir() + "/backup.csv";
    EXPECT_EQ(run({"--export", exported}), 0);
    const QByteArray text = readFile(exported);
    EXPECT_TRUE(text.startsWith("[PELVANE]\n"));
    EXPECT_EQ(text.count('\n'), 41); // the marker and forty coins
    EXPECT_EQ(run({"--import", PELVANE_SOURCE_DIR "/README.md"}), 2);
    EXPECT_EQ(run({"--import", dir() + "/missing.csv"}), 1);
}

// --help and --version answer and exit 0; anything unknown gets the usage and exit 2.
TEST_F(PelvaneTest, CommandLineAnswersHelpAndVersionAndRefusesTheUnknown) {
    for (const char* help : {"--help", "-h"}) {
        const ProgramRun r = runProgram(QStringList{help});
        EXPECT_EQ(r.exitCode, 0);
        EXPECT_TRUE(r.output.startsWith("Usage: pelvane [options]\n")) << qPrintable(r.output);
        for (const char* option :
             {"--data-dir DIR", "--export FILE", "--import FILE", "--backup FILE", "--restore FILE",
              "--backups", "--dark", "--version"})
            EXPECT_TRUE(r.output.contains(option)) << option;
        EXPECT_TRUE(r.errors.isEmpty());
    }
    const ProgramRun version = runProgram(QStringList{"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.output, "Pelvane " PELVANE_VERSION "\n");

    for (const QStringList& wrong :
         {QStringList{"--colour"}, QStringList{"stray"}, QStringList{"--export"},
          QStringList{"--export", "a", "--import", "b"}, QStringList{"--backup", "a", "--backups"},
          QStringList{"--restore", "a", "--import", "b"}}) {
        const ProgramRun r = runProgram(wrong);
        EXPECT_EQ(r.exitCode, 2) << qPrintable(wrong.join(' '));
        EXPECT_TRUE(r.output.isEmpty());
        EXPECT_TRUE(r.errors.contains("Usage: pelvane [options]")) << qPrintable(r.errors);
    }
    EXPECT_TRUE(runProgram(QStringList{"--colour"}).errors.contains("Unknown option 'colour'"));
    EXPECT_TRUE(runProgram(QStringList{"--restore", "a", "--import", "b"})
                    .errors.contains("--import and --restore cannot be combined."));
}

// An option given an empty value (a script's variable left unset) is a usage error naming the
// option: never the window, and nothing written.
TEST_F(PelvaneTest, AnEmptyValueIsAUsageError) {
    const QString store = dir() + "/store";
    for (const char* option : {"--backup", "--restore", "--value-history", "--export", "--import",
                               "--pdf", "--data-dir", "--grab", "--report"}) {
        for (const QStringList& given :
             {QStringList{option, ""}, QStringList{QString(option) + "="}}) {
            const QStringList arguments =
                QString(option) == "--data-dir" ? given : QStringList{"--data-dir", store} + given;
            const ProgramRun r = runProgram(arguments);
            EXPECT_EQ(r.exitCode, 2) << qPrintable(arguments.join(' '));
            EXPECT_TRUE(r.output.isEmpty()) << qPrintable(r.output);
            EXPECT_TRUE(r.errors.startsWith(QString("pelvane: %1 needs a ").arg(option)))
                << qPrintable(r.errors);
            EXPECT_TRUE(r.errors.contains("Usage: pelvane [options]")) << qPrintable(r.errors);
        }
    }
    EXPECT_FALSE(QFileInfo::exists(store));
    // An empty one among others too: the command does not run with the one that is not.
    const ProgramRun r = runProgram(store, {"--export", "", "--export", dir() + "/coins.csv"});
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(r.errors.startsWith("pelvane: --export needs a FILE, and the one given is empty."))
        << qPrintable(r.errors);
    EXPECT_FALSE(QFileInfo::exists(dir() + "/coins.csv"));
}

// An import is kept whole however many pieces it brings; one that takes the collection past
// what the coin list and the valuation screen count says so on standard error, naming the
// lines of the file (counted as an editor counts them, carriage returns and all) that did it.
TEST_F(PelvaneTest, AnImportPastThePiecesTheListsCountNamesTheLines) {
    const QString store = dir() + "/store";
    auto coin = [](const char* denomination, int quantity) {
        return QByteArray("USA^") + denomination + "^^^0.0^^^^P^^^" + QByteArray::number(quantity) +
               "^^^0.0^0.0^0.5^0.0^1990^^";
    };
    writeFile(dir() + "/first.csv", "[PELVANE]\r\n" + coin("A", 30000) + "\r\n\r\n" +
                                        coin("B", 2000) + "\r\n" + coin("C", 1000) + "\r\n" +
                                        coin("D", 4) + "\r\n" + coin("E", 0) + "\r\n" +
                                        coin("F", 9) + "\r\n");
    ProgramRun r = runProgram(store, {"--import", dir() + "/first.csv"});
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.output, "6 created, 0 updated, 0 skipped\n");
    EXPECT_EQ(r.errors, "Warning: the collection now holds 33013 pieces, more than the 32767 the "
                        "coin list and the valuation screen can count; they stop when they open. "
                        "The coins of lines 5-6, 8 of " +
                            dir() +
                            "/first.csv took it past. pelvane --undo takes the whole "
                            "import back.\n");
    r = runProgram(store, {"--stats"});
    EXPECT_EQ(r.output, "Coins: 6\nPieces: 33013\nTotal value: 16506.50\n");

    // Lowering a quantity is no crossing; raising one past it is, on its own line.
    writeFile(dir() + "/second.csv",
              "[PELVANE]\n" + coin("A", 100) + "\n" + coin("B", 2500) + "\n");
    r = runProgram(store, {"--import", dir() + "/second.csv"});
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(r.errors, "") << r.errors.toStdString();
    writeFile(dir() + "/third.csv", "[PELVANE]\n" + coin("A", 30000) + "\n");
    r = runProgram(store, {"--import", dir() + "/third.csv"});
    EXPECT_TRUE(r.errors.contains("holds 33513 pieces") && r.errors.contains("line 2 of"))
        << r.errors.toStdString();
}
