#pragma once
// Putting a backup or snapshot in place of the store.
#include "model/Backup.h"

#include <memory>

namespace Backup {

struct Restored {
    qint64 coinsBefore = 0;
    qint64 coinsAfter = 0;
    QString snapshot;     // where the collection as it was is kept
    bool damaged = false; // the collection could not be read: its file was moved aside whole
};

// Brings the store at the path to this build's schema (the container's migration).
using Upgrade = std::function<Result<void>(const QString& path)>;

// A backup or snapshot copied beside the store and checked there, ready to take its place. The
// copy is removed when the candidate goes unused.
class Candidate {
public:
    ~Candidate();
    const QString& file() const { return file_; }
    const StoreInfo& info() const { return info_; }

private:
    friend Result<std::shared_ptr<Candidate>> prepare(const QString&, const QString&,
                                                      const Upgrade&);
    friend Result<Restored> restore(const QString&, Candidate&);
    QString file_, copy_;
    StoreInfo info_;
};

// Copies `file` beside the store at `storePath` and checks the copy once: the checksum, the
// application id, the schema, the tables and columns, the integrity; an older schema is brought
// up to date on the copy. The file given is only read: a log beside it goes into the copy, never
// into the file.
Result<std::shared_ptr<Candidate>> prepare(const QString& storePath, const QString& file,
                                           const Upgrade& upgrade);

// Puts the candidate in place of the store, holding the store's lock alone from the first step
// to the last (no other program has the store open meanwhile): the store as it was is kept as a
// snapshot first or, when it cannot be read (damaged, cut short, not a database), moved aside
// whole beside it as "Pelvane-damaged-DATE-TIME.sqlite"; then the copy takes the store's place,
// through a symlink to the file it names, with the file's permissions. Works whatever state the
// store is in, missing included. Nothing changes before the step that keeps the store as it was.
Result<Restored> restore(const QString& storePath, Candidate& candidate);

// Both steps, for a caller that asks nothing in between.
Result<Restored> restore(const QString& storePath, const QString& file, const Upgrade& upgrade);

} // namespace Backup
