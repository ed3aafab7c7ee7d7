#include "screens/CurrencyText.h"

#include <QLocale>

QString currencyText(double amount) {
    const QString text = QLocale().toCurrencyString(amount);
    return text.isEmpty() ? QStringLiteral("0") : text;
}
