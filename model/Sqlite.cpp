#include "model/Sqlite.h"

#include "platform/core/Error.h"
#include "platform/core/Files.h"
#include "platform/core/NativeFiles.h"
#include "platform/core/NativeNames.h"

#include <QTemporaryDir>

#include <sqlite3.h>
#include <sys/statvfs.h>
#include <unistd.h>

// The codes the rest of the program tells apart are SQLite's own.
static_assert(ErrorCode::Busy == SQLITE_BUSY && ErrorCode::Locked == SQLITE_LOCKED &&
              ErrorCode::CantOpen == SQLITE_CANTOPEN && ErrorCode::Corrupt == SQLITE_CORRUPT &&
              ErrorCode::NotADb == SQLITE_NOTADB);

namespace {
// Root may write anywhere but on a medium mounted read-only.
bool onReadOnlyMedium(const QByteArray& folder) {
    struct statvfs info;
    return ::statvfs(folder.constData(), &info) == 0 && (info.f_flag & ST_RDONLY);
}
} // namespace

SqliteStatement::SqliteStatement(sqlite3* db, const QString& sql) {
    const QByteArray text = sql.toUtf8();
    if (sqlite3_prepare_v3(db, text.constData(), int(text.size()), SQLITE_PREPARE_PERSISTENT,
                           &stmt_, nullptr) != SQLITE_OK)
        stmt_ = nullptr;
}

SqliteStatement::~SqliteStatement() {
    sqlite3_finalize(stmt_);
}

SqliteStatement::SqliteStatement(SqliteStatement&& other) noexcept
    : stmt_(other.stmt_)
    , bound_(std::move(other.bound_)) {
    other.stmt_ = nullptr;
}

SqliteStatement& SqliteStatement::operator=(SqliteStatement&& other) noexcept {
    if (this != &other) {
        sqlite3_finalize(stmt_);
        stmt_ = other.stmt_;
        bound_ = std::move(other.bound_);
        other.stmt_ = nullptr;
    }
    return *this;
}

void SqliteStatement::reset() {
    bound_.clear();
    if (!stmt_)
        return;
    sqlite3_reset(stmt_);
    sqlite3_clear_bindings(stmt_);
}

void SqliteStatement::bindNull(int i) {
    sqlite3_bind_null(stmt_, i);
}
void SqliteStatement::bindInt(int i, qint64 v) {
    sqlite3_bind_int64(stmt_, i, v);
}
void SqliteStatement::bindDouble(int i, double v) {
    sqlite3_bind_double(stmt_, i, v);
}

void SqliteStatement::bindText(int i, const QString& v) {
    bindUtf8(i, v.toUtf8());
}

void SqliteStatement::bindUtf8(int i, const QByteArray& utf8) {
    bound_.append(utf8);
    sqlite3_bind_text(stmt_, i, bound_.last().constData(), int(bound_.last().size()),
                      SQLITE_STATIC);
}

void SqliteStatement::bindBlob(int i, const QByteArray& v) {
    bound_.append(v);
    // An empty array has no data pointer; SQLite takes null for NULL, so it gets a zero blob.
    if (v.isEmpty())
        sqlite3_bind_zeroblob(stmt_, i, 0);
    else
        sqlite3_bind_blob(stmt_, i, bound_.last().constData(), int(v.size()), SQLITE_STATIC);
}

void SqliteStatement::bind(int i, const QVariant& v) {
    if (!v.isValid() || v.isNull()) {
        bindNull(i);
        return;
    }
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::Short:
    case QMetaType::LongLong:
    case QMetaType::Bool:
        bindInt(i, v.toLongLong());
        break;
    case QMetaType::Double:
    case QMetaType::Float:
        bindDouble(i, v.toDouble());
        break;
    case QMetaType::QByteArray:
        bindBlob(i, v.toByteArray());
        break;
    default:
        bindText(i, v.toString());
        break;
    }
}

int SqliteStatement::step() {
    // A statement whose prepare failed never runs; its error is the connection's.
    return stmt_ ? sqlite3_step(stmt_) : SQLITE_ERROR;
}

bool SqliteStatement::isNull(int col) const {
    return sqlite3_column_type(stmt_, col) == SQLITE_NULL;
}
qint64 SqliteStatement::columnInt(int col) const {
    return sqlite3_column_int64(stmt_, col);
}
double SqliteStatement::columnDouble(int col) const {
    return sqlite3_column_double(stmt_, col);
}

QString SqliteStatement::columnText(int col) const {
    const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, col));
    return QString::fromUtf8(p, sqlite3_column_bytes(stmt_, col));
}

QByteArray SqliteStatement::columnBlob(int col) const {
    const auto* p = static_cast<const char*>(sqlite3_column_blob(stmt_, col));
    return QByteArray(p, sqlite3_column_bytes(stmt_, col));
}

SqliteDatabase::~SqliteDatabase() {
    close();
}

namespace {
// Whether the file, or the folder that would hold its journal, refuses writing. A folder that
// refuses new files leaves a store in WAL mode unreadable unless it is opened as immutable.
bool writable(const QString& path, bool* folderWritable) {
    const QByteArray file = Files::nativeName(path);
    const QByteArray folder = Files::nativeName(Files::folderOf(path));
    *folderWritable = ::access(folder.constData(), W_OK) == 0 && !onReadOnlyMedium(folder);
    return *folderWritable &&
           (::access(file.constData(), F_OK) != 0 || ::access(file.constData(), W_OK) == 0);
}
} // namespace

bool SqliteDatabase::open(const QString& path) {
    close();
    readOnly_ = false;
    // An address such as "file:/name?vfs=memdb": a store in memory, nothing on a disk.
    if (path.startsWith(QLatin1String("file:"))) {
        const int rc =
            sqlite3_open_v2(path.toUtf8().constData(), &db_,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_URI, nullptr);
        setBusyTimeout(BusyTimeoutMs);
        return rc == SQLITE_OK;
    }
    bool folderWritable = true;
    const bool canWrite = writable(path, &folderWritable);
    if (canWrite) {
        // URIs let a store attach another by the bytes of its name (the journal reads the
        // collection a restore replaced); a name of a file is read as a name all the same.
        const int rc =
            sqlite3_open_v2(Files::nativeName(path).constData(), &db_,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_URI, nullptr);
        if (rc != SQLITE_OK)
            return false;
    } else if (const Files::Status log = Files::status(path + QLatin1String("-wal"));
               !folderWritable && log.isFile && log.size > 0) {
        // The last writer stopped before its log went into the file (a crash), and the log
        // can only be read where a shared-memory file can be made beside it: read a copy of
        // both, so that nothing the log holds is missed.
        copy_ = std::make_unique<QTemporaryDir>();
        const QString file = copy_->filePath(path.mid(path.lastIndexOf(QLatin1Char('/')) + 1));
        if (!copy_->isValid() || !Files::copyAtomically(path, file).ok() ||
            !Files::copyAtomically(log.path, file + QLatin1String("-wal")).ok())
            return false;
        if (sqlite3_open_v2(Files::nativeName(file).constData(), &db_, SQLITE_OPEN_READWRITE,
                            nullptr) != SQLITE_OK)
            return false;
        readOnly_ = true;
    } else {
        // Immutable: no lock, journal or shared-memory file is made, since none can be.
        const QByteArray uri =
            sqliteFileUri(path) + (folderWritable ? QByteArray() : QByteArray("?immutable=1"));
        const int rc =
            sqlite3_open_v2(uri.constData(), &db_, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
        if (rc != SQLITE_OK)
            return false;
        readOnly_ = true;
    }
    setBusyTimeout(BusyTimeoutMs);
    return true;
}

bool SqliteDatabase::open(const QString& path, Access access) {
    close();
    readOnly_ = false;
    if (access == Access::Read &&
        !(Files::isWritable(path) && Files::isWritable(Files::folderOf(path))))
        access = Access::Inspect;
    const QByteArray name =
        access == Access::Inspect ? sqliteFileUri(path) + "?mode=ro" : Files::nativeName(path);
    const int flags = access == Access::Inspect ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI
                      : access == Access::Read  ? SQLITE_OPEN_READWRITE
                                                : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    const int rc = sqlite3_open_v2(name.constData(), &db_, flags, nullptr);
    readOnly_ = access == Access::Inspect;
    if (db_)
        setBusyTimeout(BusyTimeoutMs);
    return rc == SQLITE_OK;
}

void SqliteDatabase::setBusyTimeout(int ms) {
    sqlite3_busy_timeout(db_, ms);
}

void SqliteDatabase::close() {
    cache_.clear();
    if (db_)
        sqlite3_close_v2(db_);
    db_ = nullptr;
    copy_.reset();
}

bool SqliteDatabase::exec(const QString& sql) {
    return sqlite3_exec(db_, sql.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::optional<QString> SqliteDatabase::text(const QString& sql) {
    SqliteStatement statement(db_, sql);
    if (statement.step() != SQLITE_ROW)
        return std::nullopt;
    return statement.columnText(0);
}

int SqliteDatabase::errorCode() const {
    return db_ ? sqlite3_extended_errcode(db_) : SQLITE_CANTOPEN;
}

QString SqliteDatabase::errorMessage() const {
    return db_ ? QString::fromUtf8(sqlite3_errmsg(db_))
               : QStringLiteral("unable to open database file");
}

Error SqliteDatabase::error() const {
    Error e = Error::because(errorCode(), errorMessage());
    if (const char* file = db_ ? sqlite3_db_filename(db_, "main") : nullptr; file && *file)
        e.file = Files::fromNativeName(QByteArray(file));
    return e;
}

qint64 SqliteDatabase::lastInsertRowId() const {
    return sqlite3_last_insert_rowid(db_);
}

SqliteStatement& SqliteDatabase::cached(const QString& sql) {
    auto it = cache_.find(sql);
    if (it != cache_.end()) {
        (*it)->reset();
        return **it;
    }
    return *cache_.insert(sql, std::make_shared<SqliteStatement>(db_, sql)).value();
}

void SqliteDatabase::resetAll() {
    for (auto& stmt : cache_)
        stmt->reset();
}

QByteArray sqliteFileUri(const QString& path) {
    const QByteArray name = Files::nativeName(path).toPercentEncoding("/");
    // An absolute name after an empty authority: "file:///folder/file".
    return (path.startsWith(QLatin1Char('/')) ? QByteArray("file://") : QByteArray("file:")) + name;
}
