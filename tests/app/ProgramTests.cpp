#include "TestSupport.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

// Backups and scripts run the program where there is no display at all.
TEST_F(PelvaneTest, ExportAndImportRunWithoutADisplay) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(QString::fromLatin1(name));
    auto run = [&](const QStringList& arguments) {
        QProcess program;
        program.setProcessEnvironment(env);
        program.start(QStringLiteral(PELVANE_BINARY),
                      QStringList{QStringLiteral("--data-dir"), dir() + "/store"} + arguments);
        EXPECT_TRUE(program.waitForFinished(60000));
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
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
