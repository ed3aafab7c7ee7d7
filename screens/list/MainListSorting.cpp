#include "screens/list/MainListSorting.h"

#include "model/Numbers.h"
#include "platform/Fatal.h"

#include <QLocale>

namespace MainListSorting {

const QList<SortChoice>& choices() {
    static const QList<SortChoice> all = {
        {"By Name", "Option 1 selected", "Name", "denomination", "Search by Denomination"},
        {"By Year", "Option 2 selected", "Year", "year", "Search by Year"},
        {"By Quantity", "Option 3 selected", "Qty", "quantity", "Search by Quantity"},
        {"By Value", "Option 4 selected", "Value", "value", "Search by Value"},
        {"By Country", "Option 5 selected", "Country", "country", "Search by Country"},
    };
    return all;
}

const SortChoice* choiceFor(const QString& sortName) {
    for (const SortChoice& c : choices())
        if (c.sortName == sortName)
            return &c;
    return nullptr;
}

QList<CoinPtr> filter(const QList<CoinPtr>& all, const QString& sortName, const QString& text) {
    if (text.isEmpty())
        return all;
    const SortChoice* choice = choiceFor(sortName);
    if (!choice)
        return {};
    const QString lowered = text.toLower();
    QList<CoinPtr> kept;
    for (const CoinPtr& coin : all) {
        QString key;
        bool textKey = false;
        if (sortName == QLatin1String("Name")) {
            key = coin->denomination();
            textKey = true;
        } else if (sortName == QLatin1String("Country")) {
            // Read as required: a coin without a country cannot be searched by country.
            if (!coin->hasValue(Coins::Attr::country))
                fatalError(QStringLiteral("Unexpectedly found nil while unwrapping an Optional "
                                          "value"),
                           "Pelvane/MainListTableViewController", __LINE__);
            key = coin->country();
            if (key.isEmpty())
                continue;
            textKey = true;
        } else if (sortName == QLatin1String("Year")) {
            key = QString::number(coin->year());
        } else if (sortName == QLatin1String("Qty")) {
            key = QString::number(coin->quantity());
        } else {
            key = Numbers::formatFloat(coin->value());
        }
        if (!textKey && key.isEmpty())
            continue;
        if (textKey ? key.toLower().contains(lowered) : key.contains(text))
            kept.append(coin);
    }
    return kept;
}

QString yearLine(const Coins& coin) {
    return QStringLiteral("Year: %1  Mint Mark: %2").arg(coin.year()).arg(coin.mintMark());
}

qint16 shownQuantity(const Coins& coin) {
    return coin.quantity() == 0 ? 1 : coin.quantity();
}

QString quantityLine(const Coins& coin) {
    return QStringLiteral("Qty: %1").arg(shownQuantity(coin));
}

QString currency(double amount) {
    const QString text = QLocale().toCurrencyString(amount);
    return text.isEmpty() ? QStringLiteral("0") : text;
}

QString valueLine(const Coins& coin) {
    const double value = double(coin.value());
    return QStringLiteral("Value: %1  Total Value: %2")
        .arg(currency(value), currency(double(shownQuantity(coin)) * value));
}

} // namespace MainListSorting
