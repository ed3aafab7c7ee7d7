#pragma once
// The checksum a backup or snapshot carries of its own content, so that a restore can tell a
// copy that is whole from one in which a byte changed on the way (a picture, a history row):
// SQLite's integrity check sees the file's structure only.
//
// The checksum is SHA-256 over the schema and every row of every table, table by table in name
// order and row by row in key order, each value with its type and length. It is kept inside the
// copy, in a table of its own, and a sealed copy carries an application id of its own in its
// header, so that a seal lost to damage is noticed too. A restore checks the seal and takes it
// away again before the copy becomes the collection.
#include "platform/core/Error.h"

#include <QByteArray>

struct sqlite3;

namespace Seal {

// The header's application id of a sealed copy (the store's own is StoreSchema::ApplicationId).
inline constexpr int SealedApplicationId = 0x50656C53; // "PelS"
inline constexpr const char* Table = "Seal";

// The checksum of the open database's content, the seal's table left out.
Result<QByteArray> digest(sqlite3* db);
// Seals the copy open for writing: its checksum into the seal's table, the sealed application id.
Result<void> seal(sqlite3* db);
// The same with the checksum already worked out (digest()).
Result<void> seal(sqlite3* db, const QByteArray& digest);

enum class Verdict {
    Whole,    // sealed, and the content is what was sealed
    Unsealed, // a store, or a copy written before copies were sealed: nothing to compare
};
// Whether the content is what the seal says; an error says how it differs.
Result<Verdict> verify(sqlite3* db);
// Makes a checked copy a store again: the seal's table gone, the store's application id.
Result<void> unseal(sqlite3* db);

} // namespace Seal
