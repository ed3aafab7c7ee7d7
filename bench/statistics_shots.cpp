// Grabs the statistics screen to PNG files for looking at it: a year of history made from the
// sample collection (imported a year ago, then coins bought, sold and revalued now and then):
// statistics_shots OUT_DIR WIDTH [dark]
#include "ShotWindow.h"
#include "exchange/ExchangeReader.h"
#include "model/ValueHistory.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/NavigationController.h"
#include "screens/Application.h"
#include "screens/statistics/StatisticsViewController.h"

#include <QApplication>
#include <QFile>
#include <QRandomGenerator>
#include <QTabWidget>
#include <QTemporaryDir>

namespace {
void makeHistory(ManagedObjectContext& context) {
    const QDateTime today = QDateTime::currentDateTime();
    QDateTime now = today.addDays(-365);
    ValueHistory::setClock([&now] { return now; });
    QFile sample(QStringLiteral(PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv"));
    sample.open(QIODevice::ReadOnly);
    Exchange::mergeExchangeText(context, sample.readAll());
    context.save();
    FetchRequest request(QStringLiteral("Coins"));
    request.returnsObjectsAsFaults = false;
    const QList<CoinPtr> coins = context.fetch<Coins>(request);
    QRandomGenerator rng(2026);
    for (int day = 1; day < 365; day += 1 + int(rng.bounded(6))) {
        now = today.addDays(day - 365);
        const CoinPtr& coin = coins[qsizetype(rng.bounded(int(coins.size())))];
        if (rng.bounded(4) == 0) {
            coin->setQuantity(qint16(std::max(0, coin->quantity() + int(rng.bounded(3)) - 1)));
            context.save();
        } else {
            const ValueHistory::Cause cause(context, ValueHistory::Revaluation);
            coin->setValue(std::max(0.5f, coin->value() * float(0.9 + rng.bounded(0.3))));
            context.save();
        }
    }
    ValueHistory::setClock({});
}
} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 3)
        return 2;
    const QString out = QString::fromLocal8Bit(argv[1]);
    const int width = QString::fromLocal8Bit(argv[2]).toInt();
    const bool dark = argc > 3;
    if (dark)
        Appearance::setDark(true);
    const QString suffix = QStringLiteral("-%1%2").arg(width).arg(dark ? "-dark" : "");
    QTemporaryDir data;
    ShotWindow shots(data.path(), width, width < 600 ? 820 : 800);
    makeHistory(*Application::viewContext());
    auto shot = [&](const char* name) {
        settle(200);
        shots.window.grab().save(out + "/" + name + suffix + ".png");
    };
    shots.menu->performSegue(QStringLiteral("Statistics"));
    auto* screen = static_cast<StatisticsViewController*>(
        shots.window.navigationController()->topViewController());
    shot("statistics-value");
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::CountryPage);
    shot("statistics-countries");
    screen->ChartTabs->setCurrentIndex(StatisticsViewController::ChangesPage);
    shot("statistics-changes");
    return 0;
}
