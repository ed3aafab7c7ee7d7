#pragma once
// The change journal: every row the program writes to a coin, its pictures or a reference value
// leaves its before-image in the store, written by the same statement that changes it (triggers
// each connection makes for itself, as the value history's), so that a change and its record
// are committed together or not at all. One user action is one step; undoing a step puts every
// row it touched back as it was, in one transaction, and is itself a step, so that a redo is
// the undo of that undo.
//
// A step is "in place" until it is undone; the steps undone since the last new change can be
// redone, oldest first, and a new change drops them, as in any editor.
#include "platform/core/Error.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <optional>

class ManagedObjectContext;
struct EntityDescription;

namespace Journal {

// The kinds of step, as the store keeps them.
inline const QString Add = QStringLiteral("Add");
inline const QString Edit = QStringLiteral("Edit");
inline const QString Delete = QStringLiteral("Delete");
inline const QString Change = QStringLiteral("Change"); // a save of several records
inline const QString Revaluation = QStringLiteral("Revaluation");
inline const QString Notes = QStringLiteral("Notes");
inline const QString Import = QStringLiteral("Import");
inline const QString Repair = QStringLiteral("Repair");
inline const QString Seed = QStringLiteral("Seed"); // the reference lists filled at first start
inline const QString Restore = QStringLiteral("Restore");
inline const QString Version = QStringLiteral("Version");
inline const QString PutBack = QStringLiteral("Put Back");
inline const QString Undo = QStringLiteral("Undo");
inline const QString Redo = QStringLiteral("Redo");

// The saves of a context made while a Step lives are one step of the journal, named by its kind
// and subject ("Import", "Pelvane.csv"). Without one, each save is a step of its own, named by
// what it writes ("Edit", "10 Cents 1964"). A step opened inside another adds to the outer one.
class Step {
public:
    Step(ManagedObjectContext& context, const QString& kind, const QString& subject);
    ~Step();
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    // What the step did, known at its end ("6,618 created, 626 updated"): kept with it.
    void setDetail(const QString& detail);

private:
    ManagedObjectContext& context_;
    bool outer_;
};

// A row of the journal is numbered by its step and its place in the step (step × this +
// place, the step's header at place 0): the rows of one step are one range of the table, found
// without an index of their own.
inline constexpr qint64 kRowsPerStep = qint64(1) << 24;

// The number the journal keeps a table's rows under (tbl): the entity's own number and whether
// its pictures. Fixed, as the store keeps it; 0 is a step's header.
int tableCode(const EntityDescription& e, bool pictures);

// SQL about steps' headers, whose fields ({time}, {kind}, {subject}, {detail}, {reverses},
// {undoneBy}, {steps}, {state}) are kept in the journal's value columns: each name in braces
// becomes its column.
QString headerSql(const QString& sql);

// The table, created in one step of the store's schema.
QStringList schema();
// From the journal of schema 5 (a table of steps and one of rows for each kept table) to the
// one table: every step and row kept, each row in its step's range.
QStringList fromSeparateTables();
// The stamp and the triggers, made by every connection that writes when it opens.
QStringList connection();
// The tables a store of a schema with the journal must hold.
QStringList tables();

struct StepInfo {
    qint64 pk = 0;
    QDateTime time;
    QString kind, subject, detail;
    qint64 reverses = 0; // the step an Undo or Redo reversed
    int count = 1;       // the steps an Undo or Redo reversed at once
    enum class State { InPlace, Redoable, Undone, Reversal } state = State::InPlace;
    bool isReversal() const { return state == State::Reversal; }
};

// "Edited 10 Cents 1964", "Imported Pelvane.csv: 6,618 created, 626 updated": the step as a
// line of the journal (in the user's words when `translated`, else as the console prints it).
QString describe(const StepInfo& step, bool translated = true);
// "Edit of 10 Cents 1964": the step as the Undo and Redo commands name it.
QString commandName(const StepInfo& step);

// The newest steps first.
Result<QList<StepInfo>> steps(ManagedObjectContext& context, int limit);
Result<std::optional<StepInfo>> step(ManagedObjectContext& context, qint64 pk);
// The step Undo would undo and the one Redo would redo, if any.
Result<std::optional<StepInfo>> undoable(ManagedObjectContext& context);
Result<std::optional<StepInfo>> redoable(ManagedObjectContext& context);

// Each writes one step (two for undoBackTo's several) in one transaction, with the context's
// pending changes saved first, and brings the context's records up to date. The step written.
Result<StepInfo> undo(ManagedObjectContext& context);
Result<StepInfo> redo(ManagedObjectContext& context);
// Undoes every step in place from the newest back to `step`, that one included, in one
// transaction (each its own Undo, so each can be redone).
Result<int> undoBackTo(ManagedObjectContext& context, qint64 step);

// One field of one row a step changed.
struct FieldChange {
    QString attribute;
    QVariant before, after; // invalid: no value
};
struct RowChange {
    const EntityDescription* entity = nullptr; // the record's entity (pictures: Coins)
    qint64 pk = 0;
    enum class Kind { Added, Changed, Deleted } kind = Kind::Changed;
    QString name; // "10 Cents 1964", "MS-63"
    QList<FieldChange> fields;
};
// What the step changed, row by row (at most `limit` rows), and how many rows it touched.
struct StepChanges {
    QList<RowChange> rows;
    qint64 total = 0;
};
Result<StepChanges> changesOf(ManagedObjectContext& context, qint64 step, int limit);

// A coin as it was before a step changed it.
struct CoinVersion {
    StepInfo step;              // the step that changed it afterwards
    QList<FieldChange> fromNow; // how that version differs from the coin as it is now
};
// The coin's earlier versions, newest first.
Result<QList<CoinVersion>> versionsOf(ManagedObjectContext& context, qint64 coin);
// Writes the coin back as it was before `step`, pictures included, as a new step.
Result<StepInfo> restoreVersion(ManagedObjectContext& context, qint64 coin, qint64 step);

// A coin deleted in the last `days` days and not back since.
struct DeletedCoin {
    qint64 pk = 0;
    StepInfo step; // the step that deleted it
    QString name, country;
    int year = 0;
};
Result<QList<DeletedCoin>> recentlyDeleted(ManagedObjectContext& context, int days = 90);
Result<StepInfo> putBack(ManagedObjectContext& context, qint64 coin);

// After a restore: the change from the collection kept in `before` (a store file) to the one now
// open, as one step that can be undone. Nothing is written when `before` cannot be read.
Result<void> recordRestore(ManagedObjectContext& context, const QString& before,
                           const QString& subject);

// Steps older than `days` days that are not among the newest `keep`, with their rows; how many
// went.
inline constexpr int kKeepDays = 90;
inline constexpr int kKeepSteps = 1000;
Result<qint64> prune(ManagedObjectContext& context, const QDateTime& now, int days = kKeepDays,
                     int keep = kKeepSteps);

// Takes the journal's triggers off the context's connection and stops its saves from making
// steps, or puts both back: for a benchmark that measures what the journal costs a save.
void setRecording(ManagedObjectContext& context, bool on);

// The name a coin goes by in the journal: "10 Cents 1964".
QString coinName(const QString& denomination, int year);

} // namespace Journal
