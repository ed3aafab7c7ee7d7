#pragma once
// Merging an exchange file into the collection, coin by coin: a line whose country,
// denomination, mint mark and year match no stored coin becomes a new coin (saved at once),
// a line that matches exactly one coin rewrites it (left unsaved), a line that matches more
// is skipped.
#include "model/Journal.h"
#include "model/ValueHistory.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QFuture>
#include <QList>
#include <QString>

#include <array>
#include <optional>

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
    // The lines (numbered as in the file, from 1) that changed the collection's pieces (the
    // sum of quantities), in the order merged, and by how much.
    struct PieceChange {
        qsizetype line = 0;
        int change = 0;
    };
    QList<PieceChange> pieceChanges;
};

// A picture field as the merge takes it: its bytes where it is valid base64, and whether they
// make a picture the export can write. Worked out ahead on the other cores, lines in order.
struct PreparedPicture {
    std::optional<QByteArray> bytes;
    bool readable = false;
};
// The two picture fields of a line, front and back.
using PreparedLine = std::array<PreparedPicture, 2>;

// The merge a few lines at a time, so that a screen can show progress and repaint between
// steps; the lines, their order and the saves are exactly those of one mergeExchangeText call.
class Merge {
public:
    // Opens the second container, normalises the text, splits it and checks the marker. The
    // whole merge is one step of the journal, named by `source` (the file's name).
    Merge(ManagedObjectContext& context, QByteArray utf8, const QString& source = {});
    ~Merge();
    Merge(const Merge&) = delete;
    Merge& operator=(const Merge&) = delete;

    // Merges up to `lines` more lines; false once every line is done (or the file is wrong).
    bool step(qsizetype lines);
    qsizetype linesDone() const { return next_; }
    qsizetype lineCount() const { return result_.wrongFile ? 0 : lines_.size(); }
    const ImportResult& result() const { return result_; }

private:
    void dontWaitWhenBusy();
    // Starts working out the pictures of the lines from `from` on the other cores.
    static constexpr qsizetype PreparedLines = 64;
    // New coins written between two commits, at most.
    static constexpr int SavesPerCommit = 256;
    void prepare(qsizetype from);
    const PreparedLine& picturesOf(qsizetype line);
    ManagedObjectContext& context_;
    // Every coin the merge saves is recorded in the value history as imported.
    ValueHistory::Cause cause_;
    Journal::Step journalStep_;
    QByteArray text_;
    QList<QByteArrayView> lines_;
    QList<qsizetype> lineNumbers_; // of each of lines_ in the file
    qsizetype next_ = 0;
    ImportResult result_;
    bool waitChanged_ = false;
    QList<QByteArrayView> preparingLines_;
    qsizetype preparingFrom_ = -1, preparedFrom_ = -1;
    QFuture<PreparedLine> preparing_;
    QList<PreparedLine> prepared_;
};

// A file's bytes as UTF-8 text: UTF-8 (a leading byte-order mark dropped), or UTF-16/32 when a
// byte-order mark says so. Nothing when the bytes are no text in that encoding.
std::optional<QByteArray> utf8Text(QByteArray bytes);

// Works on the file's UTF-8 bytes line by line, so a large file is held once, not as text.
// Once the store has answered busy (another program holds it), later saves of the same
// merge fail at once instead of waiting each.
ImportResult mergeExchangeText(ManagedObjectContext& context, QByteArray utf8);
inline ImportResult mergeExchangeText(ManagedObjectContext& context, const QString& text) {
    return mergeExchangeText(context, text.toUtf8());
}

} // namespace Exchange
