// Steps the journal writes itself: an undo, a redo, and the restore of another collection.
#include "model/Journal.h"
#include "model/JournalRows.h"

#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"
#include "model/ValueHistory.h"

#include <sqlite3.h>

using namespace ContextSql;

namespace Journal {
using namespace Rows;

namespace {
// Puts every row the step touched back as it was before the step: the oldest image of each
// row in the step. The writes are journaled to the step open, and a coin's are summed by the
// value history like any other.
bool reverse(SqliteDatabase& db, qint64 step) {
    for (const Kept& k : kept()) {
        const QString first =
            QStringLiteral("j.seq IN (SELECT min(i.seq) FROM main.Journal i WHERE %1 AND i.tbl = "
                           "%2 GROUP BY i.pk)")
                .arg(inStep(QStringLiteral("i")))
                .arg(k.code);
        SqliteStatement& gone = db.cached(
            QStringLiteral("DELETE FROM main.%1 WHERE pk IN (SELECT j.pk FROM main.Journal j WHERE "
                           "%2 AND j.op = 0)")
                .arg(quoted(k.table), first));
        gone.bindInt(1, step);
        const bool deleted = gone.step() == SQLITE_DONE;
        gone.reset();
        if (!deleted)
            return false;
        QStringList sets;
        for (const QString& c : k.columns)
            sets << QStringLiteral("%1 = excluded.%1").arg(c);
        // A coin is updated in place, so that the value history sees the change it is; a
        // picture row is replaced whole, which its journal trigger sees before it happens.
        const QString select =
            QStringLiteral("SELECT j.pk, %1 FROM main.Journal j WHERE %2 AND j.op <> 0 ORDER BY "
                           "j.seq")
                .arg(prefixed(k.values, QStringLiteral("j.")), first);
        SqliteStatement& back = db.cached(
            k.pictures ? QStringLiteral("INSERT OR REPLACE INTO main.%1 (pk, %2) %3")
                             .arg(quoted(k.table), k.columns.join(QLatin1Char(',')), select)
                       : QStringLiteral("INSERT INTO main.%1 (pk, %2) %3 ON CONFLICT (pk) DO "
                                        "UPDATE SET %4")
                             .arg(quoted(k.table), k.columns.join(QLatin1Char(',')), select,
                                  sets.join(QLatin1Char(','))));
        back.bindInt(1, step);
        const bool restored = back.step() == SQLITE_DONE;
        back.reset();
        if (!restored)
            return false;
    }
    return true;
}

// Runs one statement of the step's own bookkeeping, its parameters bound in order.
bool note(SqliteDatabase& db, const QString& sql, const QList<qint64>& values) {
    SqliteStatement& st = db.cached(sql);
    for (int i = 0; i < values.size(); ++i)
        st.bindInt(i + 1, values[i]);
    const bool done = st.step() == SQLITE_DONE;
    st.reset();
    return done;
}

} // namespace

namespace {
Result<StepInfo> undoSteps(ManagedObjectContext& context, const QList<StepInfo>& newestFirst) {
    const StepInfo& oldest = newestFirst.last();
    const Result<qint64> written = context.writeStep(
        {Undo, oldest.subject, oldest.kind, ValueHistory::Undo, oldest.pk, true},
        [&](SqliteDatabase& db, qint64 id) {
            for (const StepInfo& s : newestFirst)
                if (!reverse(db, s.pk) ||
                    !note(db,
                          headerSql(
                              QStringLiteral("UPDATE main.Journal SET {state} = 1, {undoneBy} = "
                                             "?1 WHERE seq = ?2 * %1")
                                  .arg(kRowsPerStep)),
                          {id, s.pk}))
                    return false;
            return note(
                db,
                headerSql(QStringLiteral("UPDATE main.Journal SET {steps} = ?1 WHERE seq = ?2 * %1")
                              .arg(kRowsPerStep)),
                {newestFirst.size(), id});
        });
    if (!written.ok())
        return written.error();
    return step(context, written.value()).valueOr({}).value_or(StepInfo{});
}

} // namespace

Result<StepInfo> undo(ManagedObjectContext& context) {
    if (context.hasChanges())
        if (Result<void> saved = context.save(); !saved.ok())
            return saved.error();
    const Result<std::optional<StepInfo>> target = undoable(context);
    if (!target.ok())
        return target.error();
    if (!target.value())
        return refusal(tr("There is nothing to undo."));
    return undoSteps(context, {*target.value()});
}

Result<int> undoBackTo(ManagedObjectContext& context, qint64 stepPk) {
    if (context.hasChanges())
        if (Result<void> saved = context.save(); !saved.ok())
            return saved.error();
    SqliteDatabase& db = *context.database();
    const Result<qint64> floor = reachFloor(db);
    if (!floor.ok())
        return floor.error();
    QList<StepInfo> inPlace;
    const Result<void> walked = walkBack(db, [&](const StepInfo& s) {
        if (s.pk < stepPk || s.pk <= floor.value())
            return false;
        if (s.state == StepInfo::State::InPlace)
            inPlace << s;
        return true;
    });
    if (!walked.ok())
        return walked.error();
    if (inPlace.isEmpty() || inPlace.last().pk != stepPk)
        return refusal(tr("That change cannot be undone any more."));
    const Result<StepInfo> undone = undoSteps(context, inPlace);
    if (!undone.ok())
        return undone.error();
    return int(inPlace.size());
}

Result<StepInfo> redo(ManagedObjectContext& context) {
    if (context.hasChanges())
        if (Result<void> saved = context.save(); !saved.ok())
            return saved.error();
    SqliteDatabase& db = *context.database();
    const Result<std::optional<StepInfo>> target = redoable(context);
    if (!target.ok())
        return target.error();
    if (!target.value())
        return refusal(tr("There is nothing to redo."));
    const StepInfo& x = *target.value();
    // Every step the undo took back comes back with it.
    SqliteStatement& by = db.cached(
        headerSql(QStringLiteral("SELECT s.{undoneBy}, (SELECT count(*) FROM main.Journal t WHERE "
                                 "t.tbl = 0 AND t.{state} = 1 AND t.{undoneBy} = s.{undoneBy}) "
                                 "FROM main.Journal s WHERE seq = ?1 * %1")
                      .arg(kRowsPerStep)));
    by.bindInt(1, x.pk);
    const bool read = by.step() == SQLITE_ROW;
    const qint64 undoStep = read ? by.columnInt(0) : 0;
    const qint64 count = read ? by.columnInt(1) : 0;
    by.reset();
    if (!undoStep)
        return refusal(tr("There is nothing to redo."));
    const Result<qint64> written = context.writeStep(
        {Redo, x.subject, x.kind, ValueHistory::Redo, undoStep, true},
        [&](SqliteDatabase& d, qint64 id) {
            return reverse(d, undoStep) &&
                   note(
                       d,
                       headerSql(QStringLiteral("UPDATE main.Journal SET {state} = 0, {undoneBy} = "
                                                "NULL WHERE tbl = 0 AND {state} = 1 AND "
                                                "{undoneBy} = ?1")),
                       {undoStep}) &&
                   note(d,
                        headerSql(QStringLiteral(
                                      "UPDATE main.Journal SET {steps} = ?1 WHERE seq = ?2 * %1")
                                      .arg(kRowsPerStep)),
                        {count, id});
        });
    if (!written.ok())
        return written.error();
    return step(context, written.value()).valueOr({}).value_or(StepInfo{});
}

Result<void> recordRestore(ManagedObjectContext& context, const QString& before,
                           const QString& subject) {
    SqliteDatabase& db = *context.database();
    if (context.hasChanges())
        if (Result<void> saved = context.save(); !saved.ok())
            return saved.error();
    SqliteStatement& attach = db.cached(QStringLiteral("ATTACH ?1 AS old"));
    attach.bindUtf8(1, sqliteFileUri(before) + "?mode=ro");
    const bool attached = attach.step() == SQLITE_DONE;
    attach.reset();
    if (!attached)
        return failure(db, QStringLiteral("reading the collection as it was"));
    const Result<qint64> written =
        context.writeStep({Restore, subject, {}, {}, 0, false}, [&](SqliteDatabase& d, qint64 id) {
            // Numbered after the step's header and after one another.
            const QString next =
                QStringLiteral("(SELECT max(seq) FROM main.Journal WHERE seq BETWEEN %1 * %2 AND "
                               "%1 * %2 + %2 - 1) + row_number() OVER ()")
                    .arg(id)
                    .arg(kRowsPerStep);
            for (const Kept& k : kept()) {
                const QString cols = k.columns.join(QLatin1Char(','));
                const QString values = k.values.join(QLatin1Char(','));
                if (!d.exec(QStringLiteral(
                                "INSERT INTO main.Journal (seq, tbl, op, pk, %1) SELECT %2, %3, "
                                "CASE WHEN EXISTS (SELECT 1 FROM main.%4 n WHERE n.pk = o.pk) "
                                "THEN 1 ELSE 2 END, o.pk, %5 FROM (SELECT pk, %6 FROM old.%4 "
                                "EXCEPT SELECT pk, %6 FROM main.%4) o")
                                .arg(values, next)
                                .arg(k.code)
                                .arg(quoted(k.table), prefixed(k.columns, QStringLiteral("o.")),
                                     cols)) ||
                    !d.exec(QStringLiteral("INSERT INTO main.Journal (seq, tbl, op, pk) SELECT %1, "
                                           "%2, 0, pk FROM (SELECT pk FROM main.%3 EXCEPT SELECT "
                                           "pk FROM old.%3)")
                                .arg(next)
                                .arg(k.code)
                                .arg(quoted(k.table))))
                    return false;
            }
            return true;
        });
    db.resetAll();
    db.exec(QStringLiteral("DETACH old"));
    if (!written.ok())
        return written.error();
    return {};
}

} // namespace Journal
