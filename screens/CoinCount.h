#pragma once
// The number of coins on a screen is a 16-bit sum of quantities; going past its range is a
// fatal stop, reported at the screen's own source line.
#include <QtGlobal>

namespace CoinCount {
qint16 add(qint16 count, qint16 quantity, const char* source, int line);
} // namespace CoinCount
