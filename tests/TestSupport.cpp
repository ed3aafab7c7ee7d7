#include "TestSupport.h"

#include "platform/Console.h"
#include "platform/UserDefaults.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <sqlite3.h>

void PelvaneTest::SetUp() {
    ASSERT_TRUE(tmp_.isValid());
    UserDefaults::useFile(tmp_.filePath(QStringLiteral("Pelvane.ini")));
    Console::startCapture();
}

void PelvaneTest::TearDown() {
    Console::stopCapture();
}

bool waitUntil(const std::function<bool()>& pred, int timeoutMs) {
    QElapsedTimer t;
    t.start();
    while (!pred()) {
        if (t.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(1);
    }
    return true;
}

OtherConnection::OtherConnection(const QString& file) {
    EXPECT_EQ(sqlite3_open(file.toUtf8().constData(), &db_), SQLITE_OK);
}

OtherConnection::~OtherConnection() {
    sqlite3_close(db_);
}

int OtherConnection::exec(const char* sql) {
    return sqlite3_exec(db_, sql, nullptr, nullptr, nullptr);
}
