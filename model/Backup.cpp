#include "model/Backup.h"

#include "model/Originals.h"
#include "model/Seal.h"
#include "model/Sqlite.h"
#include "model/StoreFiles.h"
#include "model/StoreLock.h"
#include "model/StoreSchema.h"
#include "platform/core/Files.h"
#include "platform/core/NativeFiles.h"

#include <QFile>

#include <thread>

#include <sqlite3.h>

using namespace StoreFiles;

namespace Backup {

namespace {
Result<qint64> copyOf(const QString& storePath, const QString& target, const Progress& progress,
                      bool overExisting, bool withOriginals) {
    if (!Files::status(storePath).isFile)
        return failure(SQLITE_CANTOPEN,
                       QStringLiteral("There is no collection at %1").arg(storePath));
    if (!Files::status(Files::folderOf(target)).isDir)
        return failure(SQLITE_CANTOPEN,
                       QStringLiteral("Cannot write %1: the folder does not exist").arg(target));
    // The store's file stays the one this reads from: no restore swaps it meanwhile.
    const Result<StoreLock> lock =
        StoreLock::acquire(storePath, StoreLock::Reading, QStringLiteral("a backup"));
    if (!lock.ok())
        return lock.error();
    sweepParts(Files::folderOf(target));
    const QString temporary = temporaryBeside(target);
    if (temporary.isEmpty()) {
        const int why = errno;
        return systemError(QStringLiteral("Cannot write %1").arg(target), why);
    }
    auto fail = [&](const Error& e) {
        removeWithCompanions(temporary);
        return e;
    };
    if (const auto error = copyStore(storePath, temporary, progress); !error.ok())
        return fail(
            failure(error.error().code,
                    QStringLiteral("Cannot copy the collection: %1").arg(error.error().message)));
    qint64 coins = 0;
    {
        SqliteDatabase copy;
        if (!copy.open(temporary, SqliteDatabase::Access::Create))
            return fail(copy.error());
        // A snapshot shares the originals' folder with the store; a backup carries its own.
        if (withOriginals)
            if (const Result<int> added = Originals::addToBackup(copy.handle(), storePath);
                !added.ok())
                return fail(added.error());
        // The copy's checksum and SQLite's check of it read it side by side, one core each.
        std::optional<QString> problem;
        std::thread checker([&] {
            SqliteDatabase reader;
            problem = reader.open(temporary, SqliteDatabase::Access::Inspect)
                          ? integrityProblem(reader, Check::Quick)
                          : reader.error().message;
        });
        const Result<QByteArray> sum = Seal::digest(copy.handle());
        checker.join();
        if (problem)
            return fail(
                failure(SQLITE_CORRUPT,
                        QStringLiteral("The copy did not pass the check: %1").arg(*problem)));
        const Result<void> sealed =
            sum.ok() ? Seal::seal(copy.handle(), sum.value()) : Result<void>(sum.error());
        if (!sealed.ok())
            return fail(
                failure(sealed.error().code,
                        QStringLiteral("Cannot write %1: %2").arg(target, sealed.error().message)));
        const Result<qint64> counted = countCoins(copy);
        if (!counted.ok())
            return fail(counted.error());
        coins = counted.value();
    }
    if (const auto error = overExisting ? replace(temporary, target) : placeNew(temporary, target);
        !error.ok())
        return fail(error.error());
    return coins;
}
} // namespace

Result<qint64> write(const QString& storePath, const QString& target, const Progress& progress) {
    if (const Result<void> allowed = Files::isWritableTarget(target); !allowed.ok())
        return failure(SQLITE_CANTOPEN,
                       QStringLiteral("Cannot write %1: %2").arg(target, allowed.error().message));
    return copyOf(storePath, target, progress, true, true);
}

Result<qint64> writeNew(const QString& storePath, const QString& target) {
    return copyOf(storePath, target, {}, false, false);
}

Result<StoreInfo> checkOpen(SqliteDatabase& db, const QString& path) {
    auto refuse = [&](const QString& why) {
        return failure(SQLITE_NOTADB, QStringLiteral("%1 %2").arg(path, why));
    };
    const std::optional<QString> id = db.text(QStringLiteral("PRAGMA application_id"));
    const std::optional<QString> version = db.text(QStringLiteral("PRAGMA user_version"));
    if (!id || !version)
        return refuse(QStringLiteral("cannot be read: %1").arg(db.error().message));
    StoreInfo out;
    out.schemaVersion = version->toInt();
    // Stores written before the id was set are told by their tables alone.
    const bool before = id->toInt() == 0 && out.schemaVersion >= 1 && out.schemaVersion <= 2;
    if (id->toInt() != StoreSchema::ApplicationId && id->toInt() != Seal::SealedApplicationId &&
        !before)
        return refuse(QStringLiteral("is not a Pelvane backup: it is the database of another "
                                     "program"));
    if (out.schemaVersion > StoreSchema::Version)
        return refuse(QStringLiteral("was written by a newer Pelvane (store version %1; this one "
                                     "reads up to %2)")
                          .arg(out.schemaVersion)
                          .arg(StoreSchema::Version));
    if (out.schemaVersion < 1)
        return refuse(QStringLiteral("is not a Pelvane backup: it holds no collection"));
    if (const QString missing = StoreSchema::missing(db.handle()); !missing.isEmpty())
        return refuse(before ? QStringLiteral("is not a Pelvane backup: it is the database of "
                                              "another program (%1)")
                                   .arg(missing)
                             : QStringLiteral("is not a whole Pelvane backup: %1").arg(missing));
    if (auto problem = integrityProblem(db))
        return refuse(QStringLiteral("is damaged: %1").arg(*problem));
    const Result<Seal::Verdict> verdict = Seal::verify(db.handle());
    if (!verdict.ok())
        return refuse(QStringLiteral("is damaged: %1").arg(verdict.error().message));
    out.sealed = verdict.value() == Seal::Verdict::Whole;
    const Result<qint64> coins = countCoins(db);
    if (!coins.ok())
        return refuse(QStringLiteral("cannot be read: %1").arg(coins.error().message));
    out.coins = coins.value();
    return out;
}

Result<void> looksLikeStore(const QString& path) {
    const Files::Status info = Files::status(path);
    auto refuse = [&](const QString& why) {
        return failure(SQLITE_NOTADB, QStringLiteral("%1 %2").arg(path, why));
    };
    if (!info.exists)
        return refuse(QStringLiteral("does not exist"));
    if (!info.isFile)
        return refuse(QStringLiteral("is not a regular file"));
    QFile file;
    if (const Result<void> opened = Files::open(file, path, QIODevice::ReadOnly); !opened.ok())
        return refuse(QStringLiteral("cannot be read: %1").arg(opened.error().message));
    if (file.read(16) != QByteArray("SQLite format 3\0", 16))
        return refuse(QStringLiteral("is not a Pelvane backup: it is no SQLite database"));
    return {};
}

Result<StoreInfo> inspect(const QString& path) {
    if (const Result<void> looks = looksLikeStore(path); !looks.ok())
        return looks.error();
    SqliteDatabase db;
    if (!db.open(path, SqliteDatabase::Access::Inspect))
        return failure(SQLITE_NOTADB,
                       QStringLiteral("%1 cannot be opened: %2").arg(path, db.error().message));
    return checkOpen(db, path);
}

std::optional<QString> damageOf(const QString& storePath) {
    if (!Files::status(storePath).exists)
        return {};
    SqliteDatabase db;
    if (!db.open(storePath, SqliteDatabase::Access::Inspect))
        return db.error().message;
    return integrityProblem(db, Check::Quick);
}

Result<qint64> coinCount(const QString& storePath) {
    if (!Files::status(storePath).exists)
        return qint64(0);
    SqliteDatabase db;
    if (!db.open(storePath, SqliteDatabase::Access::Read))
        return db.error();
    return countCoins(db);
}

} // namespace Backup
