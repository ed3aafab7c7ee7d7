#include "../ScreenFixture.h"
#include "model/Originals.h"
#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/ZoomViewController.h"

#include <QBuffer>
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

class OriginalScreenTest : public ScreenTest {
protected:
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

TEST_F(OriginalScreenTest, EditScreenShowsTheOriginalInItsProportionsAndSavesTheStoredPicture) {
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

TEST_F(OriginalScreenTest, ADamagedOriginalLeavesTheStoredPictureAndOneLine) {
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

TEST_F(OriginalScreenTest, ZoomShowsTheOriginalAtFullSizeAndSharesItsFile) {
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
