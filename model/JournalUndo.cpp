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
            QStringLiteral("j.seq = (SELECT min(i.seq) FROM main.%1 i WHERE i.pk = j.pk AND %2)")
                .arg(k.journal, inStep(QStringLiteral("i")));
        SqliteStatement& gone = db.cached(
            QStringLiteral("DELETE FROM main.%1 WHERE pk IN (SELECT j.pk FROM main.%2 j WHERE "
                           "%4 AND j.op = 0 AND %3)")
                .arg(quoted(k.table), k.journal, first, inStep(QStringLiteral("j"))));
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
        const QString select = QStringLiteral("SELECT j.pk, %1 FROM main.%2 j WHERE %4 "
                                              "AND j.op <> 0 AND %3 ORDER BY j.seq")
                                   .arg(prefixed(k.columns, QStringLiteral("j.")), k.journal, first,
                                        inStep(QStringLiteral("j")));
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

} // namespace

namespace {
Result<StepInfo> undoSteps(ManagedObjectContext& context, const QList<StepInfo>& newestFirst) {
    const StepInfo& oldest = newestFirst.last();
    const Result<qint64> written = context.writeStep(
        {Undo, oldest.subject, oldest.kind, ValueHistory::Undo, oldest.pk, true},
        [&](SqliteDatabase& db, qint64 id) {
            for (const StepInfo& s : newestFirst) {
                if (!reverse(db, s.pk))
                    return false;
                SqliteStatement& mark = db.cached(QStringLiteral(
                    "UPDATE main.JournalSteps SET state = 1, undoneBy = ?1 WHERE pk = ?2"));
                mark.bindInt(1, id);
                mark.bindInt(2, s.pk);
                const bool marked = mark.step() == SQLITE_DONE;
                mark.reset();
                if (!marked)
                    return false;
            }
            SqliteStatement& count =
                db.cached(QStringLiteral("UPDATE main.JournalSteps SET steps = ?1 WHERE pk = ?2"));
            count.bindInt(1, newestFirst.size());
            count.bindInt(2, id);
            const bool counted = count.step() == SQLITE_DONE;
            count.reset();
            return counted;
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
    const Result<QList<StepInfo>> inPlace = stepsWhere(
        context,
        QStringLiteral("WHERE state = 0 AND pk >= ?1 AND %1 ORDER BY pk DESC").arg(inReach()),
        [stepPk](SqliteStatement& st) { st.bindInt(1, stepPk); });
    if (!inPlace.ok())
        return inPlace.error();
    if (inPlace.value().isEmpty() || inPlace.value().last().pk != stepPk)
        return refusal(tr("That change cannot be undone any more."));
    const Result<StepInfo> undone = undoSteps(context, inPlace.value());
    if (!undone.ok())
        return undone.error();
    return int(inPlace.value().size());
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
    SqliteStatement& by =
        db.cached(QStringLiteral("SELECT undoneBy, (SELECT count(*) FROM main.JournalSteps t "
                                 "WHERE t.undoneBy = s.undoneBy AND t.state = 1) FROM "
                                 "main.JournalSteps s WHERE pk = ?1"));
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
            if (!reverse(d, undoStep))
                return false;
            SqliteStatement& mark = d.cached(
                QStringLiteral("UPDATE main.JournalSteps SET state = 0, undoneBy = NULL WHERE "
                               "undoneBy = ?1 AND state = 1"));
            mark.bindInt(1, undoStep);
            const bool marked = mark.step() == SQLITE_DONE;
            mark.reset();
            SqliteStatement& steps =
                d.cached(QStringLiteral("UPDATE main.JournalSteps SET steps = ?1 WHERE pk = ?2"));
            steps.bindInt(1, count);
            steps.bindInt(2, id);
            const bool counted = steps.step() == SQLITE_DONE;
            steps.reset();
            return marked && counted;
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
            for (const Kept& k : kept()) {
                const QString cols = k.columns.join(QLatin1Char(','));
                const QString step = QString::number(id);
                if (!d.exec(QStringLiteral(
                                "INSERT INTO main.%1 (seq, step, op, pk, %2) SELECT %3 * %6 + "
                                "row_number() OVER (), %3, CASE WHEN EXISTS (SELECT 1 FROM "
                                "main.%4 n WHERE n.pk = o.pk) THEN 1 ELSE 2 END, o.pk, %5 FROM "
                                "(SELECT pk, %2 FROM old.%4 EXCEPT SELECT pk, %2 FROM main.%4) o")
                                .arg(k.journal, cols, step, quoted(k.table),
                                     prefixed(k.columns, QStringLiteral("o.")))
                                .arg(kRowsPerStep)) ||
                    // Numbered after the rows above: half the step's numbers for each.
                    !d.exec(QStringLiteral("INSERT INTO main.%1 (seq, step, op, pk) SELECT %2 * %4 "
                                           "+ %4 / 2 + row_number() OVER (), %2, 0, pk FROM "
                                           "(SELECT pk FROM main.%3 EXCEPT SELECT pk FROM old.%3)")
                                .arg(k.journal, step, quoted(k.table))
                                .arg(kRowsPerStep)))
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
