// How the costs grow past the benchmark collection: the store, list, group, breakdown,
// valuation, import and export figures on 32,000 and on 128,000 coins, and the ratio of each
// pair, which a cost that grows in a straight line keeps near 4. Each figure is the median of
// three runs, each import into a store of its own; each screen is opened in a program started
// for it. One figure per line.
#include "BenchCollection.h"
#include "BenchSession.h"
#include "ProcessMemory.h"
#include "app/AppDelegate.h"
#include "app/AppStoryboard.h"
#include "app/LaunchOptions.h"
#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "model/ManagedObjectContext.h"
#include "platform/fakes/Fakes.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/TabBarController.h"
#include "platform/kit/Window.h"
#include "screens/groups/GroupTableViewController.h"
#include "screens/menu/MainMenuViewController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <malloc.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>

using namespace BenchCollection;

namespace {
double ms(const QElapsedTimer& t) {
    return double(t.nsecsElapsed()) / 1e6;
}

double median(int runs, const std::function<double()>& run) {
    std::vector<double> figures;
    for (int i = 0; i < runs; ++i)
        figures.push_back(run());
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

// The benchmark collection at `n` coins. The main list sums the quantities in 16 bits, so only
// every fourth coin counts one piece at 128,000.
void buildScaled(const QString& dir, int n) {
    std::vector<QByteArray> pics;
    for (int i = 0; i < 64; ++i)
        pics.push_back(picture(i));
    PersistentContainer::setDefaultDirectory(dir);
    auto c = open();
    for (int i = 0; i < n; ++i) {
        auto coin = c->viewContext()->insert<Coins>();
        fill(*coin, i, pics);
        coin->setQuantity(qint16(i % 4 == 0 ? 1 : 0));
    }
    if (!c->viewContext()->save().ok())
        std::exit(1);
}

using Figures = std::map<std::string, double>;

// The program on the collection in `dir`, each screen opened afresh from the menu.
struct Session : BenchSession {
    using BenchSession::BenchSession;
    double open(const char* segue) {
        home();
        return timed([&] { menu->performSegue(QString::fromLatin1(segue)); });
    }
};

Figures measure(int n) {
    Figures f;
    QTemporaryDir dir;
    buildScaled(dir.path(), n);
    {
        FetchRequest all(QStringLiteral("Coins"));
        all.sortDescriptors = {{QStringLiteral("denomination"), true}};
        all.returnsObjectsAsFaults = false;
        double held = 0;
        f["store open + fetch"] = median(3, [&] {
            PersistentContainer::setDefaultDirectory(dir.path());
            QElapsedTimer t;
            t.start();
            auto c = open();
            const size_t before = mallinfo2().uordblks;
            const QList<CoinPtr> coins = c->viewContext()->fetch<Coins>(all);
            const double figure = ms(t);
            held = double(mallinfo2().uordblks - before) / 1e6;
            if (coins.size() != n)
                std::exit(1);
            return figure;
        });
        f["memory held by the fetched coins"] = held;
    }
    // Each screen in a program of its own, as a user opens it after a start.
    const auto inSession = [&](const std::function<double(Session&)>& figure) {
        return median(3, [&] {
            Session s(dir.path());
            return figure(s);
        });
    };
    f["list open"] = inSession([](Session& s) { return s.open("ListCoins"); });
    f["group open"] = inSession([](Session& s) { return s.open("TabBarController"); });
    f["breakdown open"] = inSession([](Session& s) {
        s.open("TabBarController");
        auto* tabs = static_cast<TabBarController*>(s.nav()->topViewController());
        tabs->setSelectedIndex(1);
        QApplication::processEvents();
        auto* countries =
            static_cast<GroupTableViewController*>(tabs->tab(1)->viewControllers().value(0));
        int largest = 0;
        for (int row = 1; row < countries->ValueList.size(); ++row)
            if (countries->countOf(countries->ValueList[row]) >
                countries->countOf(countries->ValueList[largest]))
                largest = row;
        return s.timed([&] { countries->tableView->selectRow({0, largest}); });
    });
    f["valuation open"] = inSession([](Session& s) { return s.open("CoinValuation"); });
    QByteArray file;
    f["export"] = median(3, [&] {
        PersistentContainer::setDefaultDirectory(dir.path());
        auto c = open();
        file.clear(); // the export before is not held while this one runs
        QElapsedTimer t;
        t.start();
        file = Exchange::exchangeText(*c->viewContext()).value();
        return ms(t);
    });
    f["import"] = median(3, [&] {
        QTemporaryDir device;
        PersistentContainer::setDefaultDirectory(device.path());
        auto c = open();
        QElapsedTimer t;
        t.start();
        const Exchange::ImportResult r = Exchange::mergeExchangeText(*c->viewContext(), file);
        const double figure = ms(t);
        // Coins that share their four keys arrive as one.
        if (r.created + r.updated + r.skipped != n)
            std::exit(1);
        return figure;
    });
    return f;
}
} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    hideOffscreenNotes();
    QApplication app(argc, argv);
    Fakes::install();
    AppStoryboard::install();
    const Figures small = measure(32000);
    const Figures large = measure(128000);
    const char* order[] = {"store open + fetch",
                           "memory held by the fetched coins",
                           "list open",
                           "group open",
                           "breakdown open",
                           "valuation open",
                           "import",
                           "export"};
    for (const char* name : order) {
        const bool memory = std::string(name).starts_with("memory");
        char label[160];
        std::snprintf(label, sizeof label, "scale: %s at 32,000", name);
        print(label, small.at(name), memory ? "MB" : "ms", "-");
        std::snprintf(label, sizeof label, "scale: %s at 128,000", name);
        print(label, large.at(name), memory ? "MB" : "ms", "-");
        std::snprintf(label, sizeof label, "scale: %s at 128,000 / at 32,000", name);
        print(label, large.at(name) / small.at(name), "x", "<= 4.5");
    }
    return 0;
}
