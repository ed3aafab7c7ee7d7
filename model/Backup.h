#pragma once
// Exact copies of the store: a backup written while the program may be running, the checks that
// tell a Pelvane store from any other file, and a restore that changes nothing before every check
// has passed.
#include "model/StoreError.h"

#include <QString>
#include <functional>

struct sqlite3;

namespace Backup {

// Written into every store's header, so that a restore can tell our stores from other files.
inline constexpr int ApplicationId = 0x50656C76; // "Pelv"

// Called now and then while pages are copied: how many are done of how many.
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

// The reason the open database lacks a table or column the model needs; empty when it has them.
QString missingSchema(sqlite3* db);

struct Restored {
    qint64 coinsBefore = 0;
    qint64 coinsAfter = 0;
    QString snapshot; // where the collection as it was is kept
};

// How many coins the store at the path holds; 0 for a store that does not exist yet.
Result<qint64> coinCount(const QString& storePath);

// Replaces the store at `storePath` with the backup or snapshot `file`: checked, copied beside
// the store and migrated there, the current store kept as a snapshot, then renamed into place.
// Refused while another program has the store open. Nothing changes before every step up to the
// rename has succeeded.
Result<Restored> restore(const QString& storePath, const QString& file);

} // namespace Backup
