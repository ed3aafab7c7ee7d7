#include "model/Restore.h"

#include "model/Snapshots.h"
#include "model/StoreFiles.h"
#include "platform/core/NativeFiles.h"

#include <sqlite3.h>

using namespace StoreFiles;

namespace Backup {

Result<Restored> restore(const QString& storePath, const QString& file, const Upgrade& upgrade) {
    const Result<StoreInfo> info = inspect(file);
    if (!info.ok())
        return info.error();
    if (sameFile(file, storePath))
        return failure(SQLITE_CANTOPEN, QStringLiteral("%1 is the collection itself").arg(file));
    if (Files::status(storePath).exists && !Files::status(storePath).isFile)
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
        return failure(SQLITE_CANTOPEN,
                       QStringLiteral("Cannot write into %1").arg(Files::folderOf(storePath)));
    auto fail = [&](const Error& e) {
        for (const char* part : {"", "-journal", "-wal", "-shm"})
            Files::remove(temporary + QLatin1String(part));
        return e;
    };
    if (const auto error = copyStore(file, temporary, {}); !error.ok())
        return fail(failure(error.error().code,
                            QStringLiteral("Cannot copy %1: %2").arg(file, error.error().message)));
    // An older schema is brought up to date on the copy, never on the file given.
    if (const auto error = upgrade(temporary); !error.ok())
        return fail(failure(
            error.error().code,
            QStringLiteral("Cannot bring %1 up to date: %2").arg(file, error.error().message)));
    // Everything in the log goes into the file, and the log goes with the last connection: a
    // log left behind means another program has the store open, and it would lay its pages
    // over the restored file. Asked before the snapshot, so that a refusal leaves nothing
    // behind, and again just before the file is replaced.
    auto inUse = [&] {
        {
            Connection current(storePath, Connection::Read);
            if (current.ok())
                current.exec("PRAGMA wal_checkpoint(TRUNCATE)");
        }
        return Files::status(storePath + QStringLiteral("-wal")).exists;
    };
    const Error busy = failure(
        SQLITE_BUSY, QStringLiteral("The collection is open in another Pelvane: close it and try "
                                    "again"));
    if (Files::status(storePath).exists) {
        if (inUse())
            return fail(busy);
        const Result<QString> snapshot =
            Snapshots::take(storePath, QStringLiteral("before-restore"));
        if (!snapshot.ok())
            return fail(failure(snapshot.error().code,
                                QStringLiteral("Cannot keep the current collection first: %1")
                                    .arg(snapshot.error().message)));
        out.snapshot = snapshot.value();
        if (inUse())
            return fail(busy);
    }
    if (const auto error = replace(temporary, storePath); !error.ok())
        return fail(error.error());
    Files::remove(storePath + QStringLiteral("-shm"));
    return out;
}

} // namespace Backup
