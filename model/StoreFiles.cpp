#include "model/StoreFiles.h"

#include "model/Sqlite.h"
#include "platform/core/NativeFiles.h"
#include "platform/core/NativeNames.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace StoreFiles {

Error failure(int code, const QString& message) {
    return Error::because(code, message);
}

Connection::Connection(const QString& path, Mode mode) {
    if (mode == Read && !(Files::isWritable(path) && Files::isWritable(Files::folderOf(path))))
        mode = Inspect;
    const QByteArray name =
        mode == Inspect ? sqliteFileUri(path) + "?mode=ro" : Files::nativeName(path);
    const int flags = mode == Inspect ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI
                      : mode == Read  ? SQLITE_OPEN_READWRITE
                                      : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    rc_ = sqlite3_open_v2(name.constData(), &db_, flags, nullptr);
    if (db_)
        sqlite3_busy_timeout(db_, 2000);
}

Connection::~Connection() {
    sqlite3_close_v2(db_);
}

Error Connection::error() const {
    return failure(db_ ? sqlite3_extended_errcode(db_) : rc_,
                   db_ ? QString::fromUtf8(sqlite3_errmsg(db_))
                       : QStringLiteral("unable to open database file"));
}

std::optional<QString> Connection::text(const char* sql) const {
    sqlite3_stmt* stmt = nullptr;
    std::optional<QString> out;
    if (sqlite3_prepare_v2(db_, sql, -1, &stmt, nullptr) == SQLITE_OK &&
        sqlite3_step(stmt) == SQLITE_ROW)
        out = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
    sqlite3_finalize(stmt);
    return out;
}

bool Connection::exec(const char* sql) const {
    return sqlite3_exec(db_, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool sameFile(const QString& a, const QString& b) {
    const QString ca = Files::canonicalName(a);
    return !ca.isEmpty() && ca == Files::canonicalName(b);
}

namespace {
// The file's bytes on the disk before it takes another's name, and the name in the folder after.
bool syncFile(const QString& path) {
    const int fd = ::open(Files::nativeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool ok = ::fsync(fd) == 0;
    ::close(fd);
    return ok;
}
} // namespace

Error systemError(const QString& doing) {
    return failure(SQLITE_IOERR, QStringLiteral("%1: %2").arg(
                                     doing, QString::fromLocal8Bit(std::strerror(errno))));
}

// Renames `from` over `to` for good: synced first, and the folder after.
Result<void> replace(const QString& from, const QString& to) {
    if (!syncFile(from))
        return systemError(QStringLiteral("Cannot write %1").arg(to));
    if (::rename(Files::nativeName(from).constData(), Files::nativeName(to).constData()) != 0)
        return systemError(QStringLiteral("Cannot replace %1").arg(to));
    syncFile(Files::folderOf(to));
    return {};
}

// A name beside the target for the copy being made; the file is created empty.
QString temporaryBeside(const QString& target) {
    const Result<Files::NewFile> file = Files::createUnique(
        Files::folderOf(target) + QStringLiteral("/.") +
        target.mid(target.lastIndexOf(QLatin1Char('/')) + 1) + QStringLiteral(".XXXXXX.part"));
    if (!file.ok())
        return {};
    ::close(file.value().fd);
    return file.value().path;
}

namespace {
// The bytes of one file into another, a few megabytes at a time, by the kernel where it can.
bool copyFile(const QString& from, const QString& to, const Progress& progress) {
    QFile in, out;
    if (!Files::open(in, from, QIODevice::ReadOnly).ok() ||
        !Files::open(out, to, QIODevice::WriteOnly | QIODevice::Truncate).ok())
        return false;
    const qint64 total = in.size();
    constexpr qint64 kChunk = 16 << 20;
    QByteArray buffer;
    for (qint64 done = 0;;) {
        ssize_t n = buffer.isEmpty()
                        ? ::copy_file_range(in.handle(), nullptr, out.handle(), nullptr, kChunk, 0)
                        : -1;
        if (n < 0) {
            // Not between these two file systems: through a buffer.
            if (buffer.isEmpty())
                buffer.resize(kChunk);
            n = ::read(in.handle(), buffer.data(), kChunk);
            if (n > 0 && ::write(out.handle(), buffer.constData(), size_t(n)) != n)
                return false;
        }
        if (n < 0)
            return false;
        if (n == 0)
            break;
        done += n;
        if (progress)
            progress(int(done / 4096), int(total / 4096));
    }
    return true;
}
} // namespace

// Page by page from one database into another, as of one moment: should another connection
// write to the source meanwhile, SQLite starts the copy again.
Result<void> copyStore(const QString& sourcePath, const QString& destination,
                       const Progress& progress) {
    // Nothing writes to a store whose folder cannot be written: its file and its log, as they
    // are, are the store. They are copied, and the copy takes the log in when it is opened.
    if (!Files::isWritable(Files::folderOf(sourcePath))) {
        if (!copyFile(sourcePath, destination, progress))
            return systemError(QStringLiteral("Cannot copy %1").arg(sourcePath));
        if (const Files::Status log = Files::status(sourcePath + QStringLiteral("-wal"));
            log.size > 0 && !copyFile(log.path, destination + QStringLiteral("-wal"), {}))
            return systemError(QStringLiteral("Cannot copy %1").arg(log.path));
        Connection copy(destination, Connection::Create);
        if (!copy.ok() || !copy.exec("PRAGMA journal_mode=DELETE"))
            return copy.error();
        return {};
    }
    Connection source(sourcePath, Connection::Read);
    if (!source.ok())
        return source.error();
    // Where the log holds nothing, the file is the store as of this read, and stays so while
    // the read lasts: a reader of the file alone keeps every checkpoint from writing into it.
    // It is then copied as it is, several times faster than page by page.
    if (!source.exec("BEGIN") || !source.text("SELECT count(*) FROM sqlite_master"))
        return source.error();
    if (const Files::Status log = Files::status(sourcePath + QStringLiteral("-wal"));
        !log.exists || log.size == 0) {
        const bool copied = copyFile(sourcePath, destination, progress);
        source.exec("COMMIT");
        if (!copied)
            return systemError(QStringLiteral("Cannot copy %1").arg(sourcePath));
        Connection copy(destination, Connection::Create);
        if (!copy.ok() || !copy.exec("PRAGMA journal_mode=DELETE"))
            return copy.error();
        return {};
    }
    source.exec("COMMIT");
    // Pages read where they lie; the copy written without a journal of its own, since it is
    // checked whole before it takes any name that matters.
    source.exec("PRAGMA mmap_size=1073741824");
    Connection copy(destination, Connection::Create);
    if (!copy.ok() || !copy.exec("PRAGMA journal_mode=OFF") || !copy.exec("PRAGMA synchronous=OFF"))
        return copy.error();
    sqlite3_backup* backup = sqlite3_backup_init(copy.handle(), "main", source.handle(), "main");
    if (!backup)
        return copy.error();
    int rc = SQLITE_OK;
    do {
        rc = sqlite3_backup_step(backup, progress ? 16384 : -1);
        if (progress)
            progress(sqlite3_backup_pagecount(backup) - sqlite3_backup_remaining(backup),
                     sqlite3_backup_pagecount(backup));
        if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
            sqlite3_sleep(10);
    } while (rc == SQLITE_OK || rc == SQLITE_BUSY || rc == SQLITE_LOCKED);
    sqlite3_backup_finish(backup);
    if (rc != SQLITE_DONE) {
        // The reason is the source's when it could not be read (a damaged page).
        const Error fromSource = source.error();
        return fromSource.code != SQLITE_OK ? fromSource : copy.error();
    }
    // A copy stands alone: no write-ahead log beside it.
    if (!copy.exec("PRAGMA journal_mode=DELETE"))
        return copy.error();
    return {};
}

std::optional<QString> integrityProblem(const Connection& db) {
    db.exec("PRAGMA mmap_size=1073741824");
    const std::optional<QString> verdict = db.text("PRAGMA integrity_check(1)");
    if (!verdict)
        return db.error().message;
    if (*verdict != QLatin1String("ok"))
        return *verdict;
    return {};
}

Result<qint64> countCoins(const Connection& db) {
    const std::optional<QString> n = db.text("SELECT count(*) FROM Coins");
    if (!n)
        return db.error();
    return n->toLongLong();
}

} // namespace StoreFiles
