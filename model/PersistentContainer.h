#pragma once
// The persistent container: one SQLite file "<name>.sqlite" in the application data folder and
// the one main context over it.
#include "model/ManagedObjectContext.h"
#include "model/Restore.h"
#include "model/StoreLock.h"
#include "model/StoreSchema.h"
#include "platform/core/Error.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>

class SqliteDatabase;

struct StoreDescription {
    QString path;
};

class PersistentContainer {
public:
    // The schema this build writes; a store with a newer one is refused, not touched.
    static constexpr int SchemaVersion = StoreSchema::Version;

    explicit PersistentContainer(QString name);
    ~PersistentContainer();

    using Completion = std::function<void(const StoreDescription&, const std::optional<Error>&)>;
    void loadPersistentStores(const Completion& completion);
    ManagedObjectContext* viewContext() const { return context_.get(); }
    QString name() const { return name_; }

    // Where stores live: QStandardPaths::AppDataLocation unless set (--data-dir, tests).
    static void setDefaultDirectory(const QString& dir);
    static QString defaultDirectory();
    // Stores kept in memory only (SQLite's memdb), shared by the containers of one process:
    // for the fuzz targets, which make thousands of stores a second.
    static void setInMemory(bool inMemory);
    // The file loadPersistentStores opens.
    QString storePath() const;

    // Opens (creates, migrates) the store at the path; a store of an older schema is kept as a
    // snapshot first when `snapshotFirst`.
    Result<void> loadStoreAt(const QString& path, bool snapshotFirst = true);
    // Brings a copy of a store up to this build's schema (for a restore): opened, migrated
    // without a snapshot of its own, closed.
    static Result<void> upgradeCopy(const QString& path);

    // Replaces the store with a backup or snapshot (see Backup::restore) while the program runs:
    // the store is closed for it and opened again, and the context forgets what it held. A
    // file that fails the checks changes nothing. An error of the reopening is the container's
    // own failure to load.
    Result<Backup::Restored> restoreFrom(const QString& file);
    // The same for a backup already copied and checked (Backup::prepare).
    Result<Backup::Restored> restoreFrom(Backup::Candidate& candidate);

    // After a restore of `file` that kept the collection as it was in a snapshot: the change
    // from that collection to the one now open, as one journal step that can be undone.
    Result<void> journalRestore(const Backup::Restored& restored, const QString& file);

    // Whether the file at the store's path is still the one open, whole: not deleted, replaced
    // or cut short since it was opened.
    bool storeFileIntact();
    // Reads through system calls instead of a memory map: a file cut short under a map stops
    // the process (SIGBUS) where a read returns an error.
    void readWithoutMemoryMap();

private:
    Result<void> open(const QString& path, bool snapshotFirst);

    QString name_;
    QString path_;
    quint64 device_ = 0, inode_ = 0;
    qint64 largestSize_ = 0;
    StoreLock lock_; // the store's file is not swapped while it is open here
    std::unique_ptr<SqliteDatabase> db_;
    std::unique_ptr<ManagedObjectContext> context_;
};
