// Coins saved one by one, each with a photo of its own, as the add form saves them (the photo
// kept, then linked, then the coin): for the crash trials, which kill it at a random moment.
// With --check it says whether every coin's picture still has its whole photo.
//
//   pelvane_photo_saves DIR COUNT      saves COUNT coins into the collection in DIR
//   pelvane_photo_saves --check DIR    exit 0 when no coin lacks its photo, else 1
#include "model/Originals.h"
#include "model/PersistentContainer.h"
#include "model/Records.h"
#include "platform/graphics/ImageCoding.h"

#include <QGuiApplication>
#include <QPainter>
#include <cstdio>

namespace {
std::unique_ptr<PersistentContainer> openIn(const QString& dir) {
    PersistentContainer::setDefaultDirectory(dir);
    auto c = std::make_unique<PersistentContainer>(QStringLiteral("Pelvane"));
    c->loadPersistentStores([](const StoreDescription&, const std::optional<Error>& e) {
        if (e) {
            std::fprintf(stderr, "cannot open the collection: %s\n", qPrintable(e->message));
            std::exit(2);
        }
    });
    return c;
}
} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    if (args.size() == 2 && args[0] == QLatin1String("--check")) {
        auto c = openIn(args[1]);
        ManagedObjectContext& ctx = *c->viewContext();
        int missing = 0;
        for (const CoinPtr& coin : ctx.fetch<Coins>(FetchRequest(QStringLiteral("Coins")))) {
            const auto original = Originals::of(ctx, coin->frontImage());
            if (!original || !Originals::read(*original).ok()) {
                std::fprintf(stderr, "%s has no whole photo\n", qPrintable(coin->denomination()));
                ++missing;
            }
        }
        return missing == 0 ? 0 : 1;
    }
    if (args.size() != 2)
        return 2;
    auto c = openIn(args[0]);
    ManagedObjectContext& ctx = *c->viewContext();
    QImage photo(1200, 900, QImage::Format_RGB32);
    photo.fill(QColor(160, 130, 60));
    QPainter p(&photo);
    p.drawEllipse(photo.rect().adjusted(50, 50, -50, -50));
    p.end();
    const QByteArray base = ImageCoding::jpeg(photo, 0.9);
    for (int i = 0; i < args[1].toInt(); ++i) {
        // Each photo its own bytes, and each coin its own 100 x 100 picture.
        QImage mark = photo;
        QPainter number(&mark);
        QFont font;
        font.setPixelSize(400);
        number.setFont(font);
        number.drawText(mark.rect(), Qt::AlignCenter, QString::number(i));
        number.end();
        const QByteArray bytes = base + QByteArray::number(i);
        auto coin = ctx.insert<Coins>();
        coin->setDenomination(QStringLiteral("Trial %1").arg(i));
        coin->setYear(1900);
        coin->setFrontImage(ImageCoding::coinPictureData(mark));
        const auto kept = Originals::keep(ctx, bytes, photo.size());
        if (!kept.ok() || !Originals::link(ctx, coin->frontImage(), kept.value()).ok() ||
            !ctx.save().ok())
            return 1;
        std::printf("%d\n", i);
        std::fflush(stdout);
    }
    return 0;
}
