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
