#include "model/Restore.h"

#include "model/Originals.h"
#include "model/Seal.h"
#include "model/Snapshots.h"
#include "model/Sqlite.h"
#include "model/StoreFiles.h"
#include "model/StoreLock.h"
#include "model/StoreSchema.h"
#include "platform/core/NativeFiles.h"
#include "platform/core/NativeNames.h"
#include "platform/core/ProtectedFiles.h"

#include <QDateTime>

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace StoreFiles;

namespace Backup {

namespace {
// "Pelvane" of "Pelvane.sqlite".
QString baseName(const QString& fileName) {
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? fileName.left(dot) : fileName;
}

// A store that cannot be read as a whole collection, as opposed to one that cannot be reached.
bool isDamage(const Error& e) {
    switch (e.code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_READONLY:
    case SQLITE_FULL:
    case SQLITE_NOMEM:
        return false;
    case SQLITE_IOERR:
        return e.code == SQLITE_IOERR_SHORT_READ;
    default:
        return true;
    }
}

// The damaged store, its log and its journal, renamed beside it under one new name each; never
// copied (a copy through SQLite would need it readable) and never deleted.
Result<QString> moveAside(const QString& real) {
    const Files::Status info = Files::status(real);
    const QString stamp =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss-zzz"));
    for (int n = 1; n < 100; ++n) {
        const QString name = QStringLiteral("%1-damaged-%2%3.sqlite")
                                 .arg(baseName(info.fileName()), stamp,
                                      n == 1 ? QString() : QStringLiteral("-%1").arg(n));
        const QString aside = Files::folderOf(real) + QLatin1Char('/') + name;
        if (Files::status(aside).exists || Files::status(aside + QStringLiteral("-wal")).exists)
            continue;
        for (const char* part : {"-wal", "-journal"})
            if (Files::status(real + QLatin1String(part)).exists)
                if (const auto moved =
                        placeNew(real + QLatin1String(part), aside + QLatin1String(part));
                    !moved.ok())
                    return moved.error();
        if (Files::status(real).exists)
            if (const auto moved = placeNew(real, aside); !moved.ok())
                return moved.error();
        removeCompanions(real);
        return aside;
    }
    return failure(
        SQLITE_CANTOPEN,
        QStringLiteral("Cannot find a free name beside %1 for the damaged collection").arg(real));
}
} // namespace

Candidate::~Candidate() {
    if (!copy_.isEmpty())
        removeWithCompanions(copy_);
}

Result<std::shared_ptr<Candidate>> prepare(const QString& storePath, const QString& file,
                                           const Upgrade& upgrade) {
    if (const Result<void> looks = looksLikeStore(file); !looks.ok())
        return looks.error();
    if (sameFile(file, storePath))
        return failure(SQLITE_CANTOPEN, QStringLiteral("%1 is the collection itself").arg(file));
    const QString real = Files::resolved(storePath);
    if (Files::status(real).exists && !Files::status(real).isFile)
        return failure(SQLITE_CANTOPEN, QStringLiteral("%1 is not a regular file").arg(real));
    Files::makePath(Files::folderOf(real));
    sweepParts(Files::folderOf(real));
    auto candidate = std::make_shared<Candidate>();
    candidate->file_ = file;
    candidate->copy_ = temporaryBeside(real);
    const QString& copy = candidate->copy_;
    if (copy.isEmpty())
        return failure(SQLITE_CANTOPEN,
                       QStringLiteral("Cannot write into %1").arg(Files::folderOf(real)));
    // The file as it is, and its log: read, never opened by SQLite, so never changed.
    if (const auto copied = copyBytes(file, copy); !copied.ok())
        return failure(copied.error().code,
                       QStringLiteral("Cannot copy %1: %2").arg(file, copied.error().message));
    if (const Files::Status log = Files::status(file + QStringLiteral("-wal"));
        log.isFile && log.size > 0)
        if (const auto copied = copyBytes(log.path, copy + QStringLiteral("-wal")); !copied.ok())
            return failure(
                copied.error().code,
                QStringLiteral("Cannot copy %1: %2").arg(log.path, copied.error().message));
    {
        SqliteDatabase db;
        if (!db.open(copy, SqliteDatabase::Access::Create) ||
            !db.exec(QStringLiteral("PRAGMA journal_mode=DELETE")))
            return failure(SQLITE_NOTADB,
                           QStringLiteral("%1 cannot be opened: %2").arg(file, db.error().message));
        const Result<StoreInfo> info = checkOpen(db, file);
        if (!info.ok())
            return info.error();
        candidate->info_ = info.value();
        if (const Result<void> opened = Seal::unseal(db.handle()); !opened.ok())
            return opened.error();
        // The photos a backup carries go into the folder before anything else changes: they are
        // named by their content, so none is ever replaced by another.
        if (const Result<int> taken = Originals::takeFromBackup(db.handle(), real); !taken.ok())
            return failure(taken.error().code, QStringLiteral("Cannot bring back the original "
                                                              "photos of %1: %2")
                                                   .arg(file, taken.error().message));
    }
    // An older schema is brought up to date on the copy, never on the file given.
    if (candidate->info_.schemaVersion < StoreSchema::Version)
        if (const auto error = upgrade(copy); !error.ok())
            return failure(
                error.error().code,
                QStringLiteral("Cannot bring %1 up to date: %2").arg(file, error.error().message));
    return candidate;
}

Result<Restored> restore(const QString& storePath, Candidate& candidate) {
    if (candidate.copy_.isEmpty())
        return failure(SQLITE_MISUSE, QStringLiteral("The backup has been restored already"));
    const Result<StoreLock> lock = StoreLock::acquire(
        storePath, StoreLock::Replacing, QStringLiteral("a restore from %1").arg(candidate.file_));
    if (!lock.ok())
        return lock.error();
    const QString real = Files::resolved(storePath);
    Restored out;
    out.coinsAfter = candidate.info_.coins;
    struct stat before {};
    const bool existed = ::stat(Files::nativeName(real).constData(), &before) == 0;
    const bool logOnly = !existed && Files::status(real + QStringLiteral("-wal")).exists;
    if (existed || logOnly) {
        // The log goes into the file first (and with the last connection, away): the file alone
        // is then the collection, to be kept whole.
        {
            SqliteDatabase current;
            if (current.open(real, SqliteDatabase::Access::Read))
                current.exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
        }
        const Result<qint64> held = coinCount(real);
        bool damaged = logOnly || (!held.ok() && isDamage(held.error()));
        if (!held.ok() && !damaged)
            return failure(
                held.error().code,
                QStringLiteral("Cannot read the collection: %1").arg(held.error().message));
        // Pelvane's own programs wait for the lock; another program that has the file open
        // keeps its log, and would lay it over the new file.
        if (!damaged && Files::status(real + QStringLiteral("-wal")).exists)
            return failure(SQLITE_BUSY, QStringLiteral("The collection is open in another "
                                                       "program: close it and try again"));
        if (!damaged) {
            out.coinsBefore = held.value();
            const Result<QString> snapshot =
                Snapshots::take(storePath, QStringLiteral("before-restore"));
            if (snapshot.ok())
                out.snapshot = snapshot.value();
            else if (isDamage(snapshot.error()))
                damaged = true;
            else
                return failure(snapshot.error().code,
                               QStringLiteral("Cannot keep the current collection first: %1")
                                   .arg(snapshot.error().message));
        }
        if (damaged) {
            const Result<QString> aside = moveAside(real);
            if (!aside.ok())
                return failure(aside.error().code,
                               QStringLiteral("Cannot move the damaged collection aside: %1")
                                   .arg(aside.error().message));
            out.snapshot = aside.value();
            out.damaged = true;
            out.coinsBefore = 0;
        }
    }
    pauseForTests("restore-swap");
    // Nothing of the old file may stay beside the new one: its log would be laid over it.
    removeCompanions(real);
    const QByteArray copyName = Files::nativeName(candidate.copy_);
    if (existed) {
        ::chmod(copyName.constData(), before.st_mode & 07777);
        if (::chown(copyName.constData(), before.st_uid, before.st_gid) != 0) {
            // Only root may give a file away; the file stays the restorer's.
        }
    } else {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        ::chmod(copyName.constData(), 0666 & ~mask);
    }
    if (const auto error = replace(candidate.copy_, real); !error.ok())
        return error.error();
    candidate.copy_.clear();
    return out;
}

Result<Restored> restore(const QString& storePath, const QString& file, const Upgrade& upgrade) {
    const Result<std::shared_ptr<Candidate>> candidate = prepare(storePath, file, upgrade);
    if (!candidate.ok())
        return candidate.error();
    return restore(storePath, *candidate.value());
}

} // namespace Backup
