#pragma once
#include <QMap>
#include <QString>

#include <optional>
#include <utility>

// An error of the store, described the way the fatal stops and the console print it.
struct StoreError {
    int code = 0;
    QString message;
    QMap<QString, QString> userInfo;

    // An error with its code and the reason a person reads.
    static StoreError because(int code, QString message) {
        StoreError e;
        e.code = code;
        e.message = std::move(message);
        return e;
    }
    QString description() const;
    QString userInfoDescription() const;
    // Another connection holds the lock the store needed (SQLITE_BUSY or SQLITE_LOCKED).
    bool isBusy() const { return (code & 0xff) == 5 || (code & 0xff) == 6; }
};

// A value, or the error that kept it from being made.
template <typename T> class Result {
public:
    Result(T value)
        : value_(std::move(value)) {}
    Result(StoreError error)
        : error_(std::move(error)) {}
    bool ok() const { return value_.has_value(); }
    const T& value() const { return *value_; }
    const StoreError& error() const { return *error_; }

private:
    std::optional<T> value_;
    std::optional<StoreError> error_;
};
