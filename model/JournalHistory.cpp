// A step's changes field by field, a coin's earlier versions, the coins deleted lately: the
// journal read for a person, and a coin written back as it was.
#include "model/Journal.h"
#include "model/JournalRows.h"

#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"
#include "model/ValueHistory.h"

#include <QHash>
#include <sqlite3.h>

using namespace ContextSql;

namespace Journal {
using namespace Rows;

namespace {
// Writes the coin back as it was before `step` as a new step of `kind`.
Result<StepInfo> writeCoinBefore(ManagedObjectContext& context, qint64 coin, qint64 step,
                                 const QString& kind, const QString& cause) {
    SqliteDatabase& db = *context.database();
    if (context.hasChanges())
        if (Result<void> saved = context.save(); !saved.ok())
            return saved.error();
    const Kept& main = keptFor(Model::coins(), false);
    const Kept& pictures = keptFor(Model::coins(), true);
    const Result<Image> row = stateAt(db, main, coin, step);
    if (!row.ok())
        return row.error();
    if (!row.value().exists) {
        return refusal(tr("The coin did not exist before that change."));
    }
    const Result<Image> picturesRow = stateAt(db, pictures, coin, step);
    if (!picturesRow.ok())
        return picturesRow.error();
    const QString name = nameOf(row.value(), main);
    const Result<qint64> written =
        context.writeStep({kind, name, {}, cause, 0, false}, [&](SqliteDatabase& d, qint64) {
            return writeImage(d, main, coin, row.value()) &&
                   writeImage(d, pictures, coin, picturesRow.value());
        });
    if (!written.ok())
        return written.error();
    return Journal::step(context, written.value()).valueOr({}).value_or(StepInfo{});
}

} // namespace

Result<StepChanges> changesOf(ManagedObjectContext& context, qint64 stepPk, int limit) {
    SqliteDatabase& db = *context.database();
    StepChanges out;
    // A coin's row and its pictures' row are one change of the coin.
    QHash<QPair<int, qint64>, qsizetype> rowOf;
    for (const Kept& k : kept()) {
        SqliteStatement& st =
            db.cached(QStringLiteral("SELECT j.op, j.pk, %1 FROM main.%2 j WHERE %3 AND j.seq = "
                                     "(SELECT min(i.seq) FROM main.%2 i WHERE i.pk = j.pk AND %4) "
                                     "ORDER BY j.seq")
                          .arg(prefixed(k.columns, QStringLiteral("j.")), k.journal,
                               inStep(QStringLiteral("j")), inStep(QStringLiteral("i"))));
        st.bindInt(1, stepPk);
        struct Entry {
            qint64 pk;
            Image before;
        };
        QList<Entry> entries;
        int rc;
        while ((rc = st.step()) == SQLITE_ROW) {
            const qint64 pk = st.columnInt(1);
            const QPair<int, qint64> key{k.entity->index, pk};
            const bool seen = rowOf.contains(key);
            if (!seen)
                ++out.total;
            if (!seen && out.rows.size() + entries.size() >= limit)
                continue;
            Image before;
            if (st.columnInt(0) != Inserted)
                before = {true, valuesAt(st, k, 2)};
            entries << Entry{pk, before};
            if (!seen)
                rowOf.insert(key, -1);
        }
        st.reset();
        if (rc != SQLITE_DONE)
            return failure(db, QStringLiteral("reading the journal"));
        for (const Entry& e : std::as_const(entries)) {
            const Result<Image> after = stateAt(db, k, e.pk, stepPk, true);
            if (!after.ok())
                return after.error();
            const QPair<int, qint64> key{k.entity->index, e.pk};
            qsizetype at = rowOf.value(key, -1);
            if (at < 0) {
                RowChange row;
                row.entity = k.entity;
                row.pk = e.pk;
                row.kind = !e.before.exists        ? RowChange::Kind::Added
                           : !after.value().exists ? RowChange::Kind::Deleted
                                                   : RowChange::Kind::Changed;
                out.rows << row;
                at = out.rows.size() - 1;
                rowOf.insert(key, at);
            }
            RowChange& row = out.rows[at];
            // A pictures row names no coin: its coin's row does, or the coin as it is now.
            if (!k.pictures)
                row.name = nameOf(after.value().exists ? after.value() : e.before, k);
            row.fields << differences(k, e.before, after.value());
        }
    }
    // A change of pictures alone names its coin as it is now.
    for (RowChange& row : out.rows)
        if (row.name.isEmpty() && row.entity == &Model::coins()) {
            const Result<Image> now = current(db, keptFor(Model::coins(), false), row.pk);
            row.name = now.ok() ? nameOf(now.value(), keptFor(Model::coins(), false)) : QString();
        }
    return out;
}

Result<QList<CoinVersion>> versionsOf(ManagedObjectContext& context, qint64 coin) {
    SqliteDatabase& db = *context.database();
    const Kept& main = keptFor(Model::coins(), false);
    const Kept& pictures = keptFor(Model::coins(), true);
    const Result<QList<StepInfo>> touched = stepsWhere(
        context,
        QStringLiteral("WHERE pk IN (SELECT step FROM main.%1 WHERE pk = ?1 UNION SELECT step "
                       "FROM main.%2 WHERE pk = ?1) ORDER BY pk DESC")
            .arg(main.journal, pictures.journal),
        [coin](SqliteStatement& st) { st.bindInt(1, coin); });
    if (!touched.ok())
        return touched.error();
    const Result<Image> nowMain = current(db, main, coin);
    const Result<Image> nowPictures = current(db, pictures, coin);
    if (!nowMain.ok() || !nowPictures.ok())
        return failure(db, QStringLiteral("reading the journal"));
    QList<CoinVersion> out;
    for (const StepInfo& s : touched.value()) {
        const Result<Image> was = stateAt(db, main, coin, s.pk);
        const Result<Image> wasPictures = stateAt(db, pictures, coin, s.pk);
        if (!was.ok() || !wasPictures.ok())
            return failure(db, QStringLiteral("reading the journal"));
        if (!was.value().exists)
            continue; // before the coin was added
        CoinVersion v{s, differences(main, nowMain.value(), was.value())};
        // Before and after: from the coin as it is now to the version.
        v.fromNow << differences(pictures, nowPictures.value(), wasPictures.value());
        if (!v.fromNow.isEmpty())
            out << v;
    }
    return out;
}

Result<StepInfo> restoreVersion(ManagedObjectContext& context, qint64 coin, qint64 stepPk) {
    return writeCoinBefore(context, coin, stepPk, Version, ValueHistory::Edited);
}

Result<QList<DeletedCoin>> recentlyDeleted(ManagedObjectContext& context, int days) {
    SqliteDatabase& db = *context.database();
    const Kept& main = keptFor(Model::coins(), false);
    const qint64 since = ValueHistory::now().addDays(-days).toMSecsSinceEpoch();
    SqliteStatement& st = db.cached(
        QStringLiteral(
            "SELECT j.pk, max(j.step), %4 FROM main.%1 j JOIN main.JournalSteps s "
            "ON s.pk = j.step WHERE j.seq >= coalesce((SELECT min(pk) * %3 FROM "
            "main.JournalSteps WHERE time >= ?1), 9223372036854775807) AND j.op = 2 AND NOT "
            "EXISTS (SELECT 1 FROM main.%2 c WHERE c.pk = j.pk) GROUP BY j.pk ORDER BY 2 DESC")
            .arg(main.journal, quoted(main.table))
            .arg(kRowsPerStep)
            .arg(stepColumns(QStringLiteral("s."))));
    if (!st.isValid())
        return failure(db, QStringLiteral("reading the journal"));
    st.bindInt(1, since);
    QList<DeletedCoin> out;
    int rc;
    while ((rc = st.step()) == SQLITE_ROW) {
        DeletedCoin d;
        d.pk = st.columnInt(0);
        d.step = stepAt(st, 2);
        out << d;
    }
    st.reset();
    if (rc != SQLITE_DONE)
        return failure(db, QStringLiteral("reading the journal"));
    for (DeletedCoin& d : out) {
        const Result<Image> was = stateAt(db, main, d.pk, d.step.pk);
        if (!was.ok())
            return was.error();
        d.name = nameOf(was.value(), main);
        d.country = valueOf(was.value(), main, "country").toString();
        d.year = valueOf(was.value(), main, "year").toInt();
    }
    return out;
}

Result<StepInfo> putBack(ManagedObjectContext& context, qint64 coin) {
    const Result<QList<DeletedCoin>> deleted = recentlyDeleted(context, 36500);
    if (!deleted.ok())
        return deleted.error();
    for (const DeletedCoin& d : deleted.value())
        if (d.pk == coin)
            return writeCoinBefore(context, coin, d.step.pk, PutBack, ValueHistory::Added);
    return refusal(tr("That coin is not among the deleted coins."));
}

} // namespace Journal
