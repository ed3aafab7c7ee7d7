// A step's changes field by field, a coin's earlier versions, the coins deleted lately: the
// journal read for a person, and a coin written back as it was.
#include "model/Journal.h"
#include "model/JournalRows.h"

#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"
#include "model/ValueHistory.h"

#include <QHash>
#include <limits>
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

namespace {
const Kept* keptByCode(qint64 code) {
    for (const Kept& k : kept())
        if (k.code == code)
            return &k;
    return nullptr;
}

// A journal row read back: which table's row, what the step did to it and its image.
struct Entry {
    const Kept* k = nullptr;
    qint64 step = 0, pk = 0;
    Image image;
};
// Reads the rows a statement finds (seq, tbl, op, pk, v0…), handing each to `take` until it
// says no more.
bool readEntries(SqliteStatement& st, const std::function<bool(const Entry&)>& take) {
    int rc;
    while ((rc = st.step()) == SQLITE_ROW) {
        Entry e;
        e.k = keptByCode(st.columnInt(1));
        if (!e.k)
            continue;
        e.step = st.columnInt(0) / kRowsPerStep;
        e.pk = st.columnInt(3);
        e.image = imageAt(st, *e.k, 2, 4);
        if (!take(e)) {
            rc = SQLITE_DONE;
            break;
        }
    }
    st.reset();
    return rc == SQLITE_DONE;
}

QString entryColumns() {
    return QStringLiteral("seq, tbl, op, pk, ") + valueColumns().join(QLatin1Char(','));
}
} // namespace

Result<StepChanges> changesOf(ManagedObjectContext& context, qint64 stepPk, int limit) {
    SqliteDatabase& db = *context.database();
    StepChanges out;
    // The first image of each row in the step is the row before it; a coin's row and its
    // pictures' row are one change of the coin.
    using Key = QPair<const Kept*, qint64>;
    QHash<Key, Image> before;
    QList<Key> order;
    QHash<QPair<int, qint64>, qsizetype> rowOf; // entity and pk: the change's place, or -1
    SqliteStatement& inThisStep =
        db.cached(QStringLiteral("SELECT %1 FROM main.Journal j WHERE %2 ORDER BY seq")
                      .arg(entryColumns(), inStep(QStringLiteral("j"))));
    inThisStep.bindInt(1, stepPk);
    const bool read = readEntries(inThisStep, [&](const Entry& e) {
        const Key key{e.k, e.pk};
        if (before.contains(key))
            return true;
        const QPair<int, qint64> record{e.k->entity->index, e.pk};
        if (!rowOf.contains(record)) {
            ++out.total;
            rowOf.insert(record, out.total <= limit ? 0 : -1);
        }
        if (rowOf.value(record) >= 0) {
            before.insert(key, e.image);
            order << key;
        }
        return true;
    });
    if (!read)
        return failure(db, QStringLiteral("reading the journal"));
    // Each row after the step: the first image of it any later step kept, or the row now.
    QHash<Key, Image> after;
    SqliteStatement& later = db.cached(
        QStringLiteral("SELECT %1 FROM main.Journal WHERE seq >= ?1 AND tbl <> 0 ORDER BY seq")
            .arg(entryColumns()));
    later.bindInt(1, (stepPk + 1) * kRowsPerStep);
    if (!readEntries(later, [&](const Entry& e) {
            const Key key{e.k, e.pk};
            if (before.contains(key) && !after.contains(key))
                after.insert(key, e.image);
            return after.size() < before.size();
        }))
        return failure(db, QStringLiteral("reading the journal"));
    for (const Key& key : std::as_const(order))
        if (!after.contains(key)) {
            const Result<Image> now = current(db, *key.first, key.second);
            if (!now.ok())
                return now.error();
            after.insert(key, now.value());
        }
    for (const Key& key : std::as_const(order)) {
        const Kept& k = *key.first;
        const Image& was = before.value(key);
        const Image& is = after.value(key);
        qsizetype& at = rowOf[{k.entity->index, key.second}];
        if (at <= 0) {
            RowChange row;
            row.entity = k.entity;
            row.pk = key.second;
            out.rows << row;
            at = out.rows.size();
        }
        RowChange& row = out.rows[at - 1];
        // The record's own row says whether it was added or deleted, its pictures' row only
        // when the step did not change the record's own.
        if (!k.pictures || !before.contains({&keptFor(*k.entity, false), key.second}))
            row.kind = !was.exists  ? RowChange::Kind::Added
                       : !is.exists ? RowChange::Kind::Deleted
                                    : RowChange::Kind::Changed;
        // A pictures row names no coin: its coin's row does, or the coin as it is now.
        if (!k.pictures)
            row.name = nameOf(is.exists ? is : was, k);
        row.fields << differences(k, was, is);
    }
    // A change of pictures alone names its coin as it is now.
    const Kept& coins = keptFor(Model::coins(), false);
    for (RowChange& row : out.rows)
        if (row.name.isEmpty() && row.entity == &Model::coins()) {
            const Result<Image> now = current(db, coins, row.pk);
            row.name = now.ok() ? nameOf(now.value(), coins) : QString();
        }
    return out;
}

Result<QList<CoinVersion>> versionsOf(ManagedObjectContext& context, qint64 coin) {
    SqliteDatabase& db = *context.database();
    const Kept& main = keptFor(Model::coins(), false);
    const Kept& pictures = keptFor(Model::coins(), true);
    // Every image the journal kept of the coin, oldest first, in one pass.
    QList<Entry> entries;
    SqliteStatement& st = db.cached(
        QStringLiteral("SELECT %1 FROM main.Journal WHERE tbl IN (%2, %3) AND pk = ?1 ORDER BY seq")
            .arg(entryColumns())
            .arg(main.code)
            .arg(pictures.code));
    st.bindInt(1, coin);
    if (!readEntries(st, [&](const Entry& e) {
            entries << e;
            return true;
        }))
        return failure(db, QStringLiteral("reading the journal"));
    const Result<Image> nowMain = current(db, main, coin);
    const Result<Image> nowPictures = current(db, pictures, coin);
    if (!nowMain.ok() || !nowPictures.ok())
        return failure(db, QStringLiteral("reading the journal"));
    // The table's row as it was before `step`: the first image kept from then on, or now.
    auto before = [&](const Kept& k, qint64 step) {
        for (const Entry& e : std::as_const(entries))
            if (e.k == &k && e.step >= step)
                return e.image;
        return &k == &main ? nowMain.value() : nowPictures.value();
    };
    QList<CoinVersion> out;
    qint64 newer = std::numeric_limits<qint64>::max();
    for (qsizetype i = entries.size() - 1; i >= 0; --i) {
        const qint64 s = entries[i].step;
        if (s >= newer)
            continue;
        newer = s;
        const Image was = before(main, s);
        if (!was.exists)
            continue; // before the coin was added
        // Before and after: from the coin as it is now to the version.
        CoinVersion v{{}, differences(main, nowMain.value(), was)};
        v.fromNow << differences(pictures, nowPictures.value(), before(pictures, s));
        if (v.fromNow.isEmpty())
            continue;
        const Result<std::optional<StepInfo>> info = step(context, s);
        if (!info.ok())
            return info.error();
        if (!info.value())
            continue;
        v.step = *info.value();
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
    const Result<qint64> first =
        firstStepSince(db, ValueHistory::now().addDays(-days).toMSecsSinceEpoch());
    if (!first.ok())
        return first.error();
    if (first.value() == 0)
        return QList<DeletedCoin>();
    // The image kept by the coin's last deletion: its row with the greatest number.
    SqliteStatement& st = db.cached(
        QStringLiteral("SELECT max(j.seq), j.tbl, j.op, j.pk, %1 FROM main.Journal j WHERE j.seq "
                       ">= ?1 AND j.tbl = %2 AND j.op = %3 AND NOT EXISTS (SELECT 1 FROM main.%4 c "
                       "WHERE c.pk = j.pk) GROUP BY j.pk ORDER BY 1 DESC")
            .arg(prefixed(valueColumns(), QStringLiteral("j.")))
            .arg(main.code)
            .arg(Deleted)
            .arg(quoted(main.table)));
    if (!st.isValid())
        return failure(db, QStringLiteral("reading the journal"));
    st.bindInt(1, first.value() * kRowsPerStep);
    QList<Entry> gone;
    if (!readEntries(st, [&](const Entry& e) {
            gone << e;
            return true;
        }))
        return failure(db, QStringLiteral("reading the journal"));
    QList<DeletedCoin> out;
    for (const Entry& e : std::as_const(gone)) {
        const Result<std::optional<StepInfo>> info = step(context, e.step);
        if (!info.ok())
            return info.error();
        DeletedCoin d;
        d.pk = e.pk;
        d.step = info.value().value_or(StepInfo{});
        d.name = nameOf(e.image, main);
        d.country = valueOf(e.image, main, "country").toString();
        d.year = valueOf(e.image, main, "year").toInt();
        out << d;
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
