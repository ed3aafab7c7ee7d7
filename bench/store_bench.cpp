// Store figures on a collection of 32,000 coins, each with two ~3 KB pictures.
// Prints one figure per line.
#include "model/PersistentContainer.h"
#include "model/Records.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <malloc.h>
#include <sqlite3.h>

#include <cstdio>

namespace {

const char* kCountries[] = {"United States", "Canada", "Mexico", "France",    "Germany", "Peru",
                            "Chile",         "Japan",  "India",  "Australia", "Spain",   "Italy"};
const char* kDenominations[] = {"1 Cent",   "5 Cents", "10 Cents",    "25 Cents", "50 Cents",
                                "1 Dollar", "1 Peso",  "1 Franc",     "2 Euro",   "10 Yen",
                                "1 Rupee",  "1 Mark",  "20 Centavos", "1 Sol"};
const char* kMints[] = {"P", "D", "S", "", "O", "CC", "W", "M"};

QByteArray picture(int seed) {
    QImage img(100, 100, QImage::Format_RGB32);
    QRandomGenerator rng{quint32(seed)};
    img.fill(QColor::fromHsv(seed % 360, 80, 200));
    QPainter p(&img);
    for (int i = 0; i < 60; ++i) {
        p.setPen(QColor::fromRgb(rng.generate()));
        p.drawLine(rng.bounded(100), rng.bounded(100), rng.bounded(100), rng.bounded(100));
    }
    p.end();
    QByteArray out;
    QBuffer buf(&out);
    buf.open(QIODevice::WriteOnly);
    img.save(&buf, "JPEG", 50);
    return out;
}

void fill(Coins& c, int i, const std::vector<QByteArray>& pics) {
    c.setCountry(QString::fromLatin1(kCountries[i % 12]));
    c.setDenomination(QString::fromLatin1(kDenominations[(i / 12) % 14]));
    c.setMintMark(QString::fromLatin1(kMints[(i / 168) % 8]));
    c.setYear(qint16(1800 + (i / 1344) % 226));
    c.setQuantity(qint16(1 + i % 5));
    c.setValue(float(i % 1000) / 4);
    c.setGradeNumber(QStringLiteral("MS/PF-65"));
    c.setNotes(QStringLiteral("Bought at the club fair"));
    c.setDiameter(19.05);
    c.setWeight(2.5);
    c.setFrontImage(pics[std::size_t(i) % pics.size()]);
    c.setBackImage(pics[std::size_t(i + 1) % pics.size()]);
}

std::unique_ptr<PersistentContainer> open() {
    auto c = std::make_unique<PersistentContainer>(QStringLiteral("Pelvane"));
    c->loadPersistentStores([](const StoreDescription&, const std::optional<StoreError>& e) {
        if (e) {
            std::fprintf(stderr, "cannot open store: %s\n", qPrintable(e->description()));
            std::exit(1);
        }
    });
    return c;
}

void print(const char* name, double value, const char* unit, const char* target) {
    std::printf("%-52s %10.1f %-3s (target %s)\n", name, value, unit, target);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const int n = 32000, m = 30000;
    std::vector<QByteArray> pics;
    for (int i = 0; i < 64; ++i)
        pics.push_back(picture(i));

    QTemporaryDir dir;
    PersistentContainer::setDefaultDirectory(dir.path());
    {
        auto c = open();
        for (int i = 0; i < n; ++i)
            fill(*c->viewContext()->insert<Coins>(), i, pics);
        if (c->viewContext()->save())
            return 1;
    }

    // (a) open the store and fetch every coin sorted by denomination
    QElapsedTimer t;
    t.start();
    auto container = open();
    FetchRequest all(QStringLiteral("Coins"));
    all.sortDescriptors = {{QStringLiteral("denomination"), true}};
    all.returnsObjectsAsFaults = false;
    const size_t heapBefore = mallinfo2().uordblks;
    QList<CoinPtr> coins = container->viewContext()->fetch<Coins>(all);
    const double openFetchMs = double(t.nsecsElapsed()) / 1e6;
    const size_t heapAfter = mallinfo2().uordblks;
    if (coins.size() != n)
        return 1;
    print("a. open + fetch 32,000 coins by denomination", openFetchMs, "ms", "<= 150 ms");
    // (b)
    print("b. memory held by the 32,000 fetched coins", double(heapAfter - heapBefore) / 1e6, "MB",
          "<= 40 MB");

    // (c) 30,000 four-key lookups as the import makes them
    t.restart();
    int found = 0;
    for (int i = 0; i < m; ++i) {
        const int k = (i * 7919) % n;
        FetchRequest r(QStringLiteral("Coins"));
        r.predicate = Predicate::andPredicate(
            {Predicate::format(QStringLiteral("country == %@"),
                               QString::fromLatin1(kCountries[k % 12])),
             Predicate::format(QStringLiteral("denomination == %@"),
                               QString::fromLatin1(kDenominations[(k / 12) % 14])),
             Predicate::format(QStringLiteral("mintMark == %@"),
                               QString::fromLatin1(kMints[(k / 168) % 8])),
             Predicate::format(QStringLiteral("year == %@"),
                               QString::number(1800 + (k / 1344) % 226))});
        if (!qEnvironmentVariableIsSet("PELVANE_BENCH_NOFETCH"))
            found += int(container->viewContext()->fetch(r).size());
    }
    print("c. 30,000 fetches by the four import keys", double(t.nsecsElapsed()) / 1e6, "ms",
          "<= 300 ms");
    {
        sqlite3* db = nullptr;
        sqlite3_open(qPrintable(dir.filePath("Pelvane.sqlite")), &db);
        sqlite3_stmt* st = nullptr;
        sqlite3_prepare_v2(db,
                           "EXPLAIN QUERY PLAN SELECT pk FROM Coins WHERE country = ? AND "
                           "denomination = ? AND mintMark = ? AND year = ? ORDER BY pk",
                           -1, &st, nullptr);
        while (sqlite3_step(st) == SQLITE_ROW)
            std::printf("c. query plan: %s\n", sqlite3_column_text(st, 3));
        sqlite3_finalize(st);
        sqlite3_close(db);
    }
    coins.clear();
    container.reset();
    if (qEnvironmentVariableIsSet("PELVANE_BENCH_QUICK"))
        return 0;

    // (d) one coin per save against (e) all in one transaction, each into a fresh store
    auto timeInserts = [&](bool perCoin) {
        QTemporaryDir d;
        PersistentContainer::setDefaultDirectory(d.path());
        auto c = open();
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < m; ++i) {
            fill(*c->viewContext()->insert<Coins>(), i, pics);
            if (perCoin && c->viewContext()->save())
                std::exit(1);
        }
        if (!perCoin && c->viewContext()->save())
            std::exit(1);
        return double(timer.nsecsElapsed()) / 1e6;
    };
    const double one = timeInserts(false);
    const double each = timeInserts(true);
    print("d. 30,000 new coins, one save per coin", each, "ms", "<= 2 x e");
    print("e. 30,000 new coins, one transaction", one, "ms", "-");
    print("d/e ratio", each / one, "x", "<= 2");
    return found >= m ? 0 : 1;
}
