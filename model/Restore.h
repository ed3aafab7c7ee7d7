#pragma once
// Putting a backup or snapshot in place of the store.
#include "model/Backup.h"

#include <optional>

namespace Backup {

struct Restored {
    qint64 coinsBefore = 0;
    qint64 coinsAfter = 0;
    QString snapshot; // where the collection as it was is kept
};

// Brings the store at the path to this build's schema (the container's migration).
using Upgrade = std::function<Result<void>(const QString& path)>;

// Replaces the store at `storePath` with the backup or snapshot `file`: checked, copied beside
// the store and brought up to date there, the current store kept as a snapshot, then renamed
// into place. Refused while another program has the store open. Nothing changes before every
// step up to the rename has succeeded.
Result<Restored> restore(const QString& storePath, const QString& file, const Upgrade& upgrade);

} // namespace Backup
