#include "screens/WebSearch.h"

namespace WebSearch {
QUrl valuationQuery(const QString& year, const QString& denomination) {
    QString text = QStringLiteral("https://www.google.com/search?q=") +
                   QStringLiteral(" how much is a  ") + year + QLatin1Char(' ') + denomination +
                   QStringLiteral(" worth");
    text.replace(u' ', u'+');
    text.replace(QStringLiteral("++"), QStringLiteral("+"));
    return QUrl(text, QUrl::StrictMode);
}
} // namespace WebSearch
