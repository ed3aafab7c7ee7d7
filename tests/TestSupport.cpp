#include "TestSupport.h"

#include <csignal>
#include <sys/resource.h>

#include "platform/core/Console.h"
#include "platform/core/UserDefaults.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QThread>
#include <sqlite3.h>

void PelvaneTest::SetUp() {
    ASSERT_TRUE(tmp_.isValid());
    UserDefaults::useFile(tmp_.filePath(QStringLiteral("Pelvane.ini")));
    Console::startCapture();
}

void PelvaneTest::TearDown() {
    Console::stopCapture();
    // Written now, while the folder exists: a later write would make it again.
    UserDefaults::standard().synchronize();
}

QByteArray readFile(const QString& file) {
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<unreadable>");
}

void writeFile(const QString& file, const QByteArray& bytes) {
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate)) << file.toStdString();
    ASSERT_EQ(f.write(bytes), bytes.size());
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

qint64 OtherConnection::number(const QByteArray& sql) {
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(db_, sql.constData(), -1, &st, nullptr);
    const qint64 n = st && sqlite3_step(st) == SQLITE_ROW ? sqlite3_column_int64(st, 0) : -1;
    sqlite3_finalize(st);
    return n;
}

QByteArray storeDump(const QString& storeFile, Dump what) {
    OtherConnection db(storeFile);
    QByteArray out;
    sqlite3_stmt* tables = nullptr;
    // A copy's checksum is about the copy, not part of the collection it holds; the records'
    // tables alone are the collection, without the history of how it came to be.
    const char* sql =
        what == Dump::Collection
            ? "SELECT name FROM sqlite_master WHERE type='table' AND name IN ('Coins', "
              "'Coins_pictures', 'GradeNumbers', 'StrikeCharacters', 'CoinEdge') ORDER BY name"
        : what == Dump::WithoutJournal
            ? "SELECT name FROM sqlite_master WHERE type='table' AND name <> 'Seal' AND name NOT "
              "LIKE 'Journal%' ORDER BY name"
            : "SELECT name FROM sqlite_master WHERE type='table' AND name <> 'Seal' ORDER BY name";
    sqlite3_prepare_v2(db.handle(), sql, -1, &tables, nullptr);
    while (sqlite3_step(tables) == SQLITE_ROW) {
        const QByteArray table = reinterpret_cast<const char*>(sqlite3_column_text(tables, 0));
        out += "== " + table + '\n';
        sqlite3_stmt* rows = nullptr;
        sqlite3_prepare_v2(db.handle(), "SELECT * FROM \"" + table + "\" ORDER BY 1", -1, &rows,
                           nullptr);
        while (sqlite3_step(rows) == SQLITE_ROW) {
            for (int c = 0; c < sqlite3_column_count(rows); ++c)
                out += QByteArray::number(sqlite3_column_type(rows, c)) + ':' +
                       QByteArray(static_cast<const char*>(sqlite3_column_blob(rows, c)),
                                  sqlite3_column_bytes(rows, c))
                           .toBase64() +
                       '|';
            out += '\n';
        }
        sqlite3_finalize(rows);
    }
    sqlite3_finalize(tables);
    return out;
}

void damagePage(const QString& storeFile, const char* table) {
    qint64 page = 0, pageSize = 0;
    {
        OtherConnection store(storeFile);
        page = store.number(QByteArray("SELECT rootpage FROM sqlite_master WHERE name = '") +
                            table + "'");
        pageSize = store.number("PRAGMA page_size");
        ASSERT_GT(page, 0) << table;
    }
    QFile file(storeFile);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek((page - 1) * pageSize));
    ASSERT_EQ(file.write(QByteArray(pageSize, '\xEE')), pageSize);
}

QByteArray jpegClaiming(int width, int height) {
    QImage small(8, 8, QImage::Format_RGB32);
    small.fill(Qt::darkYellow);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    small.save(&buffer, "JPEG");
    // The frame header (FFC0): length, precision, then height and width, big-endian.
    const qsizetype sof = bytes.indexOf("\xFF\xC0");
    EXPECT_GT(sof, 0);
    bytes[sof + 5] = char(height >> 8);
    bytes[sof + 6] = char(height & 0xFF);
    bytes[sof + 7] = char(width >> 8);
    bytes[sof + 8] = char(width & 0xFF);
    return bytes;
}

FileSizeLimit::FileSizeLimit(unsigned long bytes) {
    previousHandler_ = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    previousLimit_ = limit.rlim_cur;
    limit.rlim_cur = bytes;
    set_ = setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

FileSizeLimit::~FileSizeLimit() {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = previousLimit_;
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, previousHandler_);
}

QByteArray encodedImage(const QImage& image, const char* format, bool progressive) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    writer.write(image);
    return bytes;
}
