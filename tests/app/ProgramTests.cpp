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
