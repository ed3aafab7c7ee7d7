#include "reports/Currency.h"

#include <QLocale>

namespace Currency {
QString text(double amount) {
    const QString text = QLocale().toCurrencyString(amount);
    return text.isEmpty() ? QStringLiteral("0") : text;
}
} // namespace Currency
