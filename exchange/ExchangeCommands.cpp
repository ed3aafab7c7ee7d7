#include "exchange/ExchangeCommands.h"

#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "exchange/PieceLimit.h"
#include "model/ManagedObjectContext.h"
#include "model/PersistentContainer.h"
#include "platform/core/Files.h"
#include "platform/core/NativeFiles.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace Exchange {

namespace {
void say(const QString& line) {
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}
} // namespace

namespace {
// The coins an exchange file at the path holds: its lines after the marker.
qsizetype coinsInFile(const QString& file) {
    QFile in;
    if (!Files::status(file).isFile || !Files::open(in, file, QIODevice::ReadOnly).ok())
        return 0;
    const QByteArray text = in.readAll();
    const qsizetype marker = text.indexOf(Marker);
    if (marker < 0)
        return 0;
    qsizetype coins = 0;
    for (qsizetype start = marker, end; start < text.size(); start = end + 1) {
        end = text.indexOf('\n', start);
        if (end < 0)
            end = text.size();
        const QByteArrayView line = QByteArrayView(text).sliced(start, end - start).trimmed();
        if (!line.isEmpty() && line != QByteArrayView(Marker))
            ++coins;
    }
    return coins;
}
} // namespace

int runExport(ManagedObjectContext& context, const QString& file, const QString& collection) {
    if (const Result<void> target = Files::isWritableTarget(file); !target.ok()) {
        say(QStringLiteral("Cannot write %1: %2").arg(file, target.error().message));
        return 1;
    }
    const Result<QByteArray> text = exchangeText(context);
    // A file from a store that could not be read whole would replace a good backup.
    if (!text.ok()) {
        say(QStringLiteral("Cannot read the collection %1: %2")
                .arg(collection, text.error().message));
        return 1;
    }
    const QByteArray& bytes = text.value();
    // An empty collection (a mistyped data folder) must not wipe out a backup.
    if (bytes == QByteArray(Marker) + '\n')
        if (const qsizetype held = coinsInFile(file); held > 0) {
            say(QStringLiteral("Not writing %1: the collection is empty and the file holds %2 "
                               "coins. Check the data folder, or write to another file.")
                    .arg(file)
                    .arg(held));
            return 1;
        }
    if (const Result<void> written = Files::writeAtomically(file, bytes); !written.ok()) {
        say(QStringLiteral("Cannot write %1: %2").arg(file, written.error().message));
        return 1;
    }
    return 0;
}

int runImport(ManagedObjectContext& context, const QString& file, PersistentContainer* store) {
    // A device or a pipe may never end (/dev/zero): only a file of known size is read.
    if (const Files::Status info = Files::status(file); info.exists && !info.isFile) {
        say(QStringLiteral("Cannot read %1: it is not a regular file").arg(file));
        return 1;
    }
    QFile in;
    if (const Result<void> opened = Files::open(in, file, QIODevice::ReadOnly); !opened.ok()) {
        say(QStringLiteral("Cannot read %1: %2").arg(file, opened.error().message));
        return 1;
    }
    std::optional<QByteArray> text = utf8Text(in.readAll());
    in.close();
    if (!text) {
        say(QStringLiteral("Cannot read %1: it is not text").arg(file));
        return 1;
    }
    // Whether the store's file is still the one written to: a file deleted or cut short under
    // the import would take every coin with it, whatever the saves said.
    auto storeGone = [&] {
        if (!store || store->storeFileIntact())
            return false;
        say(QStringLiteral("The collection file %1 was deleted, replaced or cut short while the "
                           "import ran: nothing was kept.")
                .arg(store->storePath()));
        return true;
    };
    if (store)
        store->readWithoutMemoryMap();
    const Result<qint64> piecesBefore = PieceLimit::storedPieces(context);
    Merge merge(context, std::move(*text), QFileInfo(file).fileName());
    while (merge.step(64))
        if (storeGone())
            return 1;
    const ImportResult& result = merge.result();
    if (result.wrongFile) {
        say(file + QStringLiteral(" Is The Incorrect Import File"));
        return 2;
    }
    if (storeGone())
        return 1;
    const Result<void> saved = context.save();
    if (storeGone())
        return 1;
    // Only what is in the store is counted.
    std::printf("%d created, %d updated, %d skipped\n",
                result.created - (saved.ok() ? 0 : result.notSaved),
                result.updated - (saved.ok() ? 0 : result.updatedSinceSave), result.skipped);
    if (!saved.ok()) {
        // Every coin the merge left pending is lost with the process: say how many and why.
        say(QStringLiteral("%1 coins of %2 not saved in %3: %4")
                .arg(result.notSaved + result.updatedSinceSave)
                .arg(file, store ? store->storePath() : QStringLiteral("the collection"),
                     saved.error().message));
        return 1;
    }
    // The coins stay; the screens that count them would not open.
    if (piecesBefore.ok())
        if (const auto past = PieceLimit::crossing(piecesBefore.value(), result)) {
            qsizetype leftOff = 0;
            const QString runs = PieceLimit::lineRuns(past->lines, 20, &leftOff);
            say(QStringLiteral("Warning: the collection now holds %1 pieces, more than the %2 the "
                               "coin list and the valuation screen can count; they stop when "
                               "they open. The coins of %3 %4%5 of %6 took it past. "
                               "pelvane --undo takes the whole import back.")
                    .arg(past->pieces)
                    .arg(PieceLimit::Most)
                    .arg(past->lines.size() == 1 ? QStringLiteral("line") : QStringLiteral("lines"),
                         runs,
                         leftOff > 0 ? QStringLiteral(" and %1 more").arg(leftOff) : QString(),
                         file));
        }
    return 0;
}

} // namespace Exchange
