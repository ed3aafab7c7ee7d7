#pragma once
// Backups, restores and snapshots, from the command line and at the window's start.
#include <QString>

class Window;
class ManagedObjectContext;

namespace StoreCommands {
// The store file the program opens (in the data folder).
QString storePath();
// --backup FILE: 0 and one line naming the file and the coins; 1 and the reason on stderr.
int backup(const QString& file);
// --restore FILE: 0 and what was replaced; 1 and the reason, the collection untouched.
int restore(const QString& file);
// --backups: one line per snapshot, newest first.
int listSnapshots();
// --undo: 0 and "Undid ..." naming the step undone; 1 and the reason (nothing to undo).
int undo(ManagedObjectContext& context, const QString& store);
// --changes: the journal's last 50 steps, newest first, one a line: date, time, what.
int changes(ManagedObjectContext& context, const QString& store);
// Whether the daily snapshot is due; asked before the store is opened, since opening it
// touches its files.
bool snapshotDue();
// Takes the daily snapshot on a worker once the window is up; a failure is said once, on the
// console and in an alert over the window, and stops nothing.
void takeSnapshotSoon(Window* window);
} // namespace StoreCommands
