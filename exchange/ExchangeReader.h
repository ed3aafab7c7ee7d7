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
    // New coins whose save failed (they stay pending in the context), and the first reason.
    int notSaved = 0;
    QString notSavedReason;
    // Updates made since the last save that went through (the merge never saves them itself).
    int updatedSinceSave = 0;
    // The last line had no line end: the file may have been cut short.
    bool lastLineUnended = false;
};

// Works on the file's UTF-8 bytes line by line, so a large file is held once, not as text.
// Once the store has answered busy (another program holds it), later saves of the same
// merge fail at once instead of waiting each.
ImportResult mergeExchangeText(ManagedObjectContext& context, QByteArray utf8);
inline ImportResult mergeExchangeText(ManagedObjectContext& context, const QString& text) {
    return mergeExchangeText(context, text.toUtf8());
}

} // namespace Exchange
