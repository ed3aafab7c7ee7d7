#pragma once
// The program's one error type: a code, the reason a person reads (SQLite's or the system's),
// and what was being done. A function that can fail returns a Result: its value, or the error.
#include <QString>

#include <optional>
#include <utility>

// The result codes the program tells apart. The store's errors carry SQLite's own codes, whose
// primary part (the low byte) these are.
namespace ErrorCode {
constexpr int Busy = 5;      // SQLITE_BUSY: another connection holds the lock
constexpr int Locked = 6;    // SQLITE_LOCKED: a table is locked by this connection's own work
constexpr int CantOpen = 14; // SQLITE_CANTOPEN: a file that cannot be opened or written
constexpr int Corrupt = 11;  // SQLITE_CORRUPT
constexpr int NotADb = 26;   // SQLITE_NOTADB
// The store's own, past SQLite's range, as the fatal stops print them.
constexpr int StoreIncomplete = 134020;   // a table or column this program needs is missing
constexpr int StoreIncompatible = 134100; // written by a newer program
} // namespace ErrorCode

struct Error {
    int code = 0;
    QString message; // why, as a person reads it
    QString doing;   // what was being done ("writing FILE"), when it was said
    QString file;    // the database it concerns, when it concerns one

    // An error with its code, its reason and what was being done.
    static Error because(int code, QString message, QString doing = {}) {
        Error e;
        e.code = code;
        e.message = std::move(message);
        e.doing = std::move(doing);
        return e;
    }
    // As the console prints a store's error: the reason and the code.
    QString description() const;
    // As a designed stop prints a store's error after its fixed words: what went wrong in plain
    // words with SQLite's reason, the file and the code ("the collection is damaged (database
    // disk image is malformed), store /home/ann/Pelvane.sqlite, SQLite code 11").
    QString stopText() const;
    // Another connection held the lock the store needed.
    bool isBusy() const {
        return (code & 0xff) == ErrorCode::Busy || (code & 0xff) == ErrorCode::Locked;
    }
};

// A value, or the error that kept it from being made.
template <typename T> class Result {
public:
    Result(T value)
        : value_(std::move(value)) {}
    Result(Error error)
        : error_(std::move(error)) {}
    bool ok() const { return value_.has_value(); }
    const T& value() const { return *value_; }
    T& value() { return *value_; }
    // The value, or `otherwise` after a failure.
    T valueOr(T otherwise) const { return ok() ? *value_ : std::move(otherwise); }
    const Error& error() const { return *error_; }

private:
    std::optional<T> value_;
    std::optional<Error> error_;
};

// Done, or the error that kept it from being done.
template <> class Result<void> {
public:
    Result() = default;
    Result(Error error)
        : error_(std::move(error)) {}
    bool ok() const { return !error_.has_value(); }
    const Error& error() const { return *error_; }

private:
    std::optional<Error> error_;
};
