#pragma once
// The journal's rows as the model's own code reads and writes them: which tables it keeps and
// how, a row as it was before or after a step, and the table of steps. Private to the model.
#include "model/Entity.h"
#include "model/Journal.h"

#include <QVariantList>
#include <functional>

class SqliteDatabase;
class SqliteStatement;

namespace Journal::Rows {

QString tr(const char* text);

// What the journal keeps of a row: inserted (no image: there was no row), changed or deleted
// (the row as it was).
enum Op { Inserted = 0, Updated = 1, Deleted = 2 };

// A table whose rows the journal keeps. Its rows are kept in the one table "Journal" under the
// table's code, each column of the table in a value column of the journal (v0, v1…), untyped so
// that each value keeps its type exactly.
struct Kept {
    const EntityDescription* entity;
    bool pictures;
    int code; // the entity's number and whether pictures: fixed, as the store keeps it
    QString table;
    QStringList columns; // quoted, in the table's order
    QStringList values;  // the journal's columns that keep them: v0, v1…
    QList<AttributeType> types;
    QList<int> attributes; // each column's position in the entity
};
const QList<Kept>& kept();
const Kept& keptFor(const EntityDescription& e, bool pictures);
// The journal's value columns: as many as the widest kept table has.
QStringList valueColumns();

// The columns, each with the prefix ("j." + column).
QString prefixed(const QStringList& columns, const QString& prefix);
// The rows a step's statements condition on (the step bound as ?1): those numbered in its range
// after its header.
QString inStep(const QString& alias);
// A step's header is the first row of its range (tbl 0).
QString headerSeq(qint64 step);
Error failure(SqliteDatabase& db, const QString& doing);
// A person's error, with no SQLite code behind it.
Error refusal(const QString& message);

// The steps' headers a query finds, in its order; `where` conditions on the header's columns
// (pk is the step's number), `bind` binds its parameters. For the few steps an index finds.
Result<QList<StepInfo>> stepsWhere(SqliteDatabase& db, const QString& where,
                                   const std::function<void(SqliteStatement&)>& bind = {});
// The steps from the newest back, as long as `visit` asks for more. Each is found from the one
// after it by the table's own order: no index of steps is written by a save.
Result<void> walkBack(SqliteDatabase& db, const std::function<bool(const StepInfo&)>& visit);
StepInfo stepAt(SqliteStatement& st, int first);
// The columns stepAt reads, in its order.
QString stepColumns(const QString& prefix = {});
Result<std::optional<StepInfo>> firstOf(Result<QList<StepInfo>> found);
// The oldest step an undo may still reach is after this one: steps older than the newest
// restore that was taken back are of a collection that is no longer there, and their images
// would be put onto rows they never touched.
Result<qint64> reachFloor(SqliteDatabase& db);
// The first step at `time` or later (ms since the epoch), walked from the oldest; 0 if none.
Result<qint64> firstStepSince(SqliteDatabase& db, qint64 time);

// A row as the journal or the table holds it; empty `values` when there was no row.
struct Image {
    bool exists = false;
    QVariantList values; // in the Kept's column order
};
// The kept table's columns of a row read from `first` on.
QVariantList valuesAt(SqliteStatement& st, const Kept& k, int first);
// The row as it is now.
Result<Image> current(SqliteDatabase& db, const Kept& k, qint64 pk);
// The row as it was before `step`: the image of the first journal entry for it from then on,
// or the row as it is now when nothing changed it since. Reads the journal from the step on.
Result<Image> stateAt(SqliteDatabase& db, const Kept& k, qint64 pk, qint64 step);
// The image a journal row holds, its values read from `first` on.
Image imageAt(SqliteStatement& st, const Kept& k, int op, int first);
// Writes a row back as the image holds it (none: the row goes).
bool writeImage(SqliteDatabase& db, const Kept& k, qint64 pk, const Image& image);
QVariant valueOf(const Image& image, const Kept& k, const char* attribute);
// "10 Cents 1964" for a coin's row, the value for a reference value's.
QString nameOf(const Image& image, const Kept& k);
// The fields that differ, as a person reads them.
QList<FieldChange> differences(const Kept& k, const Image& before, const Image& after);

} // namespace Journal::Rows
