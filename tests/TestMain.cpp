// One test main for every test executable: a QApplication on the offscreen platform.
#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
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
