// Backup, restore and the start with a snapshot due, on a collection of 32,000 coins with two
// pictures each. Prints one figure per line.
#include "BenchProgram.h"
#include "app/StoreCommands.h"
#include "model/Backup.h"
#include "model/Originals.h"
#include "model/Restore.h"
#include "model/Snapshots.h"
#include "platform/graphics/ImageCoding.h"
#include "screens/exchange/DamagedStoreBanner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QThread>
#include <QThreadPool>

#include <algorithm>

using namespace BenchCollection;

namespace {
double median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// Milliseconds until the menu's window is shown and painted, as the program starts it; with a
// snapshot due, the snapshot is started as the program starts it.
qint64 longestPause = 0;
// The same while the store check runs.
qint64 longestCheckPause = 0;

double startWindow(const QString& folder, bool withSnapshot, bool withCheck = false) {
    QElapsedTimer t;
    t.start();
    useDataDirectory(folder);
    const bool due = StoreCommands::snapshotDue();
    if (withSnapshot != due)
        std::fprintf(stderr, "a snapshot was %sdue\n", due ? "" : "not ");
    auto* running = new BenchProgram::Running(folder);
    if (withCheck)
        DamagedStoreBanner::checkSoon(&running->window, StoreCommands::storePath());
    if (due)
        StoreCommands::takeSnapshotSoon(&running->window);
    running->window.grab();
    QApplication::processEvents();
    const double shown = BenchProgram::ms(t);
    // The snapshot (or the store check) runs to its end before the next start, while the
    // window is used: the longest wait between two turns of its event loop.
    qint64& pause = withCheck ? longestCheckPause : longestPause;
    if (due || withCheck) {
        QElapsedTimer turns;
        turns.start();
        qint64 last = 0;
        while (turns.elapsed() < 3000) {
            QApplication::processEvents(QEventLoop::AllEvents, 5);
            pause = std::max(pause, turns.nsecsElapsed() - last);
            last = turns.nsecsElapsed();
            QThread::msleep(1);
        }
    }
    QThreadPool::globalInstance()->waitForDone();
    delete running;
    return shown;
}
} // namespace

// Snapshots of 2,000 coins, each with its own photo, against the same coins without: the photos
// stay in their folder, shared with the collection, so a snapshot copies the store alone.
void snapshotsWithOriginals() {
    QImage photo(1600, 1200, QImage::Format_RGB32);
    photo.fill(QColor(170, 140, 70));
    QPainter p(&photo);
    for (int i = 0; i < 400; ++i) {
        p.setPen(QColor::fromHsv(i % 360, 120, 160));
        p.drawLine(i * 4, 0, 1600 - i * 4, 1200);
    }
    p.end();
    const QByteArray base = ImageCoding::jpeg(photo, 0.8);
    // Both collections are made first, then snapshotted in turn, so that neither run has the
    // machine's warm-up to itself.
    struct Collection {
        std::unique_ptr<QTemporaryDir> dir = std::make_unique<QTemporaryDir>();
        QString store;
        qint64 snapshotBytes = 0, photoBytes = 0;
        std::vector<double> times;
    } plain, photographed;
    for (Collection* x : {&plain, &photographed}) {
        const bool originals = x == &photographed;
        PersistentContainer::setDefaultDirectory(x->dir->path());
        auto c = open();
        ManagedObjectContext& ctx = *c->viewContext();
        for (int i = 0; i < 2000; ++i) {
            const QByteArray front = picture(i);
            fill(*ctx.insert<Coins>(), i, {front});
            if (!originals)
                continue;
            // Each coin its own photo: the same picture with bytes of its own after its end.
            const QByteArray bytes = base + QByteArray::number(i);
            const auto kept = Originals::keep(ctx, bytes, photo.size());
            if (!kept.ok() || !Originals::link(ctx, front, kept.value()).ok())
                std::exit(1);
            x->photoBytes += bytes.size();
        }
        if (!ctx.save().ok())
            std::exit(1);
        x->store = c->storePath();
    }
    for (int run = 0; run < 7; ++run)
        for (Collection* x : {&plain, &photographed}) {
            QElapsedTimer t;
            t.start();
            const Result<QString> taken = Snapshots::take(x->store, QStringLiteral("bench"));
            x->times.push_back(double(t.nsecsElapsed()) / 1e6);
            if (!taken.ok())
                std::exit(1);
            x->snapshotBytes = QFileInfo(taken.value()).size();
            QFile::remove(taken.value());
        }
    const double with = median(photographed.times), without = median(plain.times);
    const qint64 withSize = photographed.snapshotBytes, withoutSize = plain.snapshotBytes,
                 photos = photographed.photoBytes;
    print("snapshot of 2,000 coins with originals / without originals", with / without, "x",
          "<= 1.2");
    std::printf("  (a snapshot: %.0f ms and %.1f MB with originals, %.0f ms and %.1f MB without; "
                "the 2,000 photos, %.0f MB, stay in the folder the snapshots share)\n",
                with, double(withSize) / 1e6, without, double(withoutSize) / 1e6,
                double(photos) / 1e6);
}

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    snapshotsWithOriginals();
    QTemporaryDir dir;
    const QString store = dir.filePath("Pelvane.sqlite");
    build(dir.path(), 32000);

    std::vector<double> backup, copy, restore;
    for (int run = 0; run < 3; ++run) {
        const QString target = dir.filePath("backup.sqlite");
        QElapsedTimer t;
        t.start();
        const Result<qint64> written = Backup::write(store, target);
        backup.push_back(double(t.nsecsElapsed()) / 1e9);
        if (!written.ok() || written.value() != 32000)
            return 1;
        QFile::remove(dir.filePath("plain.sqlite"));
        t.restart();
        if (!QFile::copy(store, dir.filePath("plain.sqlite")))
            return 1;
        copy.push_back(double(t.nsecsElapsed()) / 1e9);
        t.restart();
        // Over the collection, which is kept as a snapshot first: all a restore does.
        const Result<Backup::Restored> restored =
            Backup::restore(store, target, &PersistentContainer::upgradeCopy);
        restore.push_back(double(t.nsecsElapsed()) / 1e9);
        if (!restored.ok() || restored.value().coinsAfter != 32000)
            return 1;
        QDir(Snapshots::folder(store)).removeRecursively();
    }
    const double b = median(backup), c = median(copy);
    print("backup: 32,000 coins", b, "s", "<= 2 s");
    print("backup / copy of the store file", b / c, "x", "<= 3");
    std::printf("  (store file %.0f MB; plain copy %.2f s)\n",
                double(QFileInfo(store).size()) / 1e6, c);
    print("restore: 32,000 coins", median(restore), "s", "<= 2 s");

    // Alternating starts, so that the machine's drift falls on both alike.
    std::vector<double> with, without;
    for (int run = 0; run < 5; ++run) {
        QDir(Snapshots::folder(store)).removeRecursively();
        with.push_back(startWindow(dir.path(), true));
        without.push_back(startWindow(dir.path(), false));
    }
    print("start: with a snapshot due / without", median(with) / median(without), "x", "<= 1.1");
    std::printf("  (window shown in %.0f ms with a snapshot due, %.0f ms without; while the "
                "snapshot ran, the window's event loop waited %.0f ms at the longest)\n",
                median(with), median(without), double(longestPause) / 1e6);
    std::vector<double> checked, unchecked;
    for (int run = 0; run < 5; ++run) {
        checked.push_back(startWindow(dir.path(), false, true));
        unchecked.push_back(startWindow(dir.path(), false, false));
    }
    print("start: with the store check / without", median(checked) / median(unchecked), "x",
          "<= 1.1");
    std::printf("  (window shown in %.0f ms with the check, %.0f ms without; while the check ran, "
                "the window's event loop waited %.0f ms at the longest)\n",
                median(checked), median(unchecked), double(longestCheckPause) / 1e6);
    return 0;
}
