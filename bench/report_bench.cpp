// Report figures: the PDF report of a breakdown list of 1,000 and of 4,000 coins with two
// pictures each, from the share action to the closed file, with the peak memory of the larger
// one; the report of a coin whose notes are a megabyte without a space; the print screen's
// listing of 1,000 coins; the report of 1,000 coins whose pictures are drawn from their
// originals. One figure per line.
#include "BenchProgram.h"
#include "ProcessMemory.h"
#include "model/Originals.h"
#include "platform/graphics/ImageCoding.h"
#include "screens/groups/DenominationBreakdownTableViewController.h"
#include "screens/groups/PrintCoinsViewController.h"

#include <QImageWriter>

using namespace BenchCollection;
using namespace ProcessMemory;

namespace {
// A photo as a camera gives it: 3000 x 2000, busy enough that its JPEG is of a usual size.
QByteArray photo(int seed) {
    QImage image(3000, 2000, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(seed * 7 % 360, 90, 190));
    QRandomGenerator rng{quint32(seed)};
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 300; ++i) {
        painter.setPen(QPen(QColor::fromRgb(rng.generate()), rng.bounded(1, 12)));
        painter.drawEllipse(rng.bounded(3000), rng.bounded(2000), rng.bounded(400),
                            rng.bounded(400));
    }
    painter.end();
    QByteArray bytes = ImageCoding::jpeg(image, 0.9);
    if (bytes.isEmpty())
        std::exit(1);
    return bytes;
}

// 1,000 coins whose front and back pictures have originals: 50 photos, each kept once.
void buildOriginals(ManagedObjectContext& context) {
    std::vector<QByteArray> pictures;
    for (int i = 0; i < 50; ++i) {
        const QByteArray bytes = photo(i);
        const Result<Originals::Original> kept =
            Originals::keep(context, bytes, *ImageCoding::shownSize(bytes));
        const QByteArray picture = ImageCoding::coinPictureData(ImageCoding::decode(bytes));
        if (!kept.ok() || !Originals::link(context, picture, kept.value()).ok())
            std::exit(1);
        pictures.push_back(picture);
    }
    for (int i = 0; i < 1000; ++i) {
        auto coin = context.insert<Coins>();
        fill(*coin, i, pictures);
        coin->setBackImage(pictures[std::size_t(i * 7 + 3) % pictures.size()]);
        coin->setDenomination(QStringLiteral("Photo"));
    }
}

// Two groups, each coin with a front and a back picture of its own.
void buildGroups(const QString& dir) {
    PersistentContainer::setDefaultDirectory(dir);
    auto c = open();
    int seed = 0;
    for (const auto& [denomination, count] : {std::pair{"Dime", 1000}, std::pair{"Cent", 4000}})
        for (int i = 0; i < count; ++i) {
            const std::vector<QByteArray> pics{picture(seed), picture(seed + 1)};
            seed += 2;
            auto coin = c->viewContext()->insert<Coins>();
            fill(*coin, i, pics);
            coin->setDenomination(QString::fromLatin1(denomination));
        }
    // One coin whose notes are a megabyte without a space: a line that breaks nowhere.
    auto coin = c->viewContext()->insert<Coins>();
    fill(*coin, 0, std::vector<QByteArray>{picture(0)});
    coin->setDenomination(QStringLiteral("Notes"));
    QString notes(1 << 20, Qt::Uninitialized);
    for (qsizetype i = 0; i < notes.size(); ++i)
        notes[i] = QLatin1Char("abcdefghijklmnopqrstuvwxyz0123456789"[i % 36]);
    coin->setNotes(notes);
    buildOriginals(*c->viewContext());
    if (!c->viewContext()->save().ok())
        std::exit(1);
}

// Seconds from the share action to the file offered.
double report(BenchProgram::Running& program, const char* denomination) {
    auto* screen = new DenominationBreakdownTableViewController;
    screen->setGroup(QString::fromLatin1(denomination));
    program.nav()->pushViewController(screen, false);
    settle(100);
    program.fakes.shareSheet->presented.clear();
    QElapsedTimer t;
    t.start();
    screen->ShareCoinButtonClicked();
    while (program.fakes.shareSheet->presented.isEmpty())
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    const double seconds = double(t.nsecsElapsed()) / 1e9;
    program.nav()->popViewController(false);
    settle(50);
    return seconds;
}
} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // PELVANE_BENCH_DIR keeps the collection there, to report on it with another build.
    QTemporaryDir temporary;
    const QString kept = qEnvironmentVariable("PELVANE_BENCH_DIR");
    const QString dir = kept.isEmpty() ? temporary.path() : kept;
    buildGroups(dir);
    BenchProgram::Running program(dir);

    report(program, "Dime"); // fonts and plugins loaded once
    const double thousand = report(program, "Dime");
    print("report: pdf of 1,000 coins", thousand, "s", "<= 0.5");
    const long before = currentKb();
    resetPeak();
    const double fourThousand = report(program, "Cent");
    const double peakMb = double(peakKb() - before) / 1024.0;
    print("report: pdf of 4,000 coins", fourThousand, "s", "-");
    print("report: pdf of 4,000 / pdf of 1,000", fourThousand / thousand, "x", "<= 4.5");
    print("report: peak memory of the 4,000-coin pdf", peakMb, "MB", "-");

    report(program, "Notes");
    print("report: notes of 1 MB without spaces", report(program, "Notes"), "s", "<= 1");

    print("report: pdf of 1,000 coins with originals", report(program, "Photo"), "s", "<= 2");
    const QFileInfo written(dir + QStringLiteral("/Documents/CoinListByDenomination.pdf"));
    if (written.exists())
        print("report: size of the pdf with originals", double(written.size()) / 1e6, "MB", "-");

    auto* listing = new PrintCoinsViewController;
    listing->setGroup(CoinGroup{GroupKind::Denomination, QStringLiteral("Dime"), true});
    program.nav()->pushViewController(listing, false);
    settle(100);
    QElapsedTimer t;
    t.start();
    listing->CreateFileClick();
    listing->FileTextView->repaint();
    QApplication::processEvents();
    BenchCollection::print("report: print listing of 1,000 coins", ms(t) / 1000.0, "s", "<= 0.5 s");
    return 0;
}
