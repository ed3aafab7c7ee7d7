#pragma once
// The file work behind backups and restores: copies of a store as of one moment, and renames
// made for good.
#include "platform/core/Error.h"

#include <QString>
#include <cerrno>
#include <functional>
#include <optional>

class SqliteDatabase;

namespace StoreFiles {

// Called now and then while a copy is made: how much is done of how much.
using Progress = std::function<void(int done, int total)>;

Error failure(int code, const QString& message);
// The system's reason for a failed call (by default the last one), after what was being done.
Error systemError(const QString& doing, int error = errno);

// Whether two paths name one file.
bool sameFile(const QString& a, const QString& b);
// A new empty file beside the target for the copy being made; empty when none can be made,
// with errno saying why.
QString temporaryBeside(const QString& target);
// Removes the copies a stopped program left half-written in the folder (".NAME.XXXXXX.part",
// with their journals): those no running program holds.
void sweepParts(const QString& folder);
// Renames `from` over `to` for good: synced first, and the folder after.
Result<void> replace(const QString& from, const QString& to);
// The same where nothing may be at `to` yet: an existing file there is never replaced.
Result<void> placeNew(const QString& from, const QString& to);
// Removes the journal, log and index SQLite keeps beside a database file.
void removeCompanions(const QString& path);
// Removes a database file and the journal, log and index beside it.
void removeWithCompanions(const QString& path);
// The store at `sourcePath` as of one moment, into the new file `destination`, standing alone
// (no log beside it).
Result<void> copyStore(const QString& sourcePath, const QString& destination,
                       const Progress& progress);
// The bytes of one file into another, as they are.
Result<void> copyBytes(const QString& from, const QString& to);
// Holds the program at a named point for as long as PELVANE_TEST_PAUSE ("point:milliseconds")
// says: lets a test run another program between two steps of a long one.
void pauseForTests(const char* point);
// SQLite's verdict on the open database when it is not "ok": its integrity check, or the quick
// check (every page and record read, without the index cross-checks).
enum class Check { Whole, Quick };
std::optional<QString> integrityProblem(SqliteDatabase& db, Check check = Check::Whole);
Result<qint64> countCoins(SqliteDatabase& db);

} // namespace StoreFiles
