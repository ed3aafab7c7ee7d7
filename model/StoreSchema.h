#pragma once
// What makes a file a Pelvane store: the schema version, the application id in its header, and
// the tables and columns the model needs. Shared by the container that opens stores and by the
// backups that check them.
#include <QString>

struct sqlite3;

namespace StoreSchema {
// The schema this build writes; a store with a newer one is refused, not touched.
// 3: the application id in the header.
// 4: the value history (ValueHistory).
// 5: the change journal (Journal); records' rows never numbered as a deleted one.
// 6: the journal's steps and rows in one table.
// 7: the links from pictures to their originals (Originals).
inline constexpr int Version = 7;
// Written into every store's header, so that a restore can tell our stores from other files.
inline constexpr int ApplicationId = 0x50656C76; // "Pelv"
// The first table or column the model needs that the open database lacks, said for a person;
// empty when it has them all.
QString missing(sqlite3* db);
} // namespace StoreSchema
