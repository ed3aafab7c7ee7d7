// The context's side of the change journal: which step the saves write to, steps written by the
// model's own statements (an undo), and records brought up to date after those.
#include "model/ContextSql.h"
#include "model/Journal.h"
#include "model/ManagedObjectContext.h"
#include "model/Records.h"
#include "model/Sqlite.h"
#include "model/ValueHistory.h"

#include <QLocale>
#include <sqlite3.h>

using namespace ContextSql;

namespace {
// The name a save of one record gives its step: the coin, or the reference value.
QString recordName(const ManagedObject& o) {
    const EntityDescription& e = o.entity();
    if (&e == &Model::coins())
        return Journal::coinName(o.value(Coins::Attr::denomination).toString(),
                                 o.value(Coins::Attr::year).toInt());
    return o.value(0).toString();
}
} // namespace

bool ManagedObjectContext::beginStep(const QString& kind, const QString& subject) {
    if (step_.depth++ > 0)
        return false;
    step_ = {kind, subject, {}, 0, 1};
    return true;
}

void ManagedObjectContext::setStepDetail(const QString& detail) {
    step_.detail = detail;
}

void ManagedObjectContext::endStep() {
    if (step_.depth == 0 || --step_.depth > 0)
        return;
    if (step_.id && !step_.detail.isEmpty()) {
        // Known only now that the step is over; what it wrote is already in.
        endReadBatch();
        SqliteStatement& st = db_->cached(Journal::headerSql(
            QStringLiteral("UPDATE main.Journal SET {detail} = ?1 WHERE seq = ?2")));
        st.bindText(1, step_.detail);
        st.bindInt(2, step_.id * Journal::kRowsPerStep);
        st.step();
        st.reset();
    }
    step_ = {};
}

void ManagedObjectContext::closeOwnStep() {
    if (step_.depth == 0)
        step_.id = 0;
}

bool ManagedObjectContext::stampStep(qint64 step) {
    if (stampedStep_ == step)
        return true;
    // A step taken up again (an import's next commit group) goes on after its last row.
    SqliteStatement& last = db_->cached(
        QStringLiteral("SELECT max(seq) FROM main.Journal WHERE seq BETWEEN ?1 AND ?1 + %1 - 1")
            .arg(Journal::kRowsPerStep));
    last.bindInt(1, step * Journal::kRowsPerStep);
    const bool read = last.step() == SQLITE_ROW;
    const qint64 at = read && !last.isNull(0) ? last.columnInt(0) : step * Journal::kRowsPerStep;
    last.reset();
    stampedStep_ = read ? step : 0;
    nextSeq_ = at + 1;
    return read;
}

void ManagedObjectContext::attachJournal() {
    sqlite3_create_function(db_->handle(), "journal_seq", 0, SQLITE_UTF8, this, numberJournalRow,
                            nullptr, nullptr);
    stampedStep_ = 0;
}

void ManagedObjectContext::numberJournalRow(sqlite3_context* call, int, sqlite3_value**) {
    auto* self = static_cast<ManagedObjectContext*>(sqlite3_user_data(call));
    if (self->stampedStep_ <= 0) {
        sqlite3_result_error(call, "a change outside any step of the journal", -1);
        return;
    }
    if (self->nextSeq_ >= (self->stampedStep_ + 1) * Journal::kRowsPerStep) {
        sqlite3_result_error(call, "a step of the journal too large to keep", -1);
        return;
    }
    sqlite3_result_int64(call, self->nextSeq_++);
}

bool ManagedObjectContext::openStep(const QDateTime& now) {
    if (!journaling_)
        return true;
    if (step_.id) {
        // A group's commit that failed takes the step back with what it wrote.
        SqliteStatement& there =
            db_->cached(QStringLiteral("SELECT 1 FROM main.Journal WHERE seq = ?1"));
        there.bindInt(1, step_.id * Journal::kRowsPerStep);
        const int rc = there.step();
        there.reset();
        if (rc == SQLITE_ROW)
            return stampStep(step_.id);
        if (rc != SQLITE_DONE)
            return false;
        step_.id = 0;
    }
    QString kind = step_.kind, subject = step_.subject;
    if (kind.isEmpty()) {
        // Named by what the save writes: one record by its change and its name, more by count.
        const qsizetype records = inserted_.size() + updated_.size() + deleted_.size();
        const ManagedObject* one = !inserted_.isEmpty()  ? inserted_.first().get()
                                   : !updated_.isEmpty() ? updated_.begin().value().get()
                                   : !deleted_.isEmpty() ? deleted_.first().get()
                                                         : nullptr;
        if (records == 1 && one) {
            kind = !inserted_.isEmpty()  ? Journal::Add
                   : !updated_.isEmpty() ? Journal::Edit
                                         : Journal::Delete;
            subject = recordName(*one);
        } else {
            kind = Journal::Change;
            subject = QString::number(records);
        }
    }
    step_.id = newStep({kind, subject, step_.detail, {}, 0, false}, now);
    return step_.id && stampStep(step_.id);
}

qint64 ManagedObjectContext::newStep(const DirectStep& asked, const QDateTime& now) {
    // A new change drops the steps that could still be redone, as in any editor; an undo or a
    // redo is not a new change.
    if (!asked.reversal) {
        // Looked for first: an UPDATE that changes the column its index is chosen by sets up a
        // scratch table on every run, rows or none, and most saves have nothing to drop.
        static const QString anySql = Journal::headerSql(
            QStringLiteral("SELECT 1 FROM main.Journal WHERE tbl = 0 AND {state} = 1 LIMIT 1"));
        SqliteStatement& any = db_->cached(anySql);
        const int found = any.step();
        any.reset();
        if (found != SQLITE_ROW && found != SQLITE_DONE)
            return 0;
        if (found == SQLITE_ROW) {
            static const QString dropSql = Journal::headerSql(QStringLiteral(
                "UPDATE main.Journal SET {state} = 2 WHERE tbl = 0 AND {state} = 1"));
            SqliteStatement& drop = db_->cached(dropSql);
            const bool dropped = drop.step() == SQLITE_DONE;
            drop.reset();
            if (!dropped)
                return 0;
        }
    }
    // The header opens the step's range, after every row of the steps before it.
    static const QString headerInsert = Journal::headerSql(
        QStringLiteral("INSERT INTO main.Journal (seq, tbl, {time}, {kind}, {subject}, {detail}, "
                       "{reverses}, {state}) VALUES ((SELECT (coalesce(max(seq), 0) / %1 + 1) * "
                       "%1 FROM main.Journal), 0, ?1, ?2, ?3, ?4, ?5, ?6)")
            .arg(Journal::kRowsPerStep));
    SqliteStatement& st = db_->cached(headerInsert);
    st.bindInt(1, now.toMSecsSinceEpoch());
    st.bindText(2, asked.kind);
    st.bindText(3, asked.subject);
    st.bindText(4, asked.detail);
    if (asked.reverses)
        st.bindInt(5, asked.reverses);
    else
        st.bindNull(5);
    st.bindInt(6, asked.reversal ? 3 : 0);
    const bool made = st.step() == SQLITE_DONE;
    st.reset();
    if (!made)
        return 0;
    // The step's rows follow its header.
    const qint64 header = db_->lastInsertRowId();
    stampedStep_ = header / Journal::kRowsPerStep;
    nextSeq_ = header + 1;
    return stampedStep_;
}

Result<qint64>
ManagedObjectContext::writeStep(const DirectStep& asked,
                                const std::function<bool(SqliteDatabase&, qint64)>& write) {
    if (hasChanges())
        if (Result<void> saved = save(); !saved.ok())
            return saved.error();
    endReadBatch();
    if (!held_.empty())
        if (Result<void> committed = commitHeld(); !committed.ok())
            return committed.error();
    if (!db_->exec(QStringLiteral("BEGIN IMMEDIATE")))
        return lastError();
    qint64 id = 0;
    auto steps = [&] {
        const QDateTime now = ValueHistory::now();
        if (!stampChanges(now, historyDay(now), asked.cause))
            return false;
        id = newStep(asked, now);
        return id && stampStep(id) && write(*db_, id) && db_->exec(QStringLiteral("COMMIT"));
    };
    const bool written = steps();
    // The history's stamp names no cause beyond this step.
    if (!written) {
        const Error failure = lastError();
        db_->resetAll();
        if (!sqlite3_get_autocommit(db_->handle()))
            db_->exec(QStringLiteral("ROLLBACK"));
        stampChanges({}, {}, {});
        refreshObjects();
        return failure;
    }
    stampChanges({}, {}, {});
    refreshObjects(id);
    return id;
}

void ManagedObjectContext::refreshObjects(qint64 step) {
    for (const EntityDescription* e : Model::entities()) {
        auto& map = identity_[std::size_t(e->index)];
        const WriteSql& w = writeSql(*e);
        auto refresh = [&](qint64 rowId) {
            auto it = map.find(rowId);
            if (it == map.end())
                return;
            const ObjectPtr o = it->lock();
            if (!o) {
                map.erase(it);
                return;
            }
            if (o->state_ != ManagedObject::State::Clean)
                return;
            SqliteStatement& row = db_->cached(w.selectRow);
            row.bindInt(1, rowId);
            const int rc = row.step();
            if (rc == SQLITE_ROW) {
                fillFromRow(*o, row);
            } else if (rc == SQLITE_DONE) {
                o->state_ = ManagedObject::State::Gone;
                o->context_ = nullptr;
                map.erase(it);
            }
            row.reset();
        };
        if (step == 0) {
            for (const qint64 rowId : map.keys())
                refresh(rowId);
            continue;
        }
        // The rows the step wrote, of the records' table and of their pictures' (the two codes
        // the journal keeps the entity's rows under).
        SqliteStatement& rows = db_->cached(
            QStringLiteral("SELECT DISTINCT pk FROM main.Journal WHERE seq BETWEEN ?1 * %1 + 1 AND "
                           "?1 * %1 + %2 AND tbl IN (%3, %4)")
                .arg(Journal::kRowsPerStep)
                .arg(Journal::kRowsPerStep - 1)
                .arg(Journal::tableCode(*e, false))
                .arg(Journal::tableCode(*e, true)));
        rows.bindInt(1, step);
        QList<qint64> written;
        while (rows.step() == SQLITE_ROW)
            written << rows.columnInt(0);
        rows.reset();
        for (const qint64 rowId : std::as_const(written))
            refresh(rowId);
    }
    ++changeCount_;
}
