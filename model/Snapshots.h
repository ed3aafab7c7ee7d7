#pragma once
// Snapshots: backups the program takes by itself into "Backups/" beside the store, once a day
// when the store has changed, before a restore and before a schema migration. Kept by calendar:
// the last 7 days, 4 weeks and 6 months that have one.
#include "platform/core/Error.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

namespace Snapshots {

struct Entry {
    QString path;
    QDate date;
    qint64 size = 0;
    QDateTime modified;
};

// "<folder of the store>/Backups".
QString folder(const QString& storePath);
// The snapshots in the folder, newest first.
QList<Entry> list(const QString& storePath);
// Whether the daily snapshot is due: none younger than a day, and the store changed since the
// newest one. Snapshots dated after `now` (by their file or their name) are left out, each said
// on the console.
bool due(const QString& storePath, const QDateTime& now = QDateTime::currentDateTime());
// Takes one now: "Pelvane-YYYY-MM-DD.sqlite", or with "-<occasion>" before the extension. Older
// snapshots beyond the calendar are deleted afterwards. The snapshot's path.
Result<QString> take(const QString& storePath, const QString& occasion = {},
                     const QDate& today = QDate::currentDate());
// Deletes the snapshots the calendar no longer keeps (and copies left half-written).
void prune(const QString& storePath, const QDate& today = QDate::currentDate());

// The retention rule on its own: of the dates given, the ones to keep.
QList<QDate> kept(QList<QDate> dates);

} // namespace Snapshots
