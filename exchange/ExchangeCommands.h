#pragma once
// The exchange file from the command line, for backups and scripts.
#include <QString>

class ManagedObjectContext;
class PersistentContainer;

namespace Exchange {
// Writes the exchange file of the collection (the export screen's bytes). 0, or 1 with the
// reason on stderr. An empty collection is not written over a file that holds coins.
// `collection`: the store's path, named in the messages.
int runExport(ManagedObjectContext& context, const QString& file, const QString& collection = {});
// Merges a file into the collection and saves what the merge left pending. 0; 1 when the file
// cannot be read, coins could not be saved, or the store's file went away meanwhile; 2 when it
// is no exchange file. With the container, the store's file is watched while the merge runs.
int runImport(ManagedObjectContext& context, const QString& file,
              PersistentContainer* store = nullptr);
} // namespace Exchange
