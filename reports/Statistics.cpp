#include "reports/Statistics.h"

#include "model/ManagedObjectContext.h"
#include "model/Records.h"
#include "model/ValueHistory.h"

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

Result<QByteArray> valueHistoryCsv(ManagedObjectContext& context) {
    const Result<QList<ValueHistory::DayTotal>> days = ValueHistory::series(context);
    if (!days.ok())
        return days.error();
    QByteArray csv = "date,pieces,total_value\n";
    for (const ValueHistory::DayTotal& d : days.value())
        csv += QStringLiteral("%1,%2,%3\n")
                   .arg(d.day.toString(Qt::ISODate))
                   .arg(d.pieces)
                   .arg(amount(d.value))
                   .toUtf8();
    return csv;
}

} // namespace Statistics
