#pragma once
// What the collection was worth, day by day: every saved change of a coin's quantity or value
// is an event in the store (table ValueEvents), written by the same statement that changes the
// coin, so a change and its event are committed together or not at all.
//
// The events are written by triggers on the coin table that each connection of the program
// makes for itself (connection()): what made a change and when come from the connection's stamp,
// which the save sets before its writes (ValueHistory::Cause names the cause). A write of
// another program is none of the collection's history. Reads here see what is saved, never a
// context's pending changes.
#include "platform/core/Error.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class ManagedObjectContext;

namespace ValueHistory {

// The causes an event names.
inline const QString Added = QStringLiteral("Added");
inline const QString Edited = QStringLiteral("Edited");
inline const QString Deleted = QStringLiteral("Deleted");
inline const QString Revaluation = QStringLiteral("Revaluation");
inline const QString Import = QStringLiteral("Import");
inline const QString Baseline = QStringLiteral("Baseline");
inline const QString Undo = QStringLiteral("Undo");
inline const QString Redo = QStringLiteral("Redo");

// The clock saves date their events by; tests and benchmarks set their own (an empty function
// gives the system clock back).
QDateTime now();
void setClock(std::function<QDateTime()> clock);

// Names what made the changes the context saves while it lives ("Revaluation", "Import");
// without one, an event is named by its kind of change.
class Cause {
public:
    Cause(ManagedObjectContext& context, const QString& cause);
    ~Cause();
    Cause(const Cause&) = delete;
    Cause& operator=(const Cause&) = delete;

private:
    ManagedObjectContext& context_;
    QString before_;
};

// The tables, created in one step of the store's schema.
QStringList schema();
// The stamp and the triggers, made by every connection that writes coins when it opens.
QStringList connection();
// From this many events not yet folded on, a save folds them.
inline constexpr int kFoldEvery = 1024;
// One event per coin already stored, dated `now`: the collection as the history begins.
QString baseline(const QDateTime& now);
// Adds the events written since the last fold to the days' sums, in the transaction of the
// save that wrote them.
QStringList fold();
// The tables a store of a schema with history must hold.
QStringList tables();

struct Event {
    qint64 pk = 0;
    QDateTime time;
    QDate day;       // the calendar day the change was saved on, where it was saved; never
                     // before the day of the event saved before it
    qint64 coin = 0; // the coin's row in the store
    QString denomination, country;
    int year = 0;
    qint64 quantityBefore = 0, quantityAfter = 0;
    double valueBefore = 0, valueAfter = 0; // per piece
    QString cause;
    double totalBefore() const { return double(quantityBefore) * valueBefore; }
    double totalAfter() const { return double(quantityAfter) * valueAfter; }
};

// The state of the collection at the end of one day.
struct DayTotal {
    QDate day;
    qint64 pieces = 0;
    double value = 0; // the sum of quantity × value per piece
};

// One row per day on which a change was saved, in order, with the collection's pieces and
// value at the end of that day.
Result<QList<DayTotal>> series(ManagedObjectContext& context);
// Every event of one coin, oldest first.
Result<QList<Event>> eventsOf(ManagedObjectContext& context, qint64 coin);
// The events from `from` on (all when not given) that changed a coin's total value the most,
// largest first; the baseline is no change.
Result<QList<Event>> largestChanges(ManagedObjectContext& context, std::optional<QDate> from,
                                    int limit);
// How many events the store holds.
Result<qint64> count(ManagedObjectContext& context);

} // namespace ValueHistory
