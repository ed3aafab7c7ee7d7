#pragma once
// The one main context: an identity map (one in-memory object per stored row), the pending
// inserts, updates and deletes, fetches that see those pending changes, and save as one
// transaction.
#include "model/ManagedObject.h"
#include "model/Predicate.h"
#include "platform/core/Error.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <functional>
#include <memory>
#include <optional>

class SqliteDatabase;
class QTimer;
struct sqlite3_context;
struct sqlite3_value;

class ManagedObjectContext {
public:
    explicit ManagedObjectContext(SqliteDatabase* db);
    ~ManagedObjectContext();
    ManagedObjectContext(const ManagedObjectContext&) = delete;
    ManagedObjectContext& operator=(const ManagedObjectContext&) = delete;

    // A new record of the entity, pending insertion (fatal for an unknown entity name).
    ObjectPtr insertNewObject(const QString& entityName);
    template <typename T> std::shared_ptr<T> insert() {
        return std::static_pointer_cast<T>(insertNewObject(T::entityName()));
    }
    void deleteObject(const ObjectPtr& object);

    bool hasChanges() const;
    // Forgets every object and pending change, as for a store opened anew (after a restore):
    // objects still held elsewhere are no longer the context's.
    void reset();
    // Writes every pending change in one transaction. On failure nothing is written, the
    // changes stay pending and the error is returned.
    Result<void> save();

    // Results in the request's order, or the error.
    Result<QList<ObjectPtr>> tryFetch(const FetchRequest& request);
    template <typename T> Result<QList<std::shared_ptr<T>>> tryFetch(const FetchRequest& request) {
        const Result<QList<ObjectPtr>> all = tryFetch(request);
        if (!all.ok())
            return all.error();
        QList<std::shared_ptr<T>> out;
        out.reserve(all.value().size());
        for (const auto& o : all.value())
            out.append(std::static_pointer_cast<T>(o));
        return out;
    }
    // The same where a failure is to read as nothing: an empty list.
    QList<ObjectPtr> fetch(const FetchRequest& request) { return tryFetch(request).valueOr({}); }
    template <typename T> QList<std::shared_ptr<T>> fetch(const FetchRequest& request) {
        return tryFetch<T>(request).valueOr({});
    }
    // The stored record of the entity with that row id (ManagedObject::objectID), or null when
    // there is none (any longer).
    Result<ObjectPtr> existingObject(const QString& entityName, qint64 rowId);
    template <typename T> std::shared_ptr<T> existing(qint64 rowId) {
        return std::static_pointer_cast<T>(existingObject(T::entityName(), rowId).valueOr({}));
    }
    // How many records the fetch would return: counted by the store on its indexes, then
    // corrected by the unsaved inserts, updates and deletes exactly as a fetch merges them.
    Result<int> count(const FetchRequest& request);
    // The records the request matches, counted per value of `key` in one query (the value as
    // text; an integer as its decimal digits). Records without a value of `key` are in no
    // group. Unsaved changes count as they do for count().
    Result<QHash<QString, qint64>> countBy(const FetchRequest& request, const QString& key);
    // Moves with every insert, update, delete and save: figures derived from fetched records
    // are still good while it stands still.
    quint64 changeCount() const { return changeCount_; }

    // Pictures are read on first access, where no error can be returned: the first read that
    // failed since the last call is kept here, so that a caller that must not take a damaged
    // store for an empty picture (the export) can ask.
    std::optional<Error> takeReadError();

    // Takes the store's write lock now and keeps it, with the reads made meanwhile, until the
    // next save or the next turn of the event loop: what a save then writes was decided on
    // what the store held, since no other program can write in between. The error when the
    // lock could not be had (the reads then go on without it).
    Result<void> beginWriteBatch();

    // Saves made while a group lives and a write batch is open (beginWriteBatch) keep the
    // batch's transaction: each save writes as a savepoint of it, and the transaction commits
    // when the group commits or ends. A run of saves (an import) then costs one commit per
    // group instead of one each. A save that fails leaves its changes pending, as ever; a
    // commit that fails returns every change the group's saves wrote to pending, so that the
    // next save writes it again.
    class SaveGroup {
    public:
        explicit SaveGroup(ManagedObjectContext& context);
        ~SaveGroup();
        SaveGroup(const SaveGroup&) = delete;
        SaveGroup& operator=(const SaveGroup&) = delete;
        // Commits what the group's saves wrote so far; the group goes on.
        Result<void> commit();
        // The saves written since the last commit.
        int held() const { return int(context_.held_.size()); }

    private:
        ManagedObjectContext& context_;
    };

    // What the value history names as the cause of the changes of coins' quantities and values
    // made from now on, saved now or later (see ValueHistory); empty: each change is named by
    // its kind.
    QString changeCause() const { return changeCause_; }
    void setChangeCause(const QString& cause) { changeCause_ = cause; }
    // The connection, for the model's own readers of what the store holds (ValueHistory).
    SqliteDatabase* database() const { return db_; }

    // The journal step the saves made from now on are written to (see Journal::Step): opened
    // by the first, kept by the next until the step ends. False when a step was already open,
    // which the saves then add to.
    bool beginStep(const QString& kind, const QString& subject);
    void setStepDetail(const QString& detail);
    void endStep();
    // A step written by the model's own statements rather than by saving records (an undo):
    // pending changes are saved first; then, in one transaction, the step's row is made, the
    // value history's stamp names `cause`, and `write` runs with the step's number. The records
    // in memory are brought up to date after. The step's number, or the error (nothing written).
    struct DirectStep {
        QString kind, subject, detail, cause;
        qint64 reverses = 0;
        bool reversal = false; // an Undo or a Redo, which leaves the redo list as it is
    };
    Result<qint64> writeStep(const DirectStep& step,
                             const std::function<bool(SqliteDatabase&, qint64)>& write);
    // Reads the records in memory again from the store (after rows were written behind the
    // context's back): values follow the store, a record whose row has gone is deleted.
    // Only the rows the journal step `step` wrote when given, else every record. Pending changes
    // must have been saved.
    void refreshObjects(qint64 step = 0);
    // Gives the connection the numbering its journal triggers call; after every (re)open.
    void attachJournal();
    // Whether saves write journal steps: off only where a benchmark measures what the journal
    // costs (Journal::setRecording also takes the connection's triggers away).
    void setJournaling(bool on) {
        journaling_ = on;
        stampedStep_ = 0;
    }

    // Whether a write waits for another program's lock to go (2 s) before it gives up.
    void setWaitWhenBusy(bool wait);

    // From this many objects of an entity in memory on, fetches read row ids first.
    static constexpr qsizetype kKeysFirstThreshold = 1024;

private:
    ObjectPtr liveObject(const EntityDescription& entity, qint64 rowId) const;
    // A stored object has gone from memory: its entry leaves the identity map, so that the
    // map counts the objects alive.
    void forget(const EntityDescription& entity, qint64 rowId);
    friend class ManagedObject;
    void noteChange(ManagedObject& object, int attribute);
    void loadData(ManagedObject& object);
    ObjectPtr makeObject(const EntityDescription& entity) const;
    ObjectPtr objectForRow(const EntityDescription& entity, qint64 rowId,
                           class SqliteStatement& row);
    // The record's values as the row holds them (pictures to be read again).
    void fillFromRow(ManagedObject& object, class SqliteStatement& row);
    bool hasPendingChanges(const EntityDescription& entity) const;
    // Reads between two turns of the event loop share one read transaction: a loop of
    // thousands of fetches (an import) then takes the file's locks once, not once a fetch.
    // A save ends it first; so does the next turn of the event loop.
    // The pending inserts, updates and deletes, in the open transaction; false at the first
    // statement that fails.
    bool writePending(std::vector<qint64>& newIds);
    // Memory follows a save whose writes went through.
    void settleSaved(const std::vector<qint64>& newIds);
    Result<void> saveHeld();
    Result<void> commitHeld();
    void returnHeldToPending();
    // Tells the connection's history triggers when and why the coming writes are made.
    bool stampChanges(const QDateTime& time, const QString& day, const QString& cause);
    // The day the value history dates a save's events by: today, never before the day of the
    // event saved last.
    QString historyDay(const QDateTime& now);
    // Makes the journal step the pending writes go to, dated `now`, unless it is made already;
    // false when a statement fails.
    bool openStep(const QDateTime& now);
    // Writes a new step's header; its number, or 0 when a statement fails.
    qint64 newStep(const DirectStep& asked, const QDateTime& now);
    bool stampStep(qint64 step);
    // A save that is no step's ends its own.
    void closeOwnStep();
    void beginReadBatch();
    void endReadBatch();
    // Pending inserts whose text attribute holds one value, found through an index made the
    // first time a fetch filters many pending inserts by that attribute and kept up to date
    // from then on: an import's duplicate test then looks among thousands of new coins
    // without reading each. False when the predicate names no text value to look up.
    bool pendingCandidates(const EntityDescription& entity, const Predicate& predicate,
                           QList<ManagedObject*>& candidates);
    void reindexPending(ManagedObject& object, int attribute);
    void unindexPending(ManagedObject& object);
    Error lastError() const;
    // The count behind count() and countBy(): the total, and per value of the attribute at
    // `groupBy` when it is not negative.
    Result<qint64> countMatching(const FetchRequest& request, int groupBy,
                                 QHash<QString, qint64>* groups);

    SqliteDatabase* db_;
    // Objects are shared by every array that holds them; the map does not keep them alive,
    // the pending sets do until they are saved.
    std::vector<QHash<qint64, std::weak_ptr<ManagedObject>>> identity_;
    QList<ObjectPtr> inserted_;
    QHash<ManagedObject*, ObjectPtr> updated_;
    // Per entity and attribute, the updated objects whose value of it differs from the store:
    // only those need checking in memory when a fetch filters or sorts by that attribute.
    std::vector<std::vector<QSet<ManagedObject*>>> dirtyByAttribute_;
    QList<ObjectPtr> deleted_;
    quint64 nextInsertSeq_ = 1;
    struct PendingTextIndex {
        QMultiHash<QString, ManagedObject*> byValue;
        QHash<ManagedObject*, QString> valueOf;
    };
    QHash<quint32, PendingTextIndex> pendingIndexes_; // by entity << 16 | attribute
    static constexpr qsizetype kPendingIndexThreshold = 64;
    std::optional<Error> readError_;
    bool readBatch_ = false;
    bool writeBatch_ = false; // the batch holds the write lock
    quint64 changeCount_ = 0;
    QString changeCause_;
    std::unique_ptr<QTimer> batchEnd_;
    // What the saves of a group wrote in the open transaction, as it was before each save.
    struct HeldChange {
        ObjectPtr object;
        ManagedObject::State state;
        quint32 dirty;
        QString cause;
    };
    std::vector<HeldChange> held_;
    int saveGroups_ = 0;
    // The journal step open: named by whoever opened it (none: by the save), made in the store
    // by the first save that writes.
    struct JournalStep {
        QString kind, subject, detail;
        qint64 id = 0;
        int depth = 0;
    } step_;
    // The step the connection's journal rows are numbered into (0: none), and the next number:
    // kept here rather than in the store, since every save would otherwise write it there.
    qint64 stampedStep_ = 0;
    qint64 nextSeq_ = 0;
    // journal_seq(): the number of the journal row a trigger writes.
    static void numberJournalRow(sqlite3_context* call, int, sqlite3_value**);
    bool journaling_ = true;
    // A group's commit made by the next turn of the event loop, which failed.
    std::optional<Error> heldFailure_;
};
