#include "Headless.h"
#include "TestSupport.h"

#include <QFile>

// Backups and scripts run the program where there is no display at all.
TEST_F(PelvaneTest, ExportAndImportRunWithoutADisplay) {
    auto run = [&](const QStringList& arguments) {
        return runHeadless(dir() + "/store", arguments).exitCode;
    };
    EXPECT_EQ(run({"--import", PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv"}), 0);
    const QString exported = dir() + "/backup.csv";
    EXPECT_EQ(run({"--export", exported}), 0);
    QFile file(exported);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.startsWith("[PELVANE]\n"));
    EXPECT_EQ(text.count('\n'), 41); // the marker and forty coins
    EXPECT_EQ(run({"--import", PELVANE_SOURCE_DIR "/README.md"}), 2);
    EXPECT_EQ(run({"--import", dir() + "/missing.csv"}), 1);
}

// --help and --version answer and exit 0; anything unknown gets the usage and exit 2.
TEST_F(PelvaneTest, CommandLineAnswersHelpAndVersionAndRefusesTheUnknown) {
    struct Run {
        int exitCode;
        QString out, err;
    };
    auto run = [](const QStringList& arguments) {
        QProcess program;
        program.start(QStringLiteral(PELVANE_BINARY), arguments);
        EXPECT_TRUE(program.waitForFinished(30000));
        return Run{program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1,
                   QString::fromUtf8(program.readAllStandardOutput()),
                   QString::fromUtf8(program.readAllStandardError())};
    };
    for (const char* help : {"--help", "-h"}) {
        const Run r = run({help});
        EXPECT_EQ(r.exitCode, 0);
        EXPECT_TRUE(r.out.startsWith("Usage: pelvane [options]\n")) << qPrintable(r.out);
        for (const char* option :
             {"--data-dir DIR", "--export FILE", "--import FILE", "--dark", "--version"})
            EXPECT_TRUE(r.out.contains(option)) << option;
        EXPECT_TRUE(r.err.isEmpty());
    }
    const Run version = run({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.out, "Pelvane " PELVANE_VERSION "\n");

    for (const QStringList& wrong :
         {QStringList{"--colour"}, QStringList{"stray"}, QStringList{"--export"},
          QStringList{"--export", "a", "--import", "b"}}) {
        const Run r = run(wrong);
        EXPECT_EQ(r.exitCode, 2) << qPrintable(wrong.join(' '));
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_TRUE(r.err.contains("Usage: pelvane [options]")) << qPrintable(r.err);
    }
    EXPECT_TRUE(run({"--colour"}).err.contains("Unknown option 'colour'"));
}
