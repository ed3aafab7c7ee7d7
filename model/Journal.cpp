#include "model/Journal.h"
#include "model/JournalRows.h"

#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"

#include <sqlite3.h>

using namespace ContextSql;

namespace Journal {
using namespace Rows;

QString coinName(const QString& denomination, int year) {
    QStringList parts;
    if (!denomination.isEmpty())
        parts << denomination;
    if (year != 0)
        parts << QString::number(year);
    return parts.isEmpty() ? QStringLiteral("a coin") : parts.join(QLatin1Char(' '));
}

Step::Step(ManagedObjectContext& context, const QString& kind, const QString& subject)
    : context_(context)
    , outer_(context.beginStep(kind, subject)) {}

Step::~Step() {
    context_.endStep();
}

void Step::setDetail(const QString& detail) {
    if (outer_)
        context_.setStepDetail(detail);
}

QStringList tables() {
    return {QStringLiteral("Journal")};
}

QStringList schema() {
    // One table for the steps and the rows they kept, so that a one-coin save appends to one
    // place of the file: a step's header is the first row of its range (tbl 0, its fields in
    // the value columns), the rows it kept follow it (tbl the kept table's code, op, pk and
    // the row's values). No index is written by a save: the two partial ones hold only undone steps
    // and restores. The value columns have no type, so that no affinity changes what they keep.
    const QStringList values = valueColumns();
    return {
        QStringLiteral("CREATE TABLE Journal (seq INTEGER PRIMARY KEY, tbl INTEGER NOT NULL, op "
                       "INTEGER, pk INTEGER, %1)")
            .arg(values.join(QStringLiteral(", "))),
        headerSql(QStringLiteral(
            "CREATE INDEX Journal_redoable ON Journal(seq) WHERE tbl = 0 AND {state} = 1")),
        headerSql(QStringLiteral(
            "CREATE INDEX Journal_restores ON Journal(seq) WHERE tbl = 0 AND {kind} = 'Restore'")),
    };
}

QStringList fromSeparateTables() {
    const QString r = QString::number(kRowsPerStep);
    QStringList sql = schema();
    sql << headerSql(QStringLiteral("INSERT INTO Journal (seq, tbl, {time}, {kind}, {subject}, "
                                    "{detail}, {reverses}, {undoneBy}, {steps}, {state}) SELECT "
                                    "pk * %1, 0, time, kind, subject, detail, reverses, "
                                    "undoneBy, steps, state FROM JournalSteps")
                         .arg(r));
    // Each table numbered its rows within the step from 0: here they follow the header, one
    // table after the other, each in its own order.
    QStringList parts;
    const QStringList all = valueColumns();
    for (const Kept& k : kept()) {
        QStringList cols;
        for (qsizetype c = 0; c < all.size(); ++c)
            cols << (c < k.columns.size() ? k.columns[c] : QStringLiteral("NULL")) +
                        QStringLiteral(" AS ") + all[c];
        parts << QStringLiteral("SELECT %1 AS t, seq, step, op, pk, %2 FROM Journal_%3")
                     .arg(k.code)
                     .arg(cols.join(QLatin1Char(',')), k.table);
    }
    sql << QStringLiteral("INSERT INTO Journal (seq, tbl, op, pk, %1) SELECT step * %2 + "
                          "row_number() OVER (PARTITION BY step ORDER BY t, seq), t, op, pk, %1 "
                          "FROM (%3)")
               .arg(all.join(QLatin1Char(',')), r, parts.join(QStringLiteral(" UNION ALL ")));
    for (const Kept& k : kept())
        sql << QStringLiteral("DROP TABLE Journal_%1").arg(k.table);
    sql << QStringLiteral("DROP TABLE JournalSteps");
    return sql;
}

QStringList connection() {
    QStringList sql;
    for (const Kept& k : kept()) {
        const QString values = k.values.join(QLatin1Char(','));
        // Each row is numbered by the context's counter inside the open step's range
        // (journal_seq()), which refuses a change made with no step open: nothing escapes the
        // journal.
        auto trigger = [&](const QString& name, const QString& when, const QString& body) {
            return QStringLiteral("CREATE TEMP TRIGGER Journal_%1_%2 %3 ON main.%4 BEGIN %5; END")
                .arg(k.table, name, when, quoted(k.table), body);
        };
        auto keep = [&](int op, const QString& row) {
            return QStringLiteral("INSERT INTO Journal (seq, tbl, op, pk, %1) VALUES "
                                  "(journal_seq(), %2, %3, %4.pk, %5)")
                .arg(values, QString::number(k.code), QString::number(op))
                .arg(row, prefixed(k.columns, row + QLatin1Char('.')));
        };
        if (k.pictures) {
            // Pictures are written by INSERT OR REPLACE, whose replacing deletes no trigger
            // sees: the row about to be replaced is kept before the insert.
            sql << trigger(QStringLiteral("insert"), QStringLiteral("BEFORE INSERT"),
                           QStringLiteral("INSERT INTO Journal (seq, tbl, op, pk, %1) SELECT "
                                          "journal_seq(), %2, CASE WHEN o.pk IS NULL THEN 0 ELSE "
                                          "1 END, new.pk, %3 FROM (SELECT 1) LEFT JOIN main.%4 "
                                          "o ON o.pk = new.pk")
                               .arg(values, QString::number(k.code),
                                    prefixed(k.columns, QStringLiteral("o.")), quoted(k.table)));
        } else {
            sql << trigger(QStringLiteral("insert"), QStringLiteral("AFTER INSERT"),
                           QStringLiteral("INSERT INTO Journal (seq, tbl, op, pk) VALUES "
                                          "(journal_seq(), %1, 0, new.pk)")
                               .arg(QString::number(k.code)));
        }
        sql << trigger(QStringLiteral("update"), QStringLiteral("AFTER UPDATE"),
                       keep(Updated, QStringLiteral("old")))
            << trigger(QStringLiteral("delete"), QStringLiteral("AFTER DELETE"),
                       keep(Deleted, QStringLiteral("old")));
    }
    return sql;
}

void setRecording(ManagedObjectContext& context, bool on) {
    SqliteDatabase& db = *context.database();
    db.resetAll();
    for (const Kept& k : kept())
        for (const char* name : {"insert", "update", "delete"})
            db.exec(QStringLiteral("DROP TRIGGER IF EXISTS temp.Journal_%1_%2").arg(k.table, name));
    if (on)
        for (const QString& statement : connection())
            db.exec(statement);
    context.setJournaling(on);
}

QString commandName(const StepInfo& s) {
    const QString kind = s.isReversal() ? s.detail : s.kind;
    const QString& x = s.subject;
    if (kind == Add)
        return tr("Addition of %1").arg(x);
    if (kind == Edit)
        return tr("Edit of %1").arg(x);
    if (kind == Delete)
        return tr("Deletion of %1").arg(x);
    if (kind == Change)
        return tr("Change of %1 records").arg(x);
    if (kind == Revaluation)
        return tr("Revaluation of %1").arg(x);
    if (kind == Notes)
        return tr("Notes Edit of %1").arg(x);
    if (kind == Import)
        return tr("Import of %1").arg(x);
    if (kind == Repair)
        return tr("Record Number Repair");
    if (kind == Seed)
        return tr("Filling of the Reference Lists");
    if (kind == Restore)
        return tr("Restore of %1").arg(x);
    if (kind == Version)
        return tr("Version Restore of %1").arg(x);
    if (kind == PutBack)
        return tr("Put Back of %1").arg(x);
    return x.isEmpty() ? kind : kind + QLatin1Char(' ') + x;
}

QString describe(const StepInfo& s, bool translated) {
    // The console's words are data that scripts read: always these.
    auto t = [translated](const char* text) {
        return translated ? tr(text) : QString::fromUtf8(text);
    };
    const QString& x = s.subject;
    if (s.kind == Undo || s.kind == Redo) {
        StepInfo reversed = s;
        reversed.state = StepInfo::State::InPlace;
        reversed.kind = s.detail;
        const QString what =
            translated ? commandName(reversed) : reversed.kind + QStringLiteral(" of ") + x;
        if (s.count > 1)
            return (s.kind == Undo
                        ? t(QT_TRANSLATE_NOOP("Journal", "Undid %1 steps, back to the %2"))
                        : t(QT_TRANSLATE_NOOP("Journal", "Redid %1 steps, from the %2")))
                .arg(s.count)
                .arg(what);
        return (s.kind == Undo ? t(QT_TRANSLATE_NOOP("Journal", "Undid the %1"))
                               : t(QT_TRANSLATE_NOOP("Journal", "Redid the %1")))
            .arg(what);
    }
    QString text;
    if (s.kind == Add)
        text = t(QT_TRANSLATE_NOOP("Journal", "Added %1")).arg(x);
    else if (s.kind == Edit)
        text = t(QT_TRANSLATE_NOOP("Journal", "Edited %1")).arg(x);
    else if (s.kind == Delete)
        text = t(QT_TRANSLATE_NOOP("Journal", "Deleted %1")).arg(x);
    else if (s.kind == Change)
        text = t(QT_TRANSLATE_NOOP("Journal", "Changed %1 records")).arg(x);
    else if (s.kind == Revaluation)
        text = t(QT_TRANSLATE_NOOP("Journal", "Revalued %1")).arg(x);
    else if (s.kind == Notes)
        text = t(QT_TRANSLATE_NOOP("Journal", "Edited the notes of %1")).arg(x);
    else if (s.kind == Import)
        text = t(QT_TRANSLATE_NOOP("Journal", "Imported %1")).arg(x);
    else if (s.kind == Repair)
        text = t(QT_TRANSLATE_NOOP("Journal", "Repaired the record numbers of %1")).arg(x);
    else if (s.kind == Seed)
        text = t(QT_TRANSLATE_NOOP("Journal", "Filled the reference lists with %1 values")).arg(x);
    else if (s.kind == Restore)
        text = t(QT_TRANSLATE_NOOP("Journal", "Restored %1")).arg(x);
    else if (s.kind == Version)
        text = t(QT_TRANSLATE_NOOP("Journal", "Restored an earlier version of %1")).arg(x);
    else if (s.kind == PutBack)
        text = t(QT_TRANSLATE_NOOP("Journal", "Put back %1")).arg(x);
    else
        text = x.isEmpty() ? s.kind : s.kind + QLatin1Char(' ') + x;
    if (!s.detail.isEmpty())
        text += QStringLiteral(": ") + s.detail;
    return text;
}

Result<QList<StepInfo>> steps(ManagedObjectContext& context, int limit) {
    QList<StepInfo> out;
    if (limit <= 0)
        return out;
    const Result<void> walked = walkBack(*context.database(), [&](const StepInfo& s) {
        out << s;
        return out.size() < limit;
    });
    if (!walked.ok())
        return walked.error();
    return out;
}

Result<std::optional<StepInfo>> step(ManagedObjectContext& context, qint64 pk) {
    return firstOf(stepsWhere(*context.database(), QStringLiteral("seq = ?1"),
                              [pk](SqliteStatement& st) { st.bindInt(1, pk * kRowsPerStep); }));
}

Result<std::optional<StepInfo>> undoable(ManagedObjectContext& context) {
    SqliteDatabase& db = *context.database();
    const Result<qint64> floor = reachFloor(db);
    if (!floor.ok())
        return floor.error();
    std::optional<StepInfo> found;
    const Result<void> walked = walkBack(db, [&](const StepInfo& s) {
        if (s.pk <= floor.value())
            return false;
        if (s.state == StepInfo::State::InPlace)
            found = s;
        return !found;
    });
    if (!walked.ok())
        return walked.error();
    return found;
}

Result<std::optional<StepInfo>> redoable(ManagedObjectContext& context) {
    return firstOf(
        stepsWhere(*context.database(), QStringLiteral("{state} = 1 ORDER BY seq LIMIT 1")));
}

Result<qint64> prune(ManagedObjectContext& context, const QDateTime& now, int days, int keep) {
    SqliteDatabase& db = *context.database();
    // Only a run of the oldest steps goes: a step inside the days or the count keeps every
    // step after it, whatever its date. Both are found by walking: the newest `keep` back,
    // the oldest forward to the first inside the days.
    qint64 newestKept = 0;
    int counted = 0;
    const Result<void> walked = walkBack(db, [&](const StepInfo& s) {
        newestKept = s.pk;
        return ++counted < std::max(keep, 1);
    });
    if (!walked.ok())
        return walked.error();
    const Result<qint64> recent = firstStepSince(db, now.addDays(-days).toMSecsSinceEpoch());
    if (!recent.ok())
        return recent.error();
    const qint64 firstKept = recent.value() ? std::min(recent.value(), newestKept) : newestKept;
    SqliteStatement& oldest =
        db.cached(QStringLiteral("SELECT count(*) FROM main.Journal WHERE tbl = 0 AND seq < ?1"));
    oldest.bindInt(1, firstKept * kRowsPerStep);
    const bool read = oldest.step() == SQLITE_ROW;
    const qint64 going = read ? oldest.columnInt(0) : 0;
    oldest.reset();
    if (!read)
        return failure(db, QStringLiteral("reading the journal"));
    if (going == 0)
        return qint64(0);
    const QStringList sql{
        QStringLiteral("BEGIN IMMEDIATE"),
        QStringLiteral("DELETE FROM main.Journal WHERE seq < %1").arg(firstKept * kRowsPerStep),
        QStringLiteral("COMMIT")};
    for (const QString& statement : sql)
        if (!db.exec(statement)) {
            const Error e = failure(db, QStringLiteral("pruning the journal"));
            db.exec(QStringLiteral("ROLLBACK"));
            return e;
        }
    return going;
}

} // namespace Journal
