#pragma once
// One writer at a time, and no file swapped under a reader: a lock file beside the store
// ("Pelvane.sqlite.lock"), locked with the system's record locks, which the kernel lets go when
// the process ends however it ends, so a killed program never leaves a lock to guess about.
//
// Two bytes of the file are locked:
// - the writer's byte, exclusively, by every process that changes the store as a whole piece of
//   work: the window for its lifetime, an import, a restore; the holder writes who it is into
//   the file, so that the next one can name it;
// - the file's byte, shared by every process that has the store open (and by a backup's read),
//   exclusively by a restore while it puts another file in the store's place, so that nobody
//   holds the old file, its log or its index when it goes.
// SQLite's own locking still keeps every single transaction consistent.
#include "platform/core/Error.h"

#include <QString>
#include <memory>

class StoreLock {
public:
    enum Level {
        Reading,   // the file's byte shared
        Writing,   // the writer's byte, and the file's byte shared
        Replacing, // the writer's byte, and the file's byte alone
    };

    // "<store>.lock".
    static QString lockPath(const QString& storePath);
    // Takes the lock at the level, waiting up to the wait (milliseconds; the default, 5 seconds,
    // unless PELVANE_LOCK_WAIT_MS says otherwise) for another process to let go. `holder` says
    // who takes it ("the window", "pelvane --import FILE"), for the next one to read. Locks of
    // one process never stand in each other's way. Where no lock file can be made (a store on a
    // read-only medium, which nobody can write), the lock is held without one.
    static Result<StoreLock> acquire(const QString& storePath, Level level, const QString& holder,
                                     int waitMs = -1);
    // Moves a held lock to another level, waiting as acquire does; on failure it stays as it was.
    Result<void> change(Level level, int waitMs = -1);

    StoreLock() = default;
    StoreLock(StoreLock&&) noexcept;
    StoreLock& operator=(StoreLock&&) noexcept;
    ~StoreLock();
    bool held() const { return entry_ != nullptr; }
    Level level() const { return level_; }
    void release();

    struct Entry;

private:
    std::shared_ptr<Entry> entry_;
    Level level_ = Reading;
};

// Stores in memory and the fuzz targets need no lock file.
bool storeIsFile(const QString& storePath);
