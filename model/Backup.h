#pragma once
// Exact copies of the store: a backup written while the program may be running, and the checks
// that tell a whole Pelvane store from any other file (see Restore.h for putting one in place).
#include "platform/core/Error.h"

#include <QString>
#include <functional>
#include <optional>

class SqliteDatabase;

namespace Backup {

// Called now and then while the store is copied: how much is done of how much.
using Progress = std::function<void(int done, int total)>;

// What a checked store holds.
struct StoreInfo {
    int schemaVersion = 0;
    qint64 coins = 0;
    bool sealed = false; // it carried a checksum, and its content matched it
};

// Copies the store at `storePath` to `target`, consistent as of one moment even while another
// connection writes: into a temporary file beside the target, sealed with the checksum of its
// content (Seal.h), checked (integrity, reopened, coins counted), then renamed over it. A target
// that exists and is no regular file, or that is one of the collection's own files, is refused;
// on any failure the target is left as it was. The number of coins copied.
Result<qint64> write(const QString& storePath, const QString& target,
                     const Progress& progress = {});

// The same into a name of the program's own choosing (a snapshot): never over an existing file.
Result<qint64> writeNew(const QString& storePath, const QString& target);

// Whether the file is a whole Pelvane store this build can open: our application id, a schema
// version not newer than ours, every table and column, SQLite's integrity check and, for a
// sealed copy, its checksum. The file is only read.
Result<StoreInfo> inspect(const QString& path);

// The checks of inspect() on a database already open, shown as `path` in the reasons.
Result<StoreInfo> checkOpen(SqliteDatabase& db, const QString& path);
// Whether the file exists, is a regular file and starts as an SQLite database does.
Result<void> looksLikeStore(const QString& path);

// What SQLite's quick check (every page and record read, without the index cross-checks) finds
// wrong with the store at the path, read only; nothing when it is whole or does not exist.
std::optional<QString> damageOf(const QString& storePath);

// How many coins the store at the path holds; 0 for a store that does not exist yet.
Result<qint64> coinCount(const QString& storePath);

} // namespace Backup
