#include "../ScreenFixture.h"
#include "model/Journal.h"
#include "model/Originals.h"
#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/list/MainListTableViewController.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageWriter>
#include <QPainter>

namespace {
// A camera-sized photo: a red field with drawn detail, JPEG at quality 90.
QByteArray photo(const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter p(&image);
    p.setPen(QPen(Qt::yellow, 40));
    p.drawEllipse(image.rect().adjusted(200, 200, -200, -200));
    p.end();
    return ImageCoding::jpeg(image, 0.9);
}
} // namespace

class OriginalsScreenTest : public ScreenTest {
protected:
    QString folder() { return Originals::folderFor(delegate->persistentContainer().storePath()); }
    // Adds a coin through the add form, its front picture chosen from a file.
    void addWithFront(const QString& denomination, const QString& file) {
        auto* list = openList();
        list->performSegue("AddCoin");
        auto* add = topAs<AddViewController>();
        ASSERT_NE(add, nullptr);
        QTest::keyClicks(add->DenominationTextField, denomination);
        QTest::keyClicks(add->YearTextField, "1964");
        fakes.documentPicker->next = file;
        add->FrontFolderButton->click();
        add->SaveButton->click();
        ASSERT_EQ(top(), list);
    }
    CoinPtr coinNamed(const QString& denomination) {
        for (const CoinPtr& c : all<Coins>())
            if (c->denomination() == denomination)
                return c;
        return {};
    }
    // A coin whose front was made from a 4000 x 3000 photo kept as its original; its back is a
    // stored picture alone.
    CoinPtr coinWithOriginal() {
        original = photo({4000, 3000});
        auto coin = addCoin("Dime", 1964);
        auto kept = Originals::keep(ctx(), original, *ImageCoding::shownSize(original));
        EXPECT_TRUE(kept.ok());
        coin->setFrontImage(ImageCoding::coinPictureData(ImageCoding::decode(original)));
        coin->setBackImage(coinPicture(Qt::green));
        EXPECT_TRUE(Originals::link(ctx(), coin->frontImage(), kept.value()).ok());
        EXPECT_TRUE(ctx().save().ok());
        kept_ = kept.value();
        return coin;
    }
    EditViewController* openFromList(const CoinPtr& coin) {
        auto* list = topAs<MainListTableViewController>();
        if (!list)
            list = openList();
        list->tableView->selectRow({0, int(list->CoinList.indexOf(coin))});
        return topAs<EditViewController>();
    }
    QByteArray original;
    Originals::Original kept_;
};

// A photo chosen for a coin is kept as it was, once however many coins show it; the coin's
// 100 x 100 picture is what it always was; an edit, a removal and its undo keep the link.
TEST_F(OriginalsScreenTest, APhotoIsKeptByteForByteOnceAndComesBackWithItsPicture) {
    const QByteArray bytes = photo({4000, 3000});
    const QString file = dir() + "/coin.jpg";
    writeFile(file, bytes);
    addWithFront("Dime", file);
    addWithFront("Half Dime", file);

    const CoinPtr dime = coinNamed("Dime");
    ASSERT_TRUE(dime);
    EXPECT_EQ(dime->frontImage(), ImageCoding::coinPictureData(ImageCoding::decode(bytes)));
    const std::optional<Originals::Original> kept = Originals::of(ctx(), dime->frontImage());
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->size, QSize(4000, 3000));
    EXPECT_EQ(Originals::read(*kept).valueOr({}), bytes);
    EXPECT_EQ(QDir(folder()).entryList(QDir::Files), QStringList{Originals::hashOf(bytes)});
    EXPECT_EQ(Originals::of(ctx(), coinNamed("Half Dime")->frontImage())->hash, kept->hash);

    // An edit saves the picture again (as a new 100 x 100 encoding): still linked.
    auto* list = topAs<MainListTableViewController>();
    ASSERT_NE(list, nullptr);
    const CoinPtr again = coinNamed("Dime");
    list->tableView->selectRow({0, int(list->CoinList.indexOf(again))});
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    QTest::keyClicks(edit->ValueTextField, "5");
    edit->SaveButton->click();
    EXPECT_EQ(Originals::of(ctx(), coinNamed("Dime")->frontImage())->hash, kept->hash);

    // Removed, then undone: the picture and its photo are back.
    list->tableView->selectRow({0, int(list->CoinList.indexOf(coinNamed("Dime")))});
    edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    edit->RemoveFrontImage();
    AlertController::current()->triggerAction("Yes");
    EXPECT_TRUE(coinNamed("Dime")->frontImage().isEmpty());
    ASSERT_TRUE(Journal::undo(ctx()).ok());
    const QByteArray back = coinNamed("Dime")->frontImage();
    ASSERT_FALSE(back.isEmpty());
    const auto restored = Originals::of(ctx(), back);
    ASSERT_TRUE(restored);
    EXPECT_EQ(Originals::read(*restored).valueOr({}), bytes);
}

// A photo whose header claims more than 64 megapixels is refused with a notice, not kept.
TEST_F(OriginalsScreenTest, APhotoTooLargeToKeepIsSaid) {
    QByteArray bytes = photo({400, 300});
    const qsizetype sof = bytes.indexOf("\xFF\xC0");
    ASSERT_GT(sof, 0);
    // Height and width of the frame: 8000 x 9000.
    bytes[sof + 5] = char(0x1F);
    bytes[sof + 6] = char(0x40);
    bytes[sof + 7] = char(0x23);
    bytes[sof + 8] = char(0x28);
    const QString file = dir() + "/huge.jpg";
    writeFile(file, bytes);
    auto* list = openList();
    list->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    ASSERT_NE(add, nullptr);
    fakes.documentPicker->next = file;
    add->FrontFolderButton->click();
    EXPECT_EQ(alertText(), "Photo Too Large / The photo is larger than 64 megapixels, more than "
                           "the catalogue reads.");
    dismissAlert();
    EXPECT_FALSE(add->FrontImage->hasImage());
    EXPECT_FALSE(QDir(folder()).exists() && !QDir(folder()).isEmpty());
}

TEST_F(OriginalsScreenTest, EditScreenShowsTheOriginalInItsProportionsAndSavesTheStoredPicture) {
    auto coin = coinWithOriginal();
    auto* edit = openFromList(coin);
    ASSERT_NE(edit, nullptr);
    // The form opens with the stored picture; the original follows.
    EXPECT_TRUE(edit->FrontImage->shownOriginal().isNull());
    ASSERT_TRUE(waitUntil([&] { return !edit->FrontImage->shownOriginal().isNull(); }));
    const QImage shown = edit->FrontImage->shownOriginal();
    EXPECT_NEAR(double(shown.width()) / shown.height(), 4.0 / 3.0, 0.02);
    // Decoded for the screen, not at full size.
    EXPECT_LE(shown.width(), 2 * 120 * edit->devicePixelRatioF());
    EXPECT_GE(shown.width(), 120);
    EXPECT_EQ(edit->FrontImage->image().size(), QSize(100, 100));
    EXPECT_TRUE(edit->BackImage->shownOriginal().isNull());
    EXPECT_FALSE(edit->hasUnsavedChanges());
    // Fitted, not stretched: bands above and below the picture, the picture in the middle.
    const QImage drawn = edit->FrontImage->grab().toImage();
    const auto isRed = [](QRgb c) { return qRed(c) > 200 && qGreen(c) < 60 && qBlue(c) < 60; };
    EXPECT_TRUE(isRed(drawn.pixel(drawn.width() / 2, drawn.height() * 30 / 120)));
    EXPECT_FALSE(isRed(drawn.pixel(drawn.width() / 2, drawn.height() * 8 / 120)));

    // Saving writes the 100 x 100 the form held.
    edit->SaveButton->click();
    EXPECT_EQ(ImageCoding::decode(coin->frontImage()).size(), QSize(100, 100));

    // A picture pasted before the original arrives is not covered by it, and a form closed
    // before then is no harm.
    auto* again = openFromList(coin);
    ASSERT_NE(again, nullptr);
    QImage pasted(30, 30, QImage::Format_RGB32);
    pasted.fill(Qt::blue);
    again->FrontImage->setImage(pasted);
    QTest::qWait(500);
    EXPECT_TRUE(again->FrontImage->shownOriginal().isNull());
    EXPECT_EQ(again->FrontImage->image(), pasted);
    window->navigationController()->popViewController(false);
    auto* third = openFromList(coin);
    ASSERT_NE(third, nullptr);
    window->navigationController()->popViewController(false);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::qWait(500);
    EXPECT_NE(topAs<MainListTableViewController>(), nullptr);
}

TEST_F(OriginalsScreenTest, ADamagedOriginalLeavesTheStoredPictureAndOneLine) {
    auto coin = coinWithOriginal();
    QFile file(kept_.path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2);
    file.write("damage");
    file.close();
    Console::startCapture();
    auto* edit = openFromList(coin);
    ASSERT_NE(edit, nullptr);
    ASSERT_TRUE(waitUntil([] { return Console::captured().join('\n').contains("damaged"); }));
    QTest::qWait(200);
    EXPECT_EQ(Console::captured().filter("damaged").size(), 1);
    EXPECT_TRUE(edit->FrontImage->shownOriginal().isNull());
    EXPECT_EQ(edit->FrontImage->image().size(), QSize(100, 100));

    // The zoom shows the stored picture, and shares it.
    QTest::mouseDClick(edit->FrontImage, Qt::LeftButton);
    auto* zoom = topAs<ZoomViewController>();
    ASSERT_NE(zoom, nullptr);
    QTest::qWait(300);
    EXPECT_FALSE(zoom->cells[0]->showsOriginal());
    EXPECT_EQ(zoom->cells[0]->pictureSize(), QSize(100, 100));
    zoom->shareButtonClicked();
    Console::stopCapture();
    ASSERT_EQ(fakes.shareSheet->presented.size(), 1);
    EXPECT_EQ(fakes.shareSheet->presented[0].items[0].data, coin->frontImage());
}

TEST_F(OriginalsScreenTest, ZoomShowsTheOriginalAtFullSizeAndSharesItsFile) {
    auto coin = coinWithOriginal();
    auto* edit = openFromList(coin);
    QTest::mouseDClick(edit->FrontImage, Qt::LeftButton);
    auto* zoom = topAs<ZoomViewController>();
    ASSERT_NE(zoom, nullptr);
    ASSERT_EQ(zoom->numberOfItems(), 2);
    ZoomCollectionViewCell* front = zoom->cells[0];
    ASSERT_TRUE(waitUntil([&] { return front->showsOriginal(); }));
    ASSERT_TRUE(waitUntil([&] { return front->pictureSize() == QSize(4000, 3000); }, 10000));
    EXPECT_FALSE(zoom->cells[1]->showsOriginal());
    // Drawn in its proportions, zoomed in and moved too.
    zoom->pinchedView(2);
    zoom->draggedView({-30, -20});
    const QImage drawn = front->grab().toImage();
    const QPoint centre = drawn.rect().center();
    const auto isRed = [](QRgb c) { return qRed(c) > 200 && qGreen(c) < 60 && qBlue(c) < 60; };
    EXPECT_TRUE(isRed(drawn.pixel(centre)));
    EXPECT_FALSE(isRed(drawn.pixel(centre.x(), drawn.height() / 20)));

    zoom->shareButtonClicked();
    ASSERT_EQ(fakes.shareSheet->presented.size(), 1);
    const auto& items = fakes.shareSheet->presented[0].items;
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].data, original);
    EXPECT_EQ(items[0].url, QUrl::fromLocalFile(kept_.path));
    EXPECT_EQ(items[1].data, coin->backImage());
    EXPECT_TRUE(items[1].url.isEmpty());
}
