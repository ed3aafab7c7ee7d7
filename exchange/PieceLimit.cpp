#include "exchange/PieceLimit.h"

#include "model/Holdings.h"

namespace Exchange::PieceLimit {

Result<qint64> storedPieces(ManagedObjectContext& context) {
    // Every coin has a decade, so the decades' pieces are the collection's.
    const Result<QList<Holdings::Share>> decades = Holdings::by(context, Holdings::By::Decade);
    if (!decades.ok())
        return decades.error();
    qint64 pieces = 0;
    for (const Holdings::Share& decade : decades.value())
        pieces += decade.pieces;
    return pieces;
}

std::optional<Crossing> crossing(qint64 before, const ImportResult& result) {
    Crossing out;
    out.pieces = before;
    for (const ImportResult::PieceChange& change : result.pieceChanges) {
        out.pieces += change.change;
        if (change.change > 0 && out.pieces > Most)
            out.lines.append(change.line);
    }
    if (out.pieces <= Most || out.lines.isEmpty())
        return std::nullopt;
    return out;
}

QString lineRuns(const QList<qsizetype>& lines, int most, qsizetype* leftOff) {
    QStringList runs;
    qsizetype shown = 0;
    for (qsizetype i = 0; i < lines.size() && runs.size() < most;) {
        qsizetype j = i;
        while (j + 1 < lines.size() && lines[j + 1] == lines[j] + 1)
            ++j;
        runs << (i == j ? QString::number(lines[i])
                        : QStringLiteral("%1-%2").arg(lines[i]).arg(lines[j]));
        shown += j - i + 1;
        i = j + 1;
    }
    if (leftOff)
        *leftOff = lines.size() - shown;
    return runs.join(QStringLiteral(", "));
}

} // namespace Exchange::PieceLimit
