// The original photos on screen: opening the edit screen on a coin with two 12-megapixel
// originals until both are shown, the zoom's first frame of a 24-megapixel original, and one
// pan step on it once it is decoded at full resolution. Medians of a few runs, the files warm
// in the disk cache as a second look at a coin finds them. One figure per line.
#include "BenchProgram.h"
#include "OriginalPhotos.h"
#include "model/ManagedObjectContext.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/list/MainListTableViewController.h"

#include <QTemporaryDir>

#include <algorithm>

using namespace BenchCollection;

namespace {

double median(QList<double> runs) {
    std::sort(runs.begin(), runs.end());
    return runs[runs.size() / 2];
}

template <typename Done> void waitFor(Done done) {
    QElapsedTimer t;
    t.start();
    while (!done()) {
        QApplication::processEvents(QEventLoop::AllEvents, 1);
        if (t.elapsed() > 20000) {
            std::fprintf(stderr, "the original never came\n");
            std::exit(1);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(Program::offscreen(argc), argv);
    QTemporaryDir dir;
    BenchProgram::Running program(dir.path());
    program.window.resize(400, 800);
    ManagedObjectContext& ctx = *program.delegate.persistentContainer().viewContext();

    auto coin = [&](const QString& denomination, const QByteArray& front, const QByteArray& back) {
        auto c = ctx.insert<Coins>();
        c->setDenomination(denomination);
        c->setYear(1964);
        c->setQuantity(1);
        c->setCountry(QStringLiteral("Canada"));
        c->setMintMark(QStringLiteral("P"));
        c->setFrontImage(OriginalPhotos::kept(ctx, front));
        c->setBackImage(back.isEmpty() ? BenchCollection::picture(1)
                                       : OriginalPhotos::kept(ctx, back));
        return c;
    };
    const CoinPtr twelve = coin(QStringLiteral("1 Dollar"), OriginalPhotos::photo({4000, 3000}, 1),
                                OriginalPhotos::photo({4000, 3000}, 2));
    const CoinPtr twentyFour =
        coin(QStringLiteral("2 Dollars"), OriginalPhotos::photo({6000, 4000}, 3), {});
    if (!ctx.save().ok())
        return 1;

    program.menu->performSegue(QStringLiteral("ListCoins"));
    QApplication::processEvents();
    auto* list = static_cast<MainListTableViewController*>(program.nav()->topViewController());
    auto open = [&](const CoinPtr& c) {
        list->tableView->selectRow({0, int(list->CoinList.indexOf(c))});
        return static_cast<EditViewController*>(program.nav()->topViewController());
    };
    auto back = [&] {
        program.nav()->popToViewController(list, false);
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        settle(300); // decodes nobody waits for any more end
    };

    QList<double> opens;
    for (int run = 0; run < 7; ++run) {
        QElapsedTimer t;
        t.start();
        EditViewController* edit = open(twelve);
        waitFor([&] {
            return !edit->FrontImage->shownOriginal().isNull() &&
                   !edit->BackImage->shownOriginal().isNull();
        });
        program.window.repaint();
        opens << ms(t);
        back();
    }
    print("edit screen: open a coin with two 12-megapixel originals", median(opens), "ms",
          "<= 120 ms");

    QList<double> frames, pans;
    for (int run = 0; run < 5; ++run) {
        EditViewController* edit = open(twentyFour);
        waitFor([&] { return !edit->FrontImage->shownOriginal().isNull(); });
        QElapsedTimer t;
        t.start();
        edit->TapFrontImage();
        auto* zoom = static_cast<ZoomViewController*>(program.nav()->topViewController());
        waitFor([&] { return zoom->cells.value(0) && zoom->cells[0]->showsOriginal(); });
        program.window.repaint();
        frames << ms(t);
        waitFor([&] { return zoom->cells[0]->pictureSize() == QSize(6000, 4000); });
        zoom->pinchedView(8);
        program.window.repaint();
        QElapsedTimer pan;
        pan.start();
        for (int step = 0; step < 20; ++step) {
            zoom->draggedView({-15, -10});
            program.window.repaint();
        }
        pans << ms(pan) / 20;
        back();
    }
    print("zoom: first frame of a 24-megapixel original", median(frames), "ms", "<= 200 ms");
    print("zoom: one pan step at 8x on a 24-megapixel original", median(pans), "ms", "<= 16 ms");
    return 0;
}
