#include "../ScreenFixture.h"
#include "model/Journal.h"
#include "model/Originals.h"
#include "platform/graphics/ImageCoding.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/list/MainListTableViewController.h"

#include <QBuffer>
#include <QDir>
#include <QImageWriter>
#include <QPainter>

namespace {
// A photo with detail in it, as a camera would give: lettering on a gradient.
QByteArray photo(int width, int height, const QString& text) {
    QImage image(width, height, QImage::Format_RGB32);
    QLinearGradient g(0, 0, width, height);
    g.setColorAt(0, QColor(180, 150, 60));
    g.setColorAt(1, QColor(60, 50, 30));
    QPainter p(&image);
    p.fillRect(image.rect(), g);
    QFont f;
    f.setPixelSize(height / 10);
    p.setFont(f);
    p.drawText(image.rect(), Qt::AlignCenter, text);
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
};

// A photo chosen for a coin is kept as it was, once however many coins show it; the coin's
// 100 x 100 picture is what it always was; an edit, a removal and its undo keep the link.
TEST_F(OriginalsScreenTest, APhotoIsKeptByteForByteOnceAndComesBackWithItsPicture) {
    const QByteArray bytes = photo(4000, 3000, "10 CENTS");
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

    // A damaged file is said, never shown as the photo.
    writeFile(kept->path, QByteArray(bytes).replace(1000, 4, "XXXX"));
    EXPECT_FALSE(Originals::read(*kept).ok());
    EXPECT_TRUE(Originals::read(*kept).error().message.contains("damaged"));
}

// A photo whose header claims more than 64 megapixels is refused with a notice, not kept.
TEST_F(OriginalsScreenTest, APhotoTooLargeToKeepIsSaid) {
    QByteArray bytes = photo(400, 300, "1 CENT");
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
