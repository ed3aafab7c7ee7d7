#pragma once
#include <QMap>
#include <QString>

// An error of the store, described the way the fatal stops and the console print it.
struct StoreError {
    int code = 0;
    QString message;
    QMap<QString, QString> userInfo;

    QString description() const;
    QString userInfoDescription() const;
    // Another connection holds the lock the store needed.
    bool isBusy() const { return (code & 0xff) == 5 || (code & 0xff) == 6; }
};
