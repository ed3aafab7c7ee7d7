#include "screens/list/MainListSorting.h"

#include "model/Numbers.h"
#include "platform/core/Fatal.h"
#include "reports/Currency.h"

#include <QCoreApplication>

namespace MainListSorting {

const QList<SortChoice>& choices() {
    static const QList<SortChoice> all = {
        // The menu titles name the choice (untranslated); shown through shownTitle().
        {QT_TRANSLATE_NOOP("MainListSorting", "By Name"), "Option 1 selected", "Name",
         "denomination", QT_TRANSLATE_NOOP("MainListSorting", "Search by Denomination")},
        {QT_TRANSLATE_NOOP("MainListSorting", "By Year"), "Option 2 selected", "Year", "year",
         QT_TRANSLATE_NOOP("MainListSorting", "Search by Year")},
        {QT_TRANSLATE_NOOP("MainListSorting", "By Quantity"), "Option 3 selected", "Qty",
         "quantity", QT_TRANSLATE_NOOP("MainListSorting", "Search by Quantity")},
        {QT_TRANSLATE_NOOP("MainListSorting", "By Value"), "Option 4 selected", "Value", "value",
         QT_TRANSLATE_NOOP("MainListSorting", "Search by Value")},
        {QT_TRANSLATE_NOOP("MainListSorting", "By Country"), "Option 5 selected", "Country",
         "country", QT_TRANSLATE_NOOP("MainListSorting", "Search by Country")},
    };
    return all;
}

QString shown(const QString& text) {
    return QCoreApplication::translate("MainListSorting", text.toUtf8().constData());
}

const SortChoice* choiceFor(const QString& sortName) {
    for (const SortChoice& c : choices())
        if (c.sortName == sortName)
            return &c;
    return nullptr;
}

SearchIndex searchIndex(const QList<CoinPtr>& all, const QString& sortName) {
    SearchIndex index;
    index.sorted = choiceFor(sortName) != nullptr;
    if (!index.sorted)
        return index;
    enum { Name, Country, Year, Qty, Value } key = Value;
    if (sortName == QLatin1String("Name"))
        key = Name;
    else if (sortName == QLatin1String("Country"))
        key = Country;
    else if (sortName == QLatin1String("Year"))
        key = Year;
    else if (sortName == QLatin1String("Qty"))
        key = Qty;
    index.textKey = key == Name || key == Country;
    index.keys.reserve(all.size());
    for (const CoinPtr& coin : all) {
        switch (key) {
        case Name:
            index.keys.append(coin->denomination().toLower());
            break;
        case Country: {
            index.missingCountry |= !coin->hasValue(Coins::Attr::country);
            const QString country = coin->country();
            index.keys.append(country.isEmpty() ? QString() : country.toLower());
            break;
        }
        case Year:
            index.keys.append(QString::number(coin->year()));
            break;
        case Qty:
            index.keys.append(QString::number(coin->quantity()));
            break;
        case Value:
            index.keys.append(Numbers::formatFloat(coin->value()));
            break;
        }
    }
    return index;
}

QList<CoinPtr> filter(const QList<CoinPtr>& all, const SearchIndex& index, const QString& text) {
    // Before a sort is chosen the search has no key: every coin stays shown.
    if (text.isEmpty() || !index.sorted)
        return all;
    // Read as required: a coin without a country cannot be searched by country.
    if (index.missingCountry)
        fatalError(QStringLiteral("A coin without a country cannot be searched by country"),
                   "Pelvane/MainListTableViewController", __LINE__);
    const QString wanted = index.textKey ? text.toLower() : text;
    QList<CoinPtr> kept;
    for (qsizetype i = 0; i < all.size(); ++i) {
        const QString& key = index.keys.at(i);
        if (!key.isNull() && key.contains(wanted))
            kept.append(all.at(i));
    }
    return kept;
}

QList<CoinPtr> filter(const QList<CoinPtr>& all, const QString& sortName, const QString& text) {
    if (text.isEmpty())
        return all;
    return filter(all, searchIndex(all, sortName), text);
}

QString yearLine(const Coins& coin) {
    return QCoreApplication::translate("MainListSorting", "Year: %1  Mint Mark: %2")
        .arg(coin.year())
        .arg(coin.mintMark());
}

qint16 shownQuantity(const Coins& coin) {
    return coin.quantity() == 0 ? 1 : coin.quantity();
}

QString quantityLine(const Coins& coin) {
    return QCoreApplication::translate("MainListSorting", "Qty: %1").arg(shownQuantity(coin));
}

QString valueLine(const Coins& coin) {
    const double value = double(coin.value());
    return QCoreApplication::translate("MainListSorting", "Value: %1  Total Value: %2")
        .arg(Currency::text(value), Currency::text(double(shownQuantity(coin)) * value));
}

} // namespace MainListSorting
