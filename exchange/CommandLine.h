#pragma once
// The exchange file from the command line, for backups and scripts.
#include <QString>

class ManagedObjectContext;

namespace Exchange {
// Writes the exchange file of the collection (the export screen's bytes). 0, or 1 with the
// reason on stderr.
int runExport(ManagedObjectContext& context, const QString& file);
// Merges a file into the collection and saves what the merge left pending. 0; 1 when the file
// cannot be read; 2 when it is no exchange file.
int runImport(ManagedObjectContext& context, const QString& file);
} // namespace Exchange
