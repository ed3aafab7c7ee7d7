// The picture of the edit form that Share keeps goes to the data folder given with --data-dir.
#include "../ScreenFixture.h"
#include "app/LaunchOptions.h"
#include "platform/DesktopServices.h"
#include "platform/core/Files.h"
#include "screens/entry/EditViewController.h"

#include <QAbstractButton>
#include <QDir>
#include <QStandardPaths>

class PicturesFolderTest : public ScreenTest {
protected:
    void TearDown() override {
        ScreenTest::TearDown();
        Files::setPicturesDirectory({});
    }
    static QStringList picturesIn(const QString& folder) {
        return QDir(folder).entryList({QStringLiteral("Pelvane-*.jpg")}, QDir::Files, QDir::Name);
    }
};

TEST_F(PicturesFolderTest, ShareOnTheEditFormKeepsItsPictureInTheDataFolder) {
    const QString data = path("data");
    useDataDirectory(data); // as --data-dir does
    Platform::install(std::make_unique<DesktopPhotoLibrary>());
    const QString userPictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QStringList userPicturesBefore = picturesIn(userPictures);

    auto coin = addCoin("Quarter", 1999);
    openList()->tableView->selectRow({0, 0});
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    QApplication::processEvents(); // the bar shows its buttons
    QAbstractButton* share = nullptr;
    for (auto* b : window->findChildren<QAbstractButton*>("ShareButton"))
        if (b->isVisible())
            share = b;
    ASSERT_NE(share, nullptr);
    share->click();
    share->click(); // within the same second: a name of its own

    const QStringList saved = picturesIn(data + "/Pictures");
    ASSERT_EQ(saved.size(), 2);
    EXPECT_NE(saved[0], saved[1]);
    for (const QString& name : saved) {
        const QImage picture(data + "/Pictures/" + name, "JPEG");
        EXPECT_EQ(picture.size(), edit->size()) << name.toStdString();
    }
    EXPECT_EQ(picturesIn(userPictures), userPicturesBefore);
    ASSERT_EQ(fakes.shareSheet->presented.size(), 2);
    EXPECT_FALSE(fakes.shareSheet->presented[0].items[0].image.isNull());
    EXPECT_EQ(coin->denomination(), "Quarter");
}
