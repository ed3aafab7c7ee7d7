#pragma once
// Thin RAII wrappers over the sqlite3 C API: a connection and a prepared statement.
#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>
#include <memory>
#include <optional>

struct Error;
struct sqlite3;
struct sqlite3_stmt;

class SqliteStatement {
public:
    SqliteStatement() = default;
    SqliteStatement(sqlite3* db, const QString& sql);
    ~SqliteStatement();
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;
    SqliteStatement(SqliteStatement&& other) noexcept;
    SqliteStatement& operator=(SqliteStatement&& other) noexcept;

    bool isValid() const { return stmt_ != nullptr; }
    void reset();
    void bindNull(int i);
    void bindInt(int i, qint64 v);
    void bindDouble(int i, double v);
    void bindText(int i, const QString& v);
    // A text already in UTF-8, bound where it lies.
    void bindUtf8(int i, const QByteArray& utf8);
    void bindBlob(int i, const QByteArray& v);
    // Binds an absent QVariant as NULL, numbers, texts and bytes by their type.
    void bind(int i, const QVariant& v);
    // SQLITE_ROW, SQLITE_DONE or an error code.
    int step();
    bool isNull(int col) const;
    qint64 columnInt(int col) const;
    double columnDouble(int col) const;
    QString columnText(int col) const;
    QByteArray columnBlob(int col) const;

private:
    sqlite3_stmt* stmt_ = nullptr;
    // Texts and bytes bound since the last reset, kept here so that SQLite reads them where
    // they are instead of copying them: a huge field is then held once, not twice.
    QList<QByteArray> bound_;
};

class SqliteDatabase {
public:
    SqliteDatabase() = default;
    ~SqliteDatabase();
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;

    // How long a statement waits for another program's lock before it answers busy.
    static constexpr int BusyTimeoutMs = 2000;

    // Opens (creates) the file; false with errorMessage() on failure. Where the file cannot be
    // written (a read-only file, folder or medium) it is opened for reading only, without
    // creating anything beside it.
    bool open(const QString& path);
    // What a connection opened for one job on a file (a backup, a restore, a check) does with it.
    enum class Access {
        Read,    // for reading; opened for writing where it can be, so that closing it takes
                 // away the log it may have made beside a store
        Inspect, // for reading only: a file given to be checked is never changed
        Create,  // a new file
    };
    // Opens the file for one job; false with error() on failure.
    bool open(const QString& path, Access access);
    bool isReadOnly() const { return readOnly_; }
    void setBusyTimeout(int ms);
    void close();
    bool exec(const QString& sql);
    // The first column of the first row as text; nothing when the statement fails. The
    // statement is finalised at once, so it holds no read open after it.
    std::optional<QString> text(const QString& sql);
    int errorCode() const;
    QString errorMessage() const;
    // The last failure as the program's error: SQLite's code and reason.
    Error error() const;
    qint64 lastInsertRowId() const;
    sqlite3* handle() const { return db_; }
    // A statement prepared once and kept for the life of the connection.
    SqliteStatement& cached(const QString& sql);
    // Resets every cached statement (after a rollback, so none holds the aborted transaction).
    void resetAll();

private:
    sqlite3* db_ = nullptr;
    bool readOnly_ = false;
    // A private copy read in place of a store whose log cannot be read where it is.
    std::unique_ptr<QTemporaryDir> copy_;
    QHash<QString, std::shared_ptr<SqliteStatement>> cache_;
};

// The "file:" address SQLite opens a file by (SQLITE_OPEN_URI), made of the name's own bytes, so
// that a name that is not UTF-8 opens the file it names. Options follow after "?".
QByteArray sqliteFileUri(const QString& path);
