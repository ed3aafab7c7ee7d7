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

// A table whose rows the journal keeps, and the journal table that keeps them.
struct Kept {
    const EntityDescription* entity;
    bool pictures;
    QString table, journal;
    QStringList columns; // quoted, in the table's order
    QList<AttributeType> types;
    QList<int> attributes; // each column's position in the entity
};
const QList<Kept>& kept();
const Kept& keptFor(const EntityDescription& e, bool pictures);

// The columns, each with the prefix ("j." + column).
QString prefixed(const QStringList& columns, const QString& prefix);
// The rows a step's statements condition on (the step bound as ?1): those numbered in its range.
QString inStep(const QString& alias);
Error failure(SqliteDatabase& db, const QString& doing);
// A person's error, with no SQLite code behind it.
Error refusal(const QString& message);

// The steps a query finds, newest first or as `tail` orders them; `bind` binds its parameters.
Result<QList<StepInfo>> stepsWhere(ManagedObjectContext& context, const QString& tail,
                                   const std::function<void(SqliteStatement&)>& bind = {});
StepInfo stepAt(SqliteStatement& st, int first);
// The columns stepAt reads, in its order.
QString stepColumns(const QString& prefix = {});
Result<std::optional<StepInfo>> firstOf(Result<QList<StepInfo>> found);
// The condition on steps an undo may still reach: steps older than the newest restore that was
// taken back are of a collection that is no longer there, and their images would be put onto
// rows they never touched.
QString inReach();

// A row as the journal or the table holds it; empty `values` when there was no row.
struct Image {
    bool exists = false;
    QVariantList values; // in the Kept's column order
};
// The kept table's columns of a row read from `first` on.
QVariantList valuesAt(SqliteStatement& st, const Kept& k, int first);
// The row as it is now.
Result<Image> current(SqliteDatabase& db, const Kept& k, qint64 pk);
// The row as it was before `step` (or, with `after`, once `step` was done): the image of the
// first journal entry for it from then on, or the row as it is now when nothing changed it
// since.
Result<Image> stateAt(SqliteDatabase& db, const Kept& k, qint64 pk, qint64 step,
                      bool after = false);
// Writes a row back as the image holds it (none: the row goes).
bool writeImage(SqliteDatabase& db, const Kept& k, qint64 pk, const Image& image);
QVariant valueOf(const Image& image, const Kept& k, const char* attribute);
// "10 Cents 1964" for a coin's row, the value for a reference value's.
QString nameOf(const Image& image, const Kept& k);
// The fields that differ, as a person reads them.
QList<FieldChange> differences(const Kept& k, const Image& before, const Image& after);

} // namespace Journal::Rows
