#pragma once
// Exact copies of the store: a backup written while the program may be running, and the checks
// that tell a whole Pelvane store from any other file (see Restore.h for putting one in place).
#include "platform/core/Error.h"

#include <QString>
#include <functional>

namespace Backup {

// Called now and then while the store is copied: how much is done of how much.
using Progress = std::function<void(int done, int total)>;

// What a checked store holds.
struct StoreInfo {
    int schemaVersion = 0;
    qint64 coins = 0;
};

// Copies the store at `storePath` to `target`, consistent as of one moment even while another
// connection writes: into a temporary file beside the target, checked (integrity, reopened,
// coins counted), then renamed over it. A target that exists and is no regular file is refused;
// on any failure the target is left as it was. The number of coins copied.
Result<qint64> write(const QString& storePath, const QString& target,
                     const Progress& progress = {});

// Whether the file is a whole Pelvane store this build can open: our application id, a schema
// version not newer than ours, every table and column, and SQLite's integrity check.
Result<StoreInfo> inspect(const QString& path);

// How many coins the store at the path holds; 0 for a store that does not exist yet.
Result<qint64> coinCount(const QString& storePath);

} // namespace Backup
