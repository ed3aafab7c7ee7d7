#include "Program.h"
#include "TestSupport.h"
#include "model/Originals.h"
#include "model/PersistentContainer.h"
#include "model/Records.h"
#include "model/Snapshots.h"
#include "platform/graphics/ImageCoding.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
QByteArray photoBytes(int width, int height, QRgb colour) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    for (int y = 0; y < height; y += 7) // some detail, so the JPEG is not all one block
        for (int x = (y * 13) % 11; x < width; x += 11)
            image.setPixel(x, y, qRgb(x % 256, y % 256, 90));
    return ImageCoding::jpeg(image, 0.9);
}
} // namespace

// A backup is one file that carries the photos its coins were made from; a restore into an
// empty folder brings each back byte for byte. Snapshots share the photos with the collection
// instead of copying them, and a photo nothing names any more goes at the next start.
TEST_F(PelvaneTest, OriginalsTravelInTheBackupAndAreSharedBySnapshots) {
    const QString folderA = path("a");
    const QByteArray front = photoBytes(2400, 1600, qRgb(200, 170, 60));
    const QByteArray stray = photoBytes(300, 200, qRgb(20, 70, 160));
    QString store, keptHash;
    {
        PersistentContainer::setDefaultDirectory(folderA);
        PersistentContainer container(QStringLiteral("Pelvane"));
        container.loadPersistentStores({});
        ManagedObjectContext& ctx = *container.viewContext();
        store = container.storePath();
        auto coin = ctx.insert<Coins>();
        coin->setDenomination(QStringLiteral("Crown"));
        coin->setYear(1965);
        coin->setFrontImage(ImageCoding::coinPictureData(ImageCoding::decode(front)));
        const auto kept = Originals::keep(ctx, front, *ImageCoding::shownSize(front));
        ASSERT_TRUE(kept.ok());
        keptHash = kept.value().hash;
        ASSERT_TRUE(Originals::link(ctx, coin->frontImage(), kept.value()).ok());
        ASSERT_TRUE(ctx.save().ok());
        // A photo kept for a picture that was never saved: nothing names it.
        ASSERT_TRUE(Originals::keep(ctx, stray, *ImageCoding::shownSize(stray)).ok());
    }
    const QString originals = Originals::folderFor(store);
    ASSERT_EQ(QDir(originals).entryList(QDir::Files).size(), 2);

    ProgramRun run = runProgram(folderA, {"--backup", path("backup.sqlite")});
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_GT(QFileInfo(path("backup.sqlite")).size(), front.size());

    run = runProgram(path("c"), {"--restore", path("backup.sqlite")});
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    EXPECT_EQ(readFile(path("c/Originals/") + keptHash), front);
    EXPECT_EQ(QDir(path("c/Originals")).entryList(QDir::Files), QStringList{keptHash});
    // The photos left the restored store: its snapshots stay small.
    OtherConnection restored(path("c/Pelvane.sqlite"));
    EXPECT_EQ(restored.number("SELECT count(*) FROM sqlite_master WHERE name = 'BackupOriginals'"),
              0);
    EXPECT_EQ(restored.number("SELECT count(*) FROM OriginalLinks"), 1);
    EXPECT_LT(QFileInfo(path("c/Pelvane.sqlite")).size(), front.size());

    // A snapshot copies the store, not the photos.
    const Result<QString> snapshot = Snapshots::take(store, QStringLiteral("test"));
    ASSERT_TRUE(snapshot.ok());
    EXPECT_LT(QFileInfo(snapshot.value()).size(), front.size());

    // At start, files nothing names go once they are old enough to be no save under way.
    for (const QString& name : QDir(originals).entryList(QDir::Files)) {
        QFile f(originals + "/" + name);
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        f.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime);
    }
    // The coin goes from the store: only the snapshot (and the journal) still name its photo.
    OtherConnection(store).exec("DELETE FROM Journal; DELETE FROM OriginalLinks");
    {
        PersistentContainer::setDefaultDirectory(folderA);
        PersistentContainer container(QStringLiteral("Pelvane"));
        container.loadPersistentStores({});
        const auto removed =
            Originals::collect(*container.viewContext(), store, {snapshot.value()});
        ASSERT_TRUE(removed.ok());
        EXPECT_EQ(removed.value(), 1);
        EXPECT_EQ(QDir(originals).entryList(QDir::Files), QStringList{keptHash});
        QFile::remove(snapshot.value());
        EXPECT_EQ(Originals::collect(*container.viewContext(), store, {}).valueOr(-1), 1);
        EXPECT_TRUE(QDir(originals).entryList(QDir::Files).isEmpty());
    }
}
