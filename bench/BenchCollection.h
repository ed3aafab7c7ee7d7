#pragma once
// The generated collection the benchmarks measure: coins spread over countries,
// denominations, mint marks and years, each with two ~3 KB pictures.
#include "model/PersistentContainer.h"
#include "model/Records.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

#include <cstdio>
#include <cstdlib>

namespace BenchCollection {

inline const char* kCountries[] = {"United States", "Canada",    "Mexico", "France",
                                   "Germany",       "Peru",      "Chile",  "Japan",
                                   "India",         "Australia", "Spain",  "Italy"};
inline const char* kDenominations[] = {"1 Cent",   "5 Cents", "10 Cents",    "25 Cents", "50 Cents",
                                       "1 Dollar", "1 Peso",  "1 Franc",     "2 Euro",   "10 Yen",
                                       "1 Rupee",  "1 Mark",  "20 Centavos", "1 Sol"};
inline const char* kMints[] = {"P", "D", "S", "", "O", "CC", "W", "M"};

inline QByteArray picture(int seed) {
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

inline void fill(Coins& c, int i, const std::vector<QByteArray>& pics) {
    c.setCountry(QString::fromLatin1(kCountries[i % 12]));
    c.setDenomination(QString::fromLatin1(kDenominations[(i / 12) % 14]));
    c.setMintMark(QString::fromLatin1(kMints[(i / 168) % 8]));
    c.setYear(qint16(1800 + (i / 1344) % 226));
    // The main list sums the quantities in 16 bits, so the whole collection stays below 32,768.
    c.setQuantity(qint16(i % 40 == 0 ? 0 : 1));
    c.setValue(float(i % 1000) / 4);
    c.setGradeNumber(QStringLiteral("MS/PF-65"));
    c.setNotes(QStringLiteral("Bought at the club fair"));
    c.setDiameter(19.05);
    c.setWeight(2.5);
    c.setFrontImage(pics[std::size_t(i) % pics.size()]);
    c.setBackImage(pics[std::size_t(i + 1) % pics.size()]);
}

inline std::unique_ptr<PersistentContainer> open() {
    auto c = std::make_unique<PersistentContainer>(QStringLiteral("Pelvane"));
    c->loadPersistentStores([](const StoreDescription&, const std::optional<Error>& e) {
        if (e) {
            std::fprintf(stderr, "cannot open store: %s\n", qPrintable(e->description()));
            std::exit(1);
        }
    });
    return c;
}

inline void print(const char* name, double value, const char* unit, const char* target) {
    std::printf("%-52s %10.1f %-3s (target %s)\n", name, value, unit, target);
}

// A store of `n` coins in `dir`, saved in one transaction.
inline void build(const QString& dir, int n) {
    std::vector<QByteArray> pics;
    for (int i = 0; i < 64; ++i)
        pics.push_back(picture(i));
    PersistentContainer::setDefaultDirectory(dir);
    auto c = open();
    for (int i = 0; i < n; ++i)
        fill(*c->viewContext()->insert<Coins>(), i, pics);
    if (!c->viewContext()->save().ok())
        std::exit(1);
}

} // namespace BenchCollection
