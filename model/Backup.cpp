#include "model/Backup.h"

#include "model/Entity.h"
#include "model/PersistentContainer.h"
#include "model/Snapshots.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryFile>
#include <QUrl>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace Backup {

namespace {

StoreError failure(int code, const QString& message) {
    return StoreError::because(code, message);
}

// One connection, closed whatever way the function leaves.
class Connection {
public:
    enum Mode {
        Read,    // for reading; opened for writing where it can be, so that closing it takes
                 // away the log it may have made beside a store
        Inspect, // for reading only: a file given to be checked is never changed
        Create,  // a new file
    };
    Connection(const QString& path, Mode mode) {
        const QFileInfo info(path);
        if (mode == Read && !(info.isWritable() && QFileInfo(info.absolutePath()).isWritable()))
            mode = Inspect;
        const QByteArray name = mode == Inspect ? QUrl::fromLocalFile(path).toEncoded() + "?mode=ro"
                                                : QFile::encodeName(path);
        const int flags = mode == Inspect ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI
                          : mode == Read  ? SQLITE_OPEN_READWRITE
                                          : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
        rc_ = sqlite3_open_v2(name.constData(), &db_, flags, nullptr);
        if (db_)
            sqlite3_busy_timeout(db_, 2000);
    }
    ~Connection() { sqlite3_close_v2(db_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    bool ok() const { return rc_ == SQLITE_OK; }
    sqlite3* handle() const { return db_; }
    StoreError error() const {
        return failure(db_ ? sqlite3_extended_errcode(db_) : rc_,
                       db_ ? QString::fromUtf8(sqlite3_errmsg(db_))
                           : QStringLiteral("unable to open database file"));
    }
    // The first column of the first row as text; nothing when the statement fails.
    std::optional<QString> text(const char* sql) const {
        sqlite3_stmt* stmt = nullptr;
        std::optional<QString> out;
        if (sqlite3_prepare_v2(db_, sql, -1, &stmt, nullptr) == SQLITE_OK &&
            sqlite3_step(stmt) == SQLITE_ROW)
            out = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
        sqlite3_finalize(stmt);
        return out;
    }
    bool exec(const char* sql) const {
        return sqlite3_exec(db_, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    }

private:
    sqlite3* db_ = nullptr;
    int rc_ = SQLITE_OK;
};

bool sameFile(const QString& a, const QString& b) {
    const QString ca = QFileInfo(a).canonicalFilePath();
    return !ca.isEmpty() && ca == QFileInfo(b).canonicalFilePath();
}

// The file's bytes on the disk before it takes another's name, and the name in the folder after.
bool syncFile(const QString& path) {
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool ok = ::fsync(fd) == 0;
    ::close(fd);
    return ok;
}

StoreError systemError(const QString& doing) {
    return failure(SQLITE_IOERR, QStringLiteral("%1: %2").arg(
                                     doing, QString::fromLocal8Bit(std::strerror(errno))));
}

// Renames `from` over `to` for good: synced first, and the folder after.
std::optional<StoreError> replace(const QString& from, const QString& to) {
    if (!syncFile(from))
        return systemError(QStringLiteral("Cannot write %1").arg(to));
    if (::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return systemError(QStringLiteral("Cannot replace %1").arg(to));
    syncFile(QFileInfo(to).absolutePath());
    return std::nullopt;
}

// A name beside the target for the copy being made; the file is created empty.
QString temporaryBeside(const QString& target) {
    const QFileInfo info(target);
    QTemporaryFile file(info.absoluteDir().filePath(QLatin1Char('.') + info.fileName() +
                                                    QStringLiteral(".XXXXXX.part")));
    file.setAutoRemove(false);
    return file.open() ? file.fileName() : QString();
}

// The bytes of one file into another, a few megabytes at a time, by the kernel where it can.
bool copyFile(const QString& from, const QString& to, const Progress& progress) {
    QFile in(from), out(to);
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly | QIODevice::Truncate))
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

// Page by page from one database into another, as of one moment: should another connection
// write to the source meanwhile, SQLite starts the copy again.
std::optional<StoreError> copyPages(const QString& sourcePath, const QString& destination,
                                    const Progress& progress) {
    Connection source(sourcePath, Connection::Read);
    if (!source.ok())
        return source.error();
    // Where the log holds nothing, the file is the store as of this read, and stays so while
    // the read lasts: a reader of the file alone keeps every checkpoint from writing into it.
    // It is then copied as it is, several times faster than page by page.
    if (!source.exec("BEGIN") || !source.text("SELECT count(*) FROM sqlite_master"))
        return source.error();
    if (const QFileInfo log(sourcePath + QStringLiteral("-wal"));
        !log.exists() || log.size() == 0) {
        const bool copied = copyFile(sourcePath, destination, progress);
        source.exec("COMMIT");
        if (!copied)
            return systemError(QStringLiteral("Cannot copy %1").arg(sourcePath));
        Connection copy(destination, Connection::Create);
        if (!copy.ok() || !copy.exec("PRAGMA journal_mode=DELETE"))
            return copy.error();
        return std::nullopt;
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
        const StoreError fromSource = source.error();
        return fromSource.code != SQLITE_OK ? fromSource : copy.error();
    }
    // A copy stands alone: no write-ahead log beside it.
    if (!copy.exec("PRAGMA journal_mode=DELETE"))
        return copy.error();
    return std::nullopt;
}

std::optional<QString> integrityProblem(const Connection& db) {
    db.exec("PRAGMA mmap_size=1073741824");
    const std::optional<QString> verdict = db.text("PRAGMA integrity_check(1)");
    if (!verdict)
        return db.error().message;
    if (*verdict != QLatin1String("ok"))
        return *verdict;
    return std::nullopt;
}

Result<qint64> countCoins(const Connection& db) {
    const std::optional<QString> n = db.text("SELECT count(*) FROM Coins");
    if (!n)
        return db.error();
    return n->toLongLong();
}

} // namespace

QString missingSchema(sqlite3* db) {
    auto columnsOf = [db](const QString& table) {
        QSet<QString> columns;
        sqlite3_stmt* stmt = nullptr;
        const QByteArray sql = QStringLiteral("PRAGMA table_info(\"%1\")").arg(table).toUtf8();
        if (sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr) == SQLITE_OK)
            while (sqlite3_step(stmt) == SQLITE_ROW)
                columns.insert(
                    QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 1))));
        sqlite3_finalize(stmt);
        return columns;
    };
    for (const EntityDescription* e : Model::entities()) {
        const QSet<QString> main = columnsOf(e->name);
        const QSet<QString> data = e->hasData() ? columnsOf(e->dataTable()) : QSet<QString>();
        if (main.isEmpty())
            return QStringLiteral("there is no table %1").arg(e->name);
        if (e->hasData() && data.isEmpty())
            return QStringLiteral("there is no table %1").arg(e->dataTable());
        for (const QString& table : {e->name, e->dataTable()}) {
            const bool pictures = table != e->name;
            if (pictures && !e->hasData())
                continue;
            if (!(pictures ? data : main).contains(QStringLiteral("pk")))
                return QStringLiteral("the table %1 has no column pk").arg(table);
        }
        for (const AttributeDescription& a : e->attributes) {
            const bool pictures = a.type == AttributeType::Data;
            if (!(pictures ? data : main).contains(a.name))
                return QStringLiteral("the table %1 has no column %2")
                    .arg(pictures ? e->dataTable() : e->name, a.name);
        }
    }
    return {};
}

Result<qint64> write(const QString& storePath, const QString& target, const Progress& progress) {
    const QFileInfo targetInfo(target);
    if (targetInfo.exists() && !targetInfo.isFile())
        return failure(SQLITE_CANTOPEN,
                       QStringLiteral("Cannot write %1: it is not a regular file").arg(target));
    if (!QFileInfo(storePath).isFile())
        return failure(SQLITE_CANTOPEN,
                       QStringLiteral("There is no collection at %1").arg(storePath));
    for (const QString& part : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
        if (sameFile(target, storePath + part))
            return failure(
                SQLITE_CANTOPEN,
                QStringLiteral("Cannot write %1: it is the collection itself").arg(target));
    if (!targetInfo.absoluteDir().exists())
        return failure(SQLITE_CANTOPEN,
                       QStringLiteral("Cannot write %1: the folder does not exist").arg(target));
    const QString temporary = temporaryBeside(target);
    if (temporary.isEmpty())
        return failure(SQLITE_CANTOPEN,
                       QStringLiteral("Cannot write %1: the folder cannot be written").arg(target));
    auto fail = [&](const StoreError& e) {
        QFile::remove(temporary);
        QFile::remove(temporary + QStringLiteral("-journal"));
        return e;
    };
    if (auto error = copyPages(storePath, temporary, progress))
        return fail(failure(error->code,
                            QStringLiteral("Cannot copy the collection: %1").arg(error->message)));
    qint64 coins = 0;
    {
        Connection copy(temporary, Connection::Inspect);
        if (!copy.ok())
            return fail(copy.error());
        if (auto problem = integrityProblem(copy))
            return fail(
                failure(SQLITE_CORRUPT,
                        QStringLiteral("The copy did not pass the check: %1").arg(*problem)));
        const Result<qint64> counted = countCoins(copy);
        if (!counted.ok())
            return fail(counted.error());
        coins = counted.value();
    }
    if (auto error = replace(temporary, target))
        return fail(*error);
    return coins;
}

Result<StoreInfo> inspect(const QString& path) {
    const QFileInfo info(path);
    auto refuse = [&](const QString& why) {
        return failure(SQLITE_NOTADB, QStringLiteral("%1 %2").arg(path, why));
    };
    if (!info.exists())
        return refuse(QStringLiteral("does not exist"));
    if (!info.isFile())
        return refuse(QStringLiteral("is not a regular file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(QStringLiteral("cannot be read: %1").arg(file.errorString()));
    if (file.read(16) != QByteArray("SQLite format 3\0", 16))
        return refuse(QStringLiteral("is not a Pelvane backup: it is no SQLite database"));
    file.close();
    Connection db(path, Connection::Inspect);
    if (!db.ok())
        return refuse(QStringLiteral("cannot be opened: %1").arg(db.error().message));
    const std::optional<QString> id = db.text("PRAGMA application_id");
    const std::optional<QString> version = db.text("PRAGMA user_version");
    if (!id || !version)
        return refuse(QStringLiteral("cannot be read: %1").arg(db.error().message));
    StoreInfo out;
    out.schemaVersion = version->toInt();
    // Stores written before the id was set are told by their tables alone.
    const bool before = id->toInt() == 0 && out.schemaVersion >= 1 && out.schemaVersion <= 2;
    if (id->toInt() != ApplicationId && !before)
        return refuse(QStringLiteral("is not a Pelvane backup: it is the database of another "
                                     "program"));
    if (out.schemaVersion > PersistentContainer::SchemaVersion)
        return refuse(QStringLiteral("was written by a newer Pelvane (store version %1; this one "
                                     "reads up to %2)")
                          .arg(out.schemaVersion)
                          .arg(PersistentContainer::SchemaVersion));
    if (out.schemaVersion < 1)
        return refuse(QStringLiteral("is not a Pelvane backup: it holds no collection"));
    if (const QString missing = missingSchema(db.handle()); !missing.isEmpty())
        return refuse(before ? QStringLiteral("is not a Pelvane backup: it is the database of "
                                              "another program (%1)")
                                   .arg(missing)
                             : QStringLiteral("is not a whole Pelvane backup: %1").arg(missing));
    if (auto problem = integrityProblem(db))
        return refuse(QStringLiteral("is damaged: %1").arg(*problem));
    const Result<qint64> coins = countCoins(db);
    if (!coins.ok())
        return refuse(QStringLiteral("cannot be read: %1").arg(coins.error().message));
    out.coins = coins.value();
    return out;
}

Result<qint64> coinCount(const QString& storePath) {
    if (!QFileInfo(storePath).exists())
        return qint64(0);
    Connection db(storePath, Connection::Read);
    if (!db.ok())
        return db.error();
    return countCoins(db);
}

Result<Restored> restore(const QString& storePath, const QString& file) {
    const Result<StoreInfo> info = inspect(file);
    if (!info.ok())
        return info.error();
    if (sameFile(file, storePath))
        return failure(SQLITE_CANTOPEN, QStringLiteral("%1 is the collection itself").arg(file));
    if (QFileInfo(storePath).exists() && !QFileInfo(storePath).isFile())
        return failure(SQLITE_CANTOPEN, QStringLiteral("%1 is not a regular file").arg(storePath));
    Restored out;
    out.coinsAfter = info.value().coins;
    const Result<qint64> before = coinCount(storePath);
    if (!before.ok())
        return failure(
            before.error().code,
            QStringLiteral("Cannot read the collection: %1").arg(before.error().message));
    out.coinsBefore = before.value();

    const QString temporary = temporaryBeside(storePath);
    if (temporary.isEmpty())
        return failure(
            SQLITE_CANTOPEN,
            QStringLiteral("Cannot write into %1").arg(QFileInfo(storePath).absolutePath()));
    auto fail = [&](const StoreError& e) {
        for (const char* part : {"", "-journal", "-wal", "-shm"})
            QFile::remove(temporary + QLatin1String(part));
        return e;
    };
    if (auto error = copyPages(file, temporary, {}))
        return fail(
            failure(error->code, QStringLiteral("Cannot copy %1: %2").arg(file, error->message)));
    {
        // An older schema is brought up to date on the copy, never on the file given.
        PersistentContainer copy(QStringLiteral("Pelvane"));
        if (auto error = copy.loadStoreAt(temporary, false))
            return fail(failure(
                error->code,
                QStringLiteral("Cannot bring %1 up to date: %2").arg(file, error->message)));
    }
    if (QFileInfo(storePath).exists()) {
        const Result<QString> snapshot =
            Snapshots::take(storePath, QStringLiteral("before-restore"));
        if (!snapshot.ok())
            return fail(failure(snapshot.error().code,
                                QStringLiteral("Cannot keep the current collection first: %1")
                                    .arg(snapshot.error().message)));
        out.snapshot = snapshot.value();
        // Everything in the log goes into the file, and the log goes with the last connection:
        // a log left behind means another program has the store open, and it would lay its
        // pages over the restored file.
        {
            Connection current(storePath, Connection::Read);
            if (current.ok())
                current.exec("PRAGMA wal_checkpoint(TRUNCATE)");
        }
        if (QFileInfo::exists(storePath + QStringLiteral("-wal")))
            return fail(failure(SQLITE_BUSY,
                                QStringLiteral("The collection is open in another Pelvane: close "
                                               "it and try again")));
    }
    if (auto error = replace(temporary, storePath))
        return fail(*error);
    QFile::remove(storePath + QStringLiteral("-shm"));
    return out;
}

} // namespace Backup
