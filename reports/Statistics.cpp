#include "reports/Statistics.h"

#include "model/ManagedObjectContext.h"
#include "model/Records.h"

namespace Statistics {

Result<Totals> totals(ManagedObjectContext& context) {
    FetchRequest request(QStringLiteral("Coins"));
    request.returnsObjectsAsFaults = false;
    const Result<QList<CoinPtr>> coins = context.tryFetch<Coins>(request);
    if (!coins.ok())
        return coins.error();
    Totals t;
    t.coins = coins.value().size();
    for (const CoinPtr& coin : coins.value()) {
        t.pieces += coin->quantity();
        t.value += double(coin->quantity()) * double(coin->value());
    }
    return t;
}

QString amount(double value) {
    QString text = QString::number(value, 'f', 2);
    // A sum a hair below zero is no debt.
    if (text == QLatin1String("-0.00"))
        text = QStringLiteral("0.00");
    return text;
}

QString text(const Totals& t) {
    return QStringLiteral("Coins: %1\nPieces: %2\nTotal value: %3\n")
        .arg(t.coins)
        .arg(t.pieces)
        .arg(amount(t.value));
}

} // namespace Statistics
