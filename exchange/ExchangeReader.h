#pragma once
// Merging an exchange file into the collection, coin by coin: a line whose country,
// denomination, mint mark and year match no stored coin becomes a new coin (saved at once),
// a line that matches exactly one coin rewrites it (left unsaved), a line that matches more
// is skipped.
#include <QByteArray>
#include <QString>

class ManagedObjectContext;

namespace Exchange {

struct ImportResult {
    bool wrongFile = false; // no "[PELVANE]" line: nothing was imported
    int created = 0;
    int updated = 0;
    int skipped = 0;
};

// Works on the file's UTF-8 bytes line by line, so a large file is held once, not as text.
ImportResult mergeExchangeText(ManagedObjectContext& context, QByteArray utf8);
inline ImportResult mergeExchangeText(ManagedObjectContext& context, const QString& text) {
    return mergeExchangeText(context, text.toUtf8());
}

} // namespace Exchange
