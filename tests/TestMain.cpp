// One test main for every test executable: a QApplication on the offscreen platform.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <optional>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Everything a run writes to the temporary folder goes into one folder of its own, removed
    // when the run ends: the tests' folders, Qt's runtime folder, and what the programs and
    // death-test children it starts leave there, since they inherit TMPDIR and never clean up
    // after a designed stop.
    std::optional<QTemporaryDir> scratch;
    if (qEnvironmentVariableIsEmpty("PELVANE_TEST_SCRATCH")) {
        scratch.emplace(QDir::tempPath() + QStringLiteral("/pelvane-tests-XXXXXX"));
        if (scratch->isValid()) {
            qputenv("TMPDIR", QFile::encodeName(scratch->path()));
            qputenv("PELVANE_TEST_SCRATCH", QFile::encodeName(scratch->path()));
            // Qt's runtime folder too, which it otherwise warns about on every program's stderr.
            const QString runtime = scratch->filePath(QStringLiteral("runtime"));
            if (QDir().mkdir(runtime) &&
                QFile::setPermissions(runtime,
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
                qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
        }
    }
    // Qt starts threads of its own; forked death tests must re-execute the binary.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ::testing::InitGoogleTest(&argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Pelvane"));
    QApplication::setOrganizationName(QStringLiteral("Pelvane"));
    return RUN_ALL_TESTS();
}

// Under LeakSanitizer: Qt's touch scrolling keeps its gesture recognizer until the process
// ends, and the PDF view's page renderer never deletes the thread it renders in, nor the
// requests still queued for it; none of that is a leak of ours.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:QScroller::grabGesture\nleak:QPdfPageRenderer\n";
}
