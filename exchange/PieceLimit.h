#pragma once
// The coin list and the valuation screen count the collection's pieces (the sum of quantities)
// in 16 bits and stop past 32767. An import is kept whole however far it goes; what it took
// past that count is said, by the lines of the file that did it.
#include "exchange/ExchangeReader.h"
#include "platform/core/Error.h"

#include <QList>
#include <QString>

#include <optional>

class ManagedObjectContext;

namespace Exchange::PieceLimit {

constexpr qint64 Most = 32767;

// The collection's pieces as saved.
Result<qint64> storedPieces(ManagedObjectContext& context);

struct Crossing {
    qint64 pieces = 0;      // the collection's pieces after the import
    QList<qsizetype> lines; // the file's lines whose coins added pieces past the count
};
// Nothing when the import, starting from `before` pieces, leaves the collection within the
// count, or added no pieces past it.
std::optional<Crossing> crossing(qint64 before, const ImportResult& result);

// Line numbers as runs ("4, 9-12, 30"), the first `most` runs; `leftOff` is how many lines
// the text leaves out.
QString lineRuns(const QList<qsizetype>& lines, int most, qsizetype* leftOff);

} // namespace Exchange::PieceLimit
