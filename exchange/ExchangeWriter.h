#pragma once
// The exchange file: the whole collection as UTF-8 text, "[PELVANE]" on the first line, then
// one coin per line with 21 fields separated by "^". Only this program reads it back.
#include <QByteArray>
#include <functional>

#include "model/Records.h"
#include "platform/core/Error.h"

#include <QList>

class ManagedObjectContext;

namespace Exchange {
inline constexpr char Marker[] = "[PELVANE]";
// Called once per coin written, in file order, with the count written so far.
using Progress = std::function<void(int written, int total)>;
// Every coin, by denomination, year and mint mark. Pictures are re-encoded as JPEG at quality
// 0.6; a stored picture that does not decode is a fatal error that names its coin. A store
// that cannot be read whole gives no file at all, but the error (a damaged picture is not taken
// for a coin without one).
Result<QByteArray> exchangeText(ManagedObjectContext& context, const Progress& progress = {});
// The coins of the file, in file order, as the export fetches them, or the read error.
Result<QList<CoinPtr>> coinsInFileOrder(ManagedObjectContext& context);
// The file for these coins, in the order given (the same failures).
Result<QByteArray> exchangeText(const QList<CoinPtr>& coins, const Progress& progress = {});
// The pictures coded as the export codes them (the same coder, batches and threads) without the
// text around them: the least an export of them can cost. Gives the bytes of their codes.
qint64 recodePictures(const QList<QByteArray>& pictures);
// How the fatal stop of a picture that cannot be decoded names its coin.
QString coinForMessage(const Coins& coin);
} // namespace Exchange
