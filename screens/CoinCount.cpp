#include "screens/CoinCount.h"

#include "platform/core/Fatal.h"

namespace CoinCount {
qint16 add(qint16 count, qint16 quantity, const char* source, int line) {
    const int sum = int(count) + quantity;
    if (sum > 32767 || sum < -32768)
        fatalError(QStringLiteral("Arithmetic overflow"), source, line);
    return qint16(sum);
}
} // namespace CoinCount
