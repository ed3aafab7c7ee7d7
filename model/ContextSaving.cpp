// Saving: every pending insert, update and delete in one transaction.
#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Records.h"
#include "model/Sqlite.h"
#include "model/ValueHistory.h"
#include "platform/core/Fatal.h"

#include <QSet>
#include <QTimer>
#include <algorithm>
#include <sqlite3.h>

using namespace ContextSql;

static void bindMainValues(SqliteStatement& st, const ManagedObject& o) {
    int col = 1;
    const EntityDescription& e = o.entity();
    for (std::size_t i = 0; i < e.attributes.size(); ++i) {
        if (e.attributes[i].type == AttributeType::Data)
            continue;
        if (const QByteArray* utf8 = o.textBytes(int(i)))
            st.bindUtf8(col++, *utf8);
        else
            st.bind(col++, o.hasValue(int(i)) ? o.value(int(i)) : QVariant());
    }
}

static void bindDataValues(SqliteStatement& st, const ManagedObject& o, int first) {
    const EntityDescription& e = o.entity();
    for (std::size_t i = 0; i < e.attributes.size(); ++i)
        if (e.attributes[i].type == AttributeType::Data)
            st.bind(first++, o.hasValue(int(i)) ? o.value(int(i)) : QVariant());
}

bool ManagedObjectContext::stampChanges(const QDateTime& time, const QString& day,
                                        const QString& cause) {
    SqliteStatement& st = db_->cached(
        QStringLiteral("UPDATE temp.ValueStamp SET time = ?1, day = ?2, cause = ?3 WHERE pk = 1"));
    if (time.isValid()) {
        st.bindInt(1, time.toMSecsSinceEpoch());
        st.bindText(2, day);
    } else {
        st.bindNull(1);
        st.bindNull(2);
    }
    if (cause.isEmpty())
        st.bindNull(3);
    else
        st.bindText(3, cause);
    const bool done = st.step() == SQLITE_DONE;
    st.reset();
    return done;
}

QString ManagedObjectContext::historyDay(const QDateTime& now) {
    QString day = now.toLocalTime().date().toString(Qt::ISODate);
    if (SqliteStatement& last = db_->cached(
            QStringLiteral("SELECT day FROM main.ValueEvents ORDER BY pk DESC LIMIT 1"));
        last.isValid()) {
        if (last.step() == SQLITE_ROW)
            day = std::max(day, last.columnText(0));
        last.reset();
    }
    return day;
}

bool ManagedObjectContext::writePending(std::vector<qint64>& newIds) {
    newIds.clear();
    // One reading of the clock dates the step and the events alike: each reading costs a look
    // at the time zone.
    const QDateTime now = ValueHistory::now();
    if (!openStep(now))
        return false;
    // Every coin's event is dated by this save and named by what made its change: the source
    // row is rewritten where the cause changes from one coin to the next. The day is never
    // before the day of the event saved last, so a clock set back cannot sum a change before
    // the changes it follows.
    const QString day = historyDay(now);
    QString stamped;
    if (!stampChanges(now, day, stamped))
        return false;
    auto stamp = [&](const ManagedObject& o) {
        if (o.changeCause_ == stamped)
            return true;
        stamped = o.changeCause_;
        return stampChanges(now, day, stamped);
    };
    newIds.reserve(std::size_t(inserted_.size()));
    for (const auto& o : inserted_) {
        const EntityDescription& e = *o->entity_;
        if (!stamp(*o))
            return false;
        SqliteStatement& st = db_->cached(writeSql(e).insert);
        bindMainValues(st, *o);
        if (st.step() != SQLITE_DONE)
            return false;
        const qint64 id = db_->lastInsertRowId();
        newIds.push_back(id);
        if (e.hasData() && (o->present_ & dataMask(e))) {
            SqliteStatement& ds = db_->cached(writeSql(e).insertData);
            ds.bindInt(1, id);
            bindDataValues(ds, *o, 2);
            if (ds.step() != SQLITE_DONE)
                return false;
        }
    }
    for (const auto& o : std::as_const(updated_)) {
        const EntityDescription& e = *o->entity_;
        if (!stamp(*o))
            return false;
        SqliteStatement& st = db_->cached(writeSql(e).update);
        bindMainValues(st, *o);
        st.bindInt(int(mainColumns(e).size()) + 1, o->rowId_);
        if (st.step() != SQLITE_DONE)
            return false;
        if (e.hasData() && (o->dirty_ & dataMask(e))) {
            SqliteStatement& ds = db_->cached(writeSql(e).insertData);
            ds.bindInt(1, o->rowId_);
            bindDataValues(ds, *o, 2);
            if (ds.step() != SQLITE_DONE)
                return false;
        }
    }
    for (const auto& o : deleted_) {
        const EntityDescription& e = *o->entity_;
        if (!stamp(*o))
            return false;
        SqliteStatement& st = db_->cached(writeSql(e).remove);
        st.bindInt(1, o->rowId_);
        if (st.step() != SQLITE_DONE)
            return false;
        if (e.hasData()) {
            SqliteStatement& ds = db_->cached(writeSql(e).removeData);
            ds.bindInt(1, o->rowId_);
            if (ds.step() != SQLITE_DONE)
                return false;
        }
    }
    // The events are added to the days' sums once there are enough of them to be worth it; the
    // series adds those not folded yet itself.
    SqliteStatement& unfolded = db_->cached(
        QStringLiteral("SELECT coalesce(max(pk), 0) - (SELECT folded FROM ValueFold WHERE pk = 1) "
                       "FROM ValueEvents"));
    const bool counted = unfolded.step() == SQLITE_ROW;
    const qint64 waiting = counted ? unfolded.columnInt(0) : 0;
    unfolded.reset();
    if (!counted)
        return false;
    if (waiting >= ValueHistory::kFoldEvery)
        for (const QString& sql : ValueHistory::fold()) {
            SqliteStatement& fold = db_->cached(sql);
            const bool folded = fold.step() == SQLITE_DONE;
            fold.reset();
            if (!folded)
                return false;
        }
    return true;
}

Result<void> ManagedObjectContext::save() {
    if (!hasChanges())
        return {};
    // Pictures of changed records must be complete before they are rewritten.
    for (auto& o : updated_)
        if (o->entity_->hasData() && (o->dirty_ & dataMask(*o->entity_)))
            loadData(*o);
    if (saveGroups_ > 0 && writeBatch_)
        return saveHeld();

    // A read batch still open becomes the write transaction, which spares ending one
    // transaction only to begin the next. Should another writer have changed the file since the
    // batch began, the batch cannot write: the changes are written again in a fresh one.
    // The error of a write transaction that could not begin, if any.
    auto beginWrite = [this]() -> Result<void> {
        SqliteStatement& begin = db_->cached(QStringLiteral("BEGIN IMMEDIATE"));
        Result<void> began;
        if (begin.step() != SQLITE_DONE)
            began = lastError();
        begin.reset();
        return began;
    };
    const bool upgrade = readBatch_;
    if (upgrade) {
        readBatch_ = false;
        writeBatch_ = false;
        batchEnd_->stop();
        db_->resetAll();
    } else if (Result<void> began = beginWrite(); !began.ok()) {
        return began;
    }
    auto fail = [this]() {
        Error err = lastError();
        db_->exec(QStringLiteral("ROLLBACK"));
        db_->resetAll();
        closeOwnStep();
        return err;
    };
    std::vector<qint64> newIds;
    bool written = writePending(newIds);
    if (!written && upgrade && (sqlite3_errcode(db_->handle()) & 0xff) == ErrorCode::Busy) {
        db_->exec(QStringLiteral("ROLLBACK"));
        db_->resetAll();
        if (Result<void> began = beginWrite(); !began.ok())
            return began;
        written = writePending(newIds);
    }
    if (!written)
        return fail();
    SqliteStatement& commit = db_->cached(QStringLiteral("COMMIT"));
    if (commit.step() != SQLITE_DONE)
        return fail();
    commit.reset();
    closeOwnStep();
    // Only now that the transaction is in does memory follow it.
    settleSaved(newIds);
    return {};
}

void ManagedObjectContext::settleSaved(const std::vector<qint64>& newIds) {
    for (qsizetype i = 0; i < inserted_.size(); ++i) {
        const ObjectPtr& o = inserted_[i];
        o->rowId_ = newIds[std::size_t(i)];
        o->state_ = ManagedObject::State::Clean;
        o->dataLoaded_ = dataMask(*o->entity_);
        o->changeCause_.clear();
        identity_[std::size_t(o->entity_->index)].insert(o->rowId_, o);
    }
    for (const auto& o : std::as_const(updated_)) {
        o->state_ = ManagedObject::State::Clean;
        o->dirty_ = 0;
        o->changeCause_.clear();
    }
    for (const auto& o : deleted_) {
        o->state_ = ManagedObject::State::Gone;
        o->context_ = nullptr;
        identity_[std::size_t(o->entity_->index)].remove(o->rowId_);
    }
    for (auto& perEntity : dirtyByAttribute_)
        for (auto& set : perEntity)
            set.clear();
    inserted_.clear();
    ++changeCount_;
    pendingIndexes_.clear();
    updated_.clear();
    deleted_.clear();
}

Result<void> ManagedObjectContext::saveHeld() {
    // The savepoint undoes a save that fails halfway, and only that save.
    auto failed = [this]() -> Result<void> {
        const Error failure = lastError();
        db_->resetAll();
        if (sqlite3_get_autocommit(db_->handle())) {
            // The error ended the whole transaction (a full disk, an I/O error): what the
            // group wrote before went with it.
            readBatch_ = writeBatch_ = false;
            batchEnd_->stop();
            returnHeldToPending();
        } else {
            db_->exec(QStringLiteral("ROLLBACK TO held"));
            db_->exec(QStringLiteral("RELEASE held"));
        }
        return failure;
    };
    if (!db_->exec(QStringLiteral("SAVEPOINT held")))
        return failed();
    std::vector<qint64> newIds;
    const bool written = writePending(newIds) && db_->exec(QStringLiteral("RELEASE held"));
    closeOwnStep();
    if (!written)
        return failed();
    for (const auto& o : std::as_const(inserted_))
        held_.push_back({o, o->state_, 0, o->changeCause_});
    for (const auto& o : std::as_const(updated_))
        held_.push_back({o, o->state_, o->dirty_, o->changeCause_});
    for (const auto& o : std::as_const(deleted_))
        held_.push_back({o, o->state_, 0, o->changeCause_});
    settleSaved(newIds);
    return {};
}

Result<void> ManagedObjectContext::commitHeld() {
    if (held_.empty())
        return {};
    readBatch_ = writeBatch_ = false;
    batchEnd_->stop();
    db_->resetAll();
    if (db_->exec(QStringLiteral("COMMIT"))) {
        held_.clear();
        return {};
    }
    const Error failure = lastError();
    if (!sqlite3_get_autocommit(db_->handle()))
        db_->exec(QStringLiteral("ROLLBACK"));
    returnHeldToPending();
    return failure;
}

// Every change the group's saves wrote is pending again, as if those saves had failed; a
// change made since on top of one is kept with it.
void ManagedObjectContext::returnHeldToPending() {
    using State = ManagedObject::State;
    QSet<ManagedObject*> insertedHere;
    QList<ObjectPtr> inserts;
    for (const HeldChange& h : held_) {
        ManagedObject& o = *h.object;
        auto& identity = identity_[std::size_t(o.entity_->index)];
        if (h.state == State::Inserted) {
            insertedHere.insert(&o);
            if (o.state_ == State::Gone)
                continue; // deleted again since: neither ever reached the file
            identity.remove(o.rowId_);
            if (o.state_ == State::Updated) {
                updated_.remove(&o);
                for (auto& set : dirtyByAttribute_[std::size_t(o.entity_->index)])
                    set.remove(&o);
            } else if (o.state_ == State::Deleted) {
                deleted_.removeOne(h.object);
            }
            o.rowId_ = 0;
            o.dirty_ = 0;
            o.state_ = State::Inserted;
            if (o.changeCause_.isEmpty())
                o.changeCause_ = h.cause;
            inserts.append(h.object);
        } else if (insertedHere.contains(&o)) {
            continue; // already pending as an insert
        } else if (h.state == State::Updated) {
            if (o.state_ == State::Clean) {
                o.state_ = State::Updated;
                updated_.insert(&o, h.object);
            }
            if (o.state_ != State::Updated)
                continue;
            for (int a = 0; a < int(o.entity_->attributes.size()); ++a)
                if (h.dirty & ~o.dirty_ & (1u << a))
                    dirtyByAttribute_[std::size_t(o.entity_->index)][std::size_t(a)].insert(&o);
            o.dirty_ |= h.dirty;
            if (o.changeCause_.isEmpty())
                o.changeCause_ = h.cause;
        } else if (h.state == State::Deleted) {
            o.state_ = State::Deleted;
            o.context_ = this;
            o.changeCause_ = h.cause;
            identity.insert(o.rowId_, h.object);
            deleted_.append(h.object);
        }
    }
    inserted_ = inserts + inserted_;
    pendingIndexes_.clear();
    held_.clear();
    ++changeCount_;
}

ManagedObjectContext::SaveGroup::SaveGroup(ManagedObjectContext& context)
    : context_(context) {
    ++context_.saveGroups_;
}

ManagedObjectContext::SaveGroup::~SaveGroup() {
    // An error here is the next save's to meet: the changes are pending again.
    (void)commit();
    --context_.saveGroups_;
}

Result<void> ManagedObjectContext::SaveGroup::commit() {
    Result<void> committed = context_.commitHeld();
    if (committed.ok() && context_.heldFailure_)
        committed = *std::exchange(context_.heldFailure_, std::nullopt);
    return committed;
}
