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
    QStringList out{QStringLiteral("JournalSteps")};
    for (const Kept& k : kept())
        out << k.journal;
    return out;
}

QStringList schema() {
    QStringList sql = {
        QStringLiteral("CREATE TABLE JournalSteps (pk INTEGER PRIMARY KEY, time INTEGER NOT NULL, "
                       "kind TEXT NOT NULL, subject TEXT NOT NULL DEFAULT '', detail TEXT NOT NULL "
                       "DEFAULT '', reverses INTEGER, undoneBy INTEGER, steps INTEGER NOT NULL "
                       "DEFAULT 1, state INTEGER NOT NULL DEFAULT 0)"),
        // The redo list and the restores are looked up at every save and every undo.
        QStringLiteral("CREATE INDEX JournalSteps_redoable ON JournalSteps(pk) WHERE state = 1"),
        QStringLiteral(
            "CREATE INDEX JournalSteps_restores ON JournalSteps(pk) WHERE kind = 'Restore'"),
    };
    for (const Kept& k : kept()) {
        QStringList columns;
        for (int c = 0; c < k.columns.size(); ++c)
            columns << k.columns[c] + QLatin1Char(' ') + sqlType(k.types[c]);
        sql << QStringLiteral("CREATE TABLE %1 (seq INTEGER PRIMARY KEY, step INTEGER NOT NULL, "
                              "op INTEGER NOT NULL, pk INTEGER NOT NULL, %2)")
                   .arg(k.journal, columns.join(QLatin1Char(',')))
            << QStringLiteral("CREATE INDEX %1_pk ON %1(pk)").arg(k.journal);
    }
    return sql;
}

QStringList connection() {
    // The step lives in the connection's own memory, as the value history's stamp does. A
    // write with no step open fails (the column may not be null): nothing escapes the journal.
    QStringList sql = {
        QStringLiteral("CREATE TEMP TABLE JournalStamp (pk INTEGER PRIMARY KEY, step INTEGER)"),
        QStringLiteral("INSERT INTO temp.JournalStamp (pk) VALUES (1)"),
    };
    for (const Kept& k : kept()) {
        const QString cols = k.columns.join(QLatin1Char(','));
        const QString stamp = QStringLiteral("FROM temp.JournalStamp s WHERE s.pk = 1");
        // The next number of the step's rows: found at the table's end, where the step writes.
        const QString seq =
            QStringLiteral("coalesce((SELECT j.seq + 1 FROM main.%1 j WHERE j.seq >= "
                           "s.step * %2 ORDER BY j.seq DESC LIMIT 1), s.step * %2)")
                .arg(k.journal)
                .arg(kRowsPerStep);
        auto trigger = [&](const QString& name, const QString& when, const QString& body) {
            return QStringLiteral("CREATE TEMP TRIGGER %1_%2 %3 ON main.%4 BEGIN %5; END")
                .arg(k.journal, name, when, quoted(k.table), body);
        };
        if (k.pictures) {
            // Pictures are written by INSERT OR REPLACE, whose replacing deletes no trigger
            // sees: the row about to be replaced is kept before the insert.
            sql << trigger(QStringLiteral("insert"), QStringLiteral("BEFORE INSERT"),
                           QStringLiteral("INSERT INTO %1 (seq, step, op, pk, %2) SELECT %5, "
                                          "s.step, CASE WHEN o.pk IS NULL THEN 0 ELSE 1 END, "
                                          "new.pk, %3 FROM temp.JournalStamp s LEFT JOIN main.%4 "
                                          "o ON o.pk = new.pk WHERE s.pk = 1")
                               .arg(k.journal, cols, prefixed(k.columns, QStringLiteral("o.")),
                                    quoted(k.table), seq));
        } else {
            sql << trigger(QStringLiteral("insert"), QStringLiteral("AFTER INSERT"),
                           QStringLiteral("INSERT INTO %1 (seq, step, op, pk) SELECT %3, "
                                          "s.step, 0, new.pk %2")
                               .arg(k.journal, stamp, seq));
        }
        sql << trigger(QStringLiteral("update"), QStringLiteral("AFTER UPDATE"),
                       QStringLiteral("INSERT INTO %1 (seq, step, op, pk, %2) SELECT %5, s.step, "
                                      "1, old.pk, %3 %4")
                           .arg(k.journal, cols, prefixed(k.columns, QStringLiteral("old.")), stamp,
                                seq))
            << trigger(QStringLiteral("delete"), QStringLiteral("AFTER DELETE"),
                       QStringLiteral("INSERT INTO %1 (seq, step, op, pk, %2) SELECT %5, s.step, "
                                      "2, old.pk, %3 %4")
                           .arg(k.journal, cols, prefixed(k.columns, QStringLiteral("old.")), stamp,
                                seq));
    }
    return sql;
}

void setRecording(ManagedObjectContext& context, bool on) {
    SqliteDatabase& db = *context.database();
    db.resetAll();
    for (const Kept& k : kept())
        for (const char* name : {"insert", "update", "delete"})
            db.exec(QStringLiteral("DROP TRIGGER IF EXISTS temp.%1_%2").arg(k.journal, name));
    db.exec(QStringLiteral("DROP TABLE IF EXISTS temp.JournalStamp"));
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
            return (s.kind == Undo ? t("Undid %1 steps, back to the %2")
                                   : t("Redid %1 steps, from the %2"))
                .arg(s.count)
                .arg(what);
        return (s.kind == Undo ? t("Undid the %1") : t("Redid the %1")).arg(what);
    }
    QString text;
    if (s.kind == Add)
        text = t("Added %1").arg(x);
    else if (s.kind == Edit)
        text = t("Edited %1").arg(x);
    else if (s.kind == Delete)
        text = t("Deleted %1").arg(x);
    else if (s.kind == Change)
        text = t("Changed %1 records").arg(x);
    else if (s.kind == Revaluation)
        text = t("Revalued %1").arg(x);
    else if (s.kind == Notes)
        text = t("Edited the notes of %1").arg(x);
    else if (s.kind == Import)
        text = t("Imported %1").arg(x);
    else if (s.kind == Repair)
        text = t("Repaired the record numbers of %1").arg(x);
    else if (s.kind == Seed)
        text = t("Filled the reference lists with %1 values").arg(x);
    else if (s.kind == Restore)
        text = t("Restored %1").arg(x);
    else if (s.kind == Version)
        text = t("Restored an earlier version of %1").arg(x);
    else if (s.kind == PutBack)
        text = t("Put back %1").arg(x);
    else
        text = x.isEmpty() ? s.kind : s.kind + QLatin1Char(' ') + x;
    if (!s.detail.isEmpty())
        text += QStringLiteral(": ") + s.detail;
    return text;
}

Result<QList<StepInfo>> steps(ManagedObjectContext& context, int limit) {
    return stepsWhere(context, QStringLiteral("ORDER BY pk DESC LIMIT ?1"),
                      [limit](SqliteStatement& st) { st.bindInt(1, limit); });
}

Result<std::optional<StepInfo>> step(ManagedObjectContext& context, qint64 pk) {
    return firstOf(stepsWhere(context, QStringLiteral("WHERE pk = ?1"),
                              [pk](SqliteStatement& st) { st.bindInt(1, pk); }));
}

Result<std::optional<StepInfo>> undoable(ManagedObjectContext& context) {
    return firstOf(stepsWhere(
        context, QStringLiteral("WHERE state = 0 AND %1 ORDER BY pk DESC LIMIT 1").arg(inReach())));
}

Result<std::optional<StepInfo>> redoable(ManagedObjectContext& context) {
    return firstOf(stepsWhere(context, QStringLiteral("WHERE state = 1 ORDER BY pk LIMIT 1")));
}

Result<qint64> prune(ManagedObjectContext& context, const QDateTime& now, int days, int keep) {
    SqliteDatabase& db = *context.database();
    // Only a run of the oldest steps goes: a step inside the days or the count keeps every
    // step after it, whatever its date.
    SqliteStatement& st = db.cached(QStringLiteral(
        "SELECT coalesce((SELECT min(pk) FROM main.JournalSteps WHERE time >= ?1 OR pk >= "
        "coalesce((SELECT pk FROM main.JournalSteps ORDER BY pk DESC LIMIT 1 OFFSET ?2), 0)), "
        "0) - 1, (SELECT min(pk) FROM main.JournalSteps)"));
    st.bindInt(1, now.addDays(-days).toMSecsSinceEpoch());
    st.bindInt(2, std::max(keep, 1) - 1);
    if (st.step() != SQLITE_ROW) {
        st.reset();
        return failure(db, QStringLiteral("reading the journal"));
    }
    const qint64 last = st.columnInt(0);
    const qint64 first = st.columnInt(1);
    st.reset();
    if (last < first || first == 0)
        return qint64(0);
    QStringList sql{QStringLiteral("BEGIN IMMEDIATE")};
    for (const Kept& k : kept())
        sql << QStringLiteral("DELETE FROM main.%1 WHERE seq < %2")
                   .arg(k.journal)
                   .arg((last + 1) * kRowsPerStep);
    sql << QStringLiteral("DELETE FROM main.JournalSteps WHERE pk <= %1").arg(last)
        << QStringLiteral("COMMIT");
    for (const QString& statement : sql)
        if (!db.exec(statement)) {
            const Error e = failure(db, QStringLiteral("pruning the journal"));
            db.exec(QStringLiteral("ROLLBACK"));
            return e;
        }
    return last - first + 1;
}

} // namespace Journal
