#include "model/Journal.h"

#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"
#include "model/ValueHistory.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>
#include <sqlite3.h>

using namespace ContextSql;

namespace Journal {
namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("Journal", text);
}

// What the journal keeps of a row: inserted (no image: there was no row), changed or deleted
// (the row as it was).
enum Op { Inserted = 0, Updated = 1, Deleted = 2 };
enum StepState { InPlace = 0, Redoable = 1, Undone = 2, Reversal = 3 };

// A table whose rows the journal keeps, and the journal table that keeps them.
struct Kept {
    const EntityDescription* entity;
    bool pictures;
    QString table, journal;
    QStringList columns; // quoted, in the table's order
    QList<AttributeType> types;
    QList<int> attributes; // each column's position in the entity
};

const QList<Kept>& kept() {
    static const QList<Kept> all = [] {
        QList<Kept> out;
        for (const EntityDescription* e : Model::entities())
            for (bool pictures : {false, true}) {
                if (pictures && !e->hasData())
                    continue;
                Kept k{e, pictures, pictures ? e->dataTable() : e->name, {}, {}, {}, {}};
                k.journal = QStringLiteral("Journal_") + k.table;
                k.columns = pictures ? dataColumns(*e) : mainColumns(*e);
                for (std::size_t i = 0; i < e->attributes.size(); ++i)
                    if ((e->attributes[i].type == AttributeType::Data) == pictures) {
                        k.types << e->attributes[i].type;
                        k.attributes << int(i);
                    }
                out << k;
            }
        return out;
    }();
    return all;
}

const Kept& keptFor(const EntityDescription& e, bool pictures) {
    for (const Kept& k : kept())
        if (k.entity == &e && k.pictures == pictures)
            return k;
    Q_UNREACHABLE();
}

QString prefixed(const QStringList& columns, const QString& prefix) {
    QStringList out;
    for (const QString& c : columns)
        out << prefix + c;
    return out.join(QLatin1Char(','));
}

// The rows a step's statements condition on: those numbered in the step's range.
QString inStep(const QString& alias) {
    return QStringLiteral("%1.seq BETWEEN ?1 * %2 AND ?1 * %2 + %3")
        .arg(alias)
        .arg(kRowsPerStep)
        .arg(kRowsPerStep - 1);
}

Error failure(SqliteDatabase& db, const QString& doing) {
    return Error::because(db.errorCode(), db.errorMessage(), doing);
}

const QString kStepColumns =
    QStringLiteral("pk, time, kind, subject, detail, coalesce(reverses, 0), steps, state");

StepInfo stepAt(SqliteStatement& st, int first = 0) {
    StepInfo s;
    s.pk = st.columnInt(first);
    s.time = QDateTime::fromMSecsSinceEpoch(st.columnInt(first + 1));
    s.kind = st.columnText(first + 2);
    s.subject = st.columnText(first + 3);
    s.detail = st.columnText(first + 4);
    s.reverses = st.columnInt(first + 5);
    s.count = int(st.columnInt(first + 6));
    s.state = StepInfo::State(std::clamp<qint64>(st.columnInt(first + 7), 0, 3));
    return s;
}

// Runs a query of steps; `bind` binds its parameters.
Result<QList<StepInfo>> stepsWhere(ManagedObjectContext& context, const QString& tail,
                                   const std::function<void(SqliteStatement&)>& bind = {}) {
    SqliteDatabase& db = *context.database();
    SqliteStatement& st =
        db.cached(QStringLiteral("SELECT %1 FROM main.JournalSteps %2").arg(kStepColumns, tail));
    if (!st.isValid())
        return failure(db, QStringLiteral("reading the journal"));
    if (bind)
        bind(st);
    QList<StepInfo> out;
    int rc;
    while ((rc = st.step()) == SQLITE_ROW)
        out << stepAt(st);
    st.reset();
    if (rc != SQLITE_DONE)
        return failure(db, QStringLiteral("reading the journal"));
    return out;
}

Result<std::optional<StepInfo>> firstOf(Result<QList<StepInfo>> found) {
    if (!found.ok())
        return found.error();
    if (found.value().isEmpty())
        return std::optional<StepInfo>();
    return std::optional<StepInfo>(found.value().first());
}

// Steps older than the newest restore that was taken back are of a collection that is no
// longer there: their images would be put onto rows they never touched.
const QString kInReach = QStringLiteral(
    "pk > coalesce((SELECT max(pk) FROM main.JournalSteps WHERE kind = 'Restore' AND "
    "state <> 0), 0)");

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

// A column of a row read back as the value the record holds: invalid for no value.
QVariant columnValue(SqliteStatement& st, int col, AttributeType type) {
    if (st.isNull(col))
        return {};
    switch (type) {
    case AttributeType::Text:
        return st.columnText(col);
    case AttributeType::Data:
        return st.columnBlob(col);
    case AttributeType::Int16:
        return st.columnInt(col);
    default:
        return st.columnDouble(col);
    }
}

// A row as the journal or the table holds it; empty `values` when there was no row.
struct Image {
    bool exists = false;
    QVariantList values; // in the Kept's column order
};

QVariantList valuesAt(SqliteStatement& st, const Kept& k, int first) {
    QVariantList out;
    for (int c = 0; c < k.columns.size(); ++c)
        out << columnValue(st, first + c, k.types[c]);
    return out;
}

// The row as it is now.
Result<Image> current(SqliteDatabase& db, const Kept& k, qint64 pk) {
    SqliteStatement& st = db.cached(QStringLiteral("SELECT %1 FROM main.%2 WHERE pk = ?1")
                                        .arg(k.columns.join(QLatin1Char(',')), quoted(k.table)));
    st.bindInt(1, pk);
    const int rc = st.step();
    Image out;
    if (rc == SQLITE_ROW)
        out = {true, valuesAt(st, k, 0)};
    st.reset();
    if (rc != SQLITE_ROW && rc != SQLITE_DONE)
        return failure(db, QStringLiteral("reading the journal"));
    return out;
}

// The row as it was before `step` (or, with `after`, once `step` was done): the image of the
// first journal entry for it from then on, or the row as it is now when nothing changed it
// since.
Result<Image> stateAt(SqliteDatabase& db, const Kept& k, qint64 pk, qint64 step,
                      bool after = false) {
    SqliteStatement& st =
        db.cached(QStringLiteral("SELECT op, %1 FROM main.%2 WHERE pk = ?1 AND seq >= (?2 + %3) * "
                                 "%4 ORDER BY seq LIMIT 1")
                      .arg(k.columns.join(QLatin1Char(',')), k.journal,
                           after ? QStringLiteral("1") : QStringLiteral("0"))
                      .arg(kRowsPerStep));
    st.bindInt(1, pk);
    st.bindInt(2, step);
    const int rc = st.step();
    Image out;
    if (rc == SQLITE_ROW && st.columnInt(0) != Inserted)
        out = {true, valuesAt(st, k, 1)};
    st.reset();
    if (rc == SQLITE_DONE)
        return current(db, k, pk);
    if (rc != SQLITE_ROW)
        return failure(db, QStringLiteral("reading the journal"));
    return out;
}

// Writes a row back as the image holds it (none: the row goes).
bool writeImage(SqliteDatabase& db, const Kept& k, qint64 pk, const Image& image) {
    if (!image.exists) {
        SqliteStatement& st =
            db.cached(QStringLiteral("DELETE FROM main.%1 WHERE pk = ?1").arg(quoted(k.table)));
        st.bindInt(1, pk);
        const bool done = st.step() == SQLITE_DONE;
        st.reset();
        return done;
    }
    QStringList sets, marks;
    for (int c = 0; c < k.columns.size(); ++c) {
        sets << QStringLiteral("%1 = excluded.%1").arg(k.columns[c]);
        marks << QStringLiteral("?%1").arg(c + 2);
    }
    SqliteStatement& st = db.cached(
        k.pictures ? QStringLiteral("INSERT OR REPLACE INTO main.%1 (pk, %2) VALUES (?1, %3)")
                         .arg(quoted(k.table), k.columns.join(QLatin1Char(',')),
                              marks.join(QLatin1Char(',')))
                   : QStringLiteral("INSERT INTO main.%1 (pk, %2) VALUES (?1, %3) ON CONFLICT "
                                    "(pk) DO UPDATE SET %4")
                         .arg(quoted(k.table), k.columns.join(QLatin1Char(',')),
                              marks.join(QLatin1Char(',')), sets.join(QLatin1Char(','))));
    st.bindInt(1, pk);
    for (int c = 0; c < image.values.size(); ++c)
        st.bind(c + 2, image.values[c]);
    const bool done = st.step() == SQLITE_DONE;
    st.reset();
    return done;
}

QVariant valueOf(const Image& image, const Kept& k, const char* attribute) {
    const int at = k.entity->indexOf(QLatin1String(attribute));
    const qsizetype c = k.attributes.indexOf(at);
    return image.exists && c >= 0 ? image.values[c] : QVariant();
}

QString nameOf(const Image& image, const Kept& k) {
    if (k.entity == &Model::coins())
        return coinName(valueOf(image, k, "denomination").toString(),
                        valueOf(image, k, "year").toInt());
    return image.exists ? image.values.value(0).toString() : QString();
}

// An empty text and no text read the same to a person (a form saves the one where the store
// held the other): no change worth listing.
bool same(const QVariant& a, const QVariant& b) {
    auto blank = [](const QVariant& v) {
        return !v.isValid() || (v.typeId() == QMetaType::QString && v.toString().isEmpty());
    };
    if (blank(a) || blank(b))
        return blank(a) && blank(b);
    return a == b;
}

QList<FieldChange> differences(const Kept& k, const Image& before, const Image& after) {
    QList<FieldChange> out;
    for (int c = 0; c < k.columns.size(); ++c) {
        const QVariant b = before.exists ? before.values[c] : QVariant();
        const QVariant a = after.exists ? after.values[c] : QVariant();
        if (!same(a, b))
            out << FieldChange{k.entity->attributes[std::size_t(k.attributes[c])].name, b, a};
    }
    return out;
}

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
        Error e;
        e.message = tr("The coin did not exist before that change.");
        return e;
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
        context, QStringLiteral("WHERE state = 0 AND %1 ORDER BY pk DESC LIMIT 1").arg(kInReach)));
}

Result<std::optional<StepInfo>> redoable(ManagedObjectContext& context) {
    return firstOf(stepsWhere(context, QStringLiteral("WHERE state = 1 ORDER BY pk LIMIT 1")));
}

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

Error nothingTo(const QString& message) {
    Error e;
    e.message = message;
    return e;
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
        return nothingTo(tr("There is nothing to undo."));
    return undoSteps(context, {*target.value()});
}

Result<int> undoBackTo(ManagedObjectContext& context, qint64 stepPk) {
    if (context.hasChanges())
        if (Result<void> saved = context.save(); !saved.ok())
            return saved.error();
    const Result<QList<StepInfo>> inPlace = stepsWhere(
        context,
        QStringLiteral("WHERE state = 0 AND pk >= ?1 AND %1 ORDER BY pk DESC").arg(kInReach),
        [stepPk](SqliteStatement& st) { st.bindInt(1, stepPk); });
    if (!inPlace.ok())
        return inPlace.error();
    if (inPlace.value().isEmpty() || inPlace.value().last().pk != stepPk)
        return nothingTo(tr("That change cannot be undone any more."));
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
        return nothingTo(tr("There is nothing to redo."));
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
        return nothingTo(tr("There is nothing to redo."));
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
            "SELECT j.pk, max(j.step), s.pk, s.time, s.kind, s.subject, s.detail, "
            "coalesce(s.reverses, 0), s.steps, s.state FROM main.%1 j JOIN main.JournalSteps s "
            "ON s.pk = j.step WHERE j.seq >= coalesce((SELECT min(pk) * %3 FROM "
            "main.JournalSteps WHERE time >= ?1), 9223372036854775807) AND j.op = 2 AND NOT "
            "EXISTS (SELECT 1 FROM main.%2 c WHERE c.pk = j.pk) GROUP BY j.pk ORDER BY 2 DESC")
            .arg(main.journal, quoted(main.table))
            .arg(kRowsPerStep));
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
    return nothingTo(tr("That coin is not among the deleted coins."));
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
