#pragma once
// Every test gets a fresh temporary folder with fresh preferences in it, and captured console
// lines. Tests of the store and screens derive from their own fixtures built on this one.
#include <QImage>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

class PelvaneTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    QString dir() const { return tmp_.path(); }
    QString path(const QString& name) const { return tmp_.filePath(name); }

private:
    QTemporaryDir tmp_;
};

// A file-size limit on this process while it lives, as a full or quota-bound disk gives:
// writing past `bytes` fails with "File too large" instead of stopping the process.
class FileSizeLimit {
public:
    explicit FileSizeLimit(unsigned long bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    bool isSet() const { return set_; }

private:
    bool set_ = false;
    unsigned long previousLimit_ = 0;
    void (*previousHandler_)(int) = nullptr;
};

// A file's bytes, or "<unreadable>".
QByteArray readFile(const QString& file);
// Replaces a file's bytes.
void writeFile(const QString& file, const QByteArray& bytes);

// Spins the event loop until pred() holds or the time is up; true when it holds.
bool waitUntil(const std::function<bool()>& pred, int timeoutMs = 3000);

// A second connection to a store file, as another program (or a disk that refuses writes)
// would have; closed when it goes.
class OtherConnection {
public:
    explicit OtherConnection(const QString& file);
    ~OtherConnection();
    OtherConnection(const OtherConnection&) = delete;
    OtherConnection& operator=(const OtherConnection&) = delete;
    // The SQLite result code of running the statements.
    int exec(const char* sql);
    // The first column of the query's first row; -1 without one.
    qint64 number(const QByteArray& sql);
    struct sqlite3* handle() const {
        return db_;
    }

private:
    struct sqlite3* db_ = nullptr;
};

// Every row of every table of a store, as text: two stores with the same dump hold the same.
// Or without the journal of how it came to be (a restore adds its own step), or the records'
// tables alone (the collection).
enum class Dump { Everything, WithoutJournal, Collection };
QByteArray storeDump(const QString& storeFile, Dump what = Dump::Everything);

// Overwrites the first page of a table (or index) of a closed store file with bytes that are no
// page, as a failing disk would: every read that reaches it fails.
void damagePage(const QString& storeFile, const char* table);

// A JPEG of a few bytes whose header claims width x height pixels.
QByteArray jpegClaiming(int width, int height);

// `image` written by the image plugin in `format`, progressively where asked.
QByteArray encodedImage(const QImage& image, const char* format, bool progressive = false);
