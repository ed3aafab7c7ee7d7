// Exchange-file figures on 32,000 coins, each with two distinct ~3 KB pictures.
// Prints one figure per line.
#include "ProcessMemory.h"
#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "model/ManagedObjectContext.h"
#include "model/PersistentContainer.h"
#include "model/Records.h"
#include "platform/graphics/ImageCoding.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <QtConcurrent/QtConcurrentMap>

#include <QDir>
#include <QFile>

#include <cstdio>

namespace {

QByteArray picture(int seed) {
    QImage img(100, 100, QImage::Format_RGB32);
    img.fill(QColor::fromHsv(seed % 360, 90, 200));
    QPainter p(&img);
    p.setPen(QColor::fromHsv((seed * 7) % 360, 200, 90));
    for (int i = 0; i < 12; ++i)
        p.drawLine((seed * (i + 3)) % 100, (seed / 3 + i * 17) % 100, (seed + i * 31) % 100,
                   (i * 29 + seed / 7) % 100);
    p.drawText(QRect(0, 30, 100, 40), Qt::AlignCenter, QString::number(seed));
    p.end();
    return ImageCoding::coinPictureData(img);
}

std::unique_ptr<PersistentContainer> open(const QString& dir) {
    PersistentContainer::setDefaultDirectory(dir);
    auto c = std::make_unique<PersistentContainer>(QStringLiteral("Pelvane"));
    c->loadPersistentStores({});
    return c;
}

using ProcessMemory::currentKb;
using ProcessMemory::peakKb;
using ProcessMemory::resetPeak;

// The coins of the benchmark; the yardstick inserts the same records.
void fill(Coins& coin, int i, const QList<QByteArray>& pics) {
    coin.setCountry(QStringLiteral("Country %1").arg(i % 40));
    coin.setDenomination(QStringLiteral("%1 Cents").arg(i)); // every coin its own keys
    coin.setMintMark(QStringLiteral("M%1").arg(i % 5));
    coin.setYear(qint16(1800 + i % 225));
    coin.setQuantity(qint16(1 + i % 4));
    coin.setValue(float(i % 997) / 4);
    coin.setNotes(QStringLiteral("line one\nline two"));
    coin.setGradeNumber(QStringLiteral("VF-20"));
    coin.setFrontImage(pics[2 * i]);
    coin.setBackImage(pics[2 * i + 1]);
}

void print(const char* name, double value, const char* unit, const char* target) {
    std::printf("%-56s %10.2f %-3s (target %s)\n", name, value, unit, target);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const int n = qEnvironmentVariableIntValue("PELVANE_BENCH_COINS")
                      ? qEnvironmentVariableIntValue("PELVANE_BENCH_COINS")
                      : 32000;
    QList<int> seeds;
    for (int i = 0; i < 2 * n; ++i)
        seeds << i;
    const QList<QByteArray> pics = QtConcurrent::blockingMapped(seeds, picture);

    // PELVANE_BENCH_DIR keeps the stores there, to export the same collection with another build.
    QTemporaryDir temporary;
    const QString kept = qEnvironmentVariable("PELVANE_BENCH_DIR");
    const QDir root(kept.isEmpty() ? temporary.path() : kept);
    QByteArray file;
    {
        auto c = open(root.filePath("source"));
        for (int i = 0; i < n; ++i)
            fill(*c->viewContext()->insert<Coins>(), i, pics);
        c->viewContext()->save();
        c.reset();
        c = open(root.filePath("source"));
        QElapsedTimer t;
        t.start();
        file = Exchange::exchangeText(*c->viewContext()).value();
        const double exported = double(t.nsecsElapsed()) / 1e9;
        print("export text of 32,000 coins", exported, "s", "<= 2");
        // The floor under it: the same pictures through the export's own coder and threads.
        t.restart();
        const qint64 coded = Exchange::recodePictures(pics);
        const double floor = double(t.nsecsElapsed()) / 1e9;
        if (coded <= 0)
            return 1;
        print("export: picture recoding alone, all cores", floor, "s", "reported");
        print("export / picture recoding alone", exported / floor, "x", "<= 1.25");
        std::printf("%-56s %10.1f MB\n", "exchange file size", double(file.size()) / 1e6);
    }

    // The same records inserted in one transaction, as the yardstick for the import: the best
    // of two runs, each into a fresh store, so that a slow disk moment does not flatter the
    // ratio.
    double oneTransaction = 1e9;
    for (const char* name : {"yardstick", "yardstick2"}) {
        auto c = open(root.filePath(QString::fromLatin1(name)));
        QElapsedTimer t;
        t.start();
        for (int i = 0; i < n; ++i)
            fill(*c->viewContext()->insert<Coins>(), i, pics);
        c->viewContext()->save();
        oneTransaction = std::min(oneTransaction, double(t.nsecsElapsed()) / 1e9);
    }
    auto c = open(root.filePath("device"));
    // The import's own memory: from the file's bytes in memory to the end of the merge.
    const long before = currentKb() - long(file.size() / 1024);
    resetPeak();
    QElapsedTimer t;
    t.start();
    auto r = Exchange::mergeExchangeText(*c->viewContext(), file);
    const double empty = double(t.nsecsElapsed()) / 1e9;
    const double peakMb = double(peakKb() - before) / 1024.0;
    print("import into an empty store", empty, "s", "-");
    print("same records inserted in one transaction", oneTransaction, "s", "-");
    print("import / one transaction", empty / oneTransaction, "x", "<= 2");
    t.restart();
    auto again = Exchange::mergeExchangeText(*c->viewContext(), file);
    c->viewContext()->save();
    print("import into a store holding the same coins (+ save)", double(t.nsecsElapsed()) / 1e9,
          "s", "-");
    print("peak memory of the import (with the file's bytes)", peakMb, "MB", "<= 3 x file");
    print("peak memory / file size", peakMb / (double(file.size()) / 1e6), "x", "<= 3");
    if (r.created != n || again.updated != n) {
        std::fprintf(stderr, "expected %d created and updated, got %d and %d\n", n, r.created,
                     again.updated);
        return 1;
    }
    return 0;
}
