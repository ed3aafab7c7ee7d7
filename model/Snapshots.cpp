#include "model/Snapshots.h"

#include "model/Backup.h"
#include "model/StoreFiles.h"
#include "platform/core/Console.h"
#include "platform/core/NativeFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace Snapshots {

namespace {
constexpr int kDays = 7, kWeeks = 4, kMonths = 6;
const QString kPrefix = QStringLiteral("Pelvane-");

QDateTime modified(const QString& path) {
    const Files::Status info = Files::status(path);
    return info.exists ? info.modified : QDateTime();
}
} // namespace

QString folder(const QString& storePath) {
    return QFileInfo(storePath).absoluteDir().filePath(QStringLiteral("Backups"));
}

QList<Entry> list(const QString& storePath) {
    QList<Entry> out;
    for (const Files::Status& info :
         Files::filesIn(folder(storePath), {kPrefix + QStringLiteral("*.sqlite")})) {
        const QDate date = QDate::fromString(info.fileName().mid(kPrefix.size(), 10),
                                             QStringLiteral("yyyy-MM-dd"));
        if (date.isValid())
            out.append({info.path, date, info.size, info.modified});
    }
    std::sort(out.begin(), out.end(), [](const Entry& a, const Entry& b) {
        return a.modified != b.modified ? a.modified > b.modified : a.path > b.path;
    });
    return out;
}

bool due(const QString& storePath, const QDateTime& now) {
    if (!Files::status(storePath).isFile)
        return false;
    // One dated after now (taken while the clock was ahead, or copied in) would hold every
    // snapshot back until its date came: it does not count as the last one taken.
    QDateTime newest;
    for (const Entry& e : list(storePath)) {
        if (e.modified > now || e.date > now.date()) {
            Console::log(QStringLiteral("Snapshot %1 is dated in the future; ignored").arg(e.path));
            continue;
        }
        if (!newest.isValid())
            newest = e.modified;
    }
    if (!newest.isValid())
        return true;
    if (newest.secsTo(now) < 24 * 60 * 60)
        return false;
    return std::max(modified(storePath), modified(storePath + QStringLiteral("-wal"))) > newest;
}

Result<QString> take(const QString& storePath, const QString& occasion, const QDate& today) {
    const QString dir = folder(storePath);
    if (!Files::makePath(dir))
        return Error::because(ErrorCode::CantOpen,
                              QStringLiteral("Cannot make the folder %1").arg(dir));
    QString name = kPrefix + today.toString(QStringLiteral("yyyy-MM-dd"));
    // A snapshot taken for an occasion never replaces one taken earlier, even in the same
    // second; the daily one takes the time too when the day has one already.
    const QString time = QTime::currentTime().toString(QStringLiteral("HHmmss-zzz"));
    if (!occasion.isEmpty())
        name += QLatin1Char('-') + occasion + QLatin1Char('-') + time;
    for (int n = 1;; ++n) {
        QString candidate = name;
        if (occasion.isEmpty() && n > 1)
            candidate += QLatin1Char('-') + time;
        if (n > 2)
            candidate += QStringLiteral("-%1").arg(n);
        const QString path = QDir(dir).filePath(candidate + QStringLiteral(".sqlite"));
        if (Files::status(path).exists && n < 100)
            continue;
        const Result<qint64> written = Backup::writeNew(storePath, path);
        // Taken by another snapshot between the look and the rename: the next name.
        if (!written.ok() && Files::status(path).exists && n < 100)
            continue;
        if (!written.ok())
            return written.error();
        prune(storePath, today);
        return path;
    }
}

QList<QDate> kept(QList<QDate> dates) {
    std::sort(dates.begin(), dates.end(), std::greater<>());
    dates.erase(std::unique(dates.begin(), dates.end()), dates.end());
    QSet<QDate> keep;
    // The newest date of each of the latest days, weeks and months that have a snapshot.
    auto keepNewestPer = [&](auto period, int count) {
        QSet<qint64> seen;
        for (const QDate& d : std::as_const(dates)) {
            if (seen.size() == count)
                break;
            const qint64 key = period(d);
            if (!seen.contains(key)) {
                seen.insert(key);
                keep.insert(d);
            }
        }
    };
    keepNewestPer([](const QDate& d) { return d.toJulianDay(); }, kDays);
    keepNewestPer(
        [](const QDate& d) {
            int year = 0;
            const int week = d.weekNumber(&year);
            return qint64(year) * 100 + week;
        },
        kWeeks);
    keepNewestPer([](const QDate& d) { return qint64(d.year()) * 100 + d.month(); }, kMonths);
    QList<QDate> out(keep.begin(), keep.end());
    std::sort(out.begin(), out.end(), std::greater<>());
    return out;
}

void prune(const QString& storePath, const QDate& today) {
    const QList<Entry> all = list(storePath);
    QList<QDate> dates;
    for (const Entry& e : all)
        if (e.date <= today)
            dates.append(e.date);
    const QList<QDate> keep = kept(dates);
    for (const Entry& e : all)
        if (e.date <= today && !keep.contains(e.date))
            Files::remove(e.path);
    // Copies a stopped program left half-written.
    StoreFiles::sweepParts(folder(storePath));
}

} // namespace Snapshots
