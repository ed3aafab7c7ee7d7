// The picture of the edit form that Share keeps goes to the data folder given with --data-dir.
#include "../ScreenFixture.h"
#include "app/LaunchOptions.h"
#include "platform/DesktopServices.h"
#include "platform/core/Files.h"
#include "platform/core/NativeNames.h"
#include "screens/entry/EditViewController.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <dirent.h>

class PicturesFolderTest : public ScreenTest {
protected:
    void TearDown() override {
        ScreenTest::TearDown();
        Files::setPicturesDirectory({});
    }
    static QStringList picturesIn(const QString& folder) {
        return QDir(folder).entryList({QStringLiteral("Pelvane-*.jpg")}, QDir::Files, QDir::Name);
    }
    // The edit form of the first coin of the list, and its Share button.
    QAbstractButton* shareOnTheEditForm() {
        openList()->tableView->selectRow({0, 0});
        if (!topAs<EditViewController>())
            return nullptr;
        QApplication::processEvents(); // the bar shows its buttons
        QAbstractButton* share = nullptr;
        for (auto* b : window->findChildren<QAbstractButton*>("ShareButton"))
            if (b->isVisible())
                share = b;
        return share;
    }
};

TEST_F(PicturesFolderTest, ShareOnTheEditFormKeepsItsPictureInTheDataFolder) {
    const QString data = path("data");
    useDataDirectory(data); // as --data-dir does
    Platform::install(std::make_unique<DesktopPhotoLibrary>());
    const QString userPictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QStringList userPicturesBefore = picturesIn(userPictures);

    auto coin = addCoin("Quarter", 1999);
    QAbstractButton* share = shareOnTheEditForm();
    ASSERT_NE(share, nullptr);
    auto* edit = topAs<EditViewController>();
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

// A data folder whose name is not UTF-8 holds the pictures too, each under a name of its own.
TEST_F(PicturesFolderTest, ShareKeepsEachPictureInADataFolderNamedInLatin1) {
    struct Removed {
        QString folder;
        ~Removed() { QProcess::execute(QStringLiteral("rm"), {"-rf", "--", folder}); }
    } removed{path("parent")};
    const QByteArray data = QFile::encodeName(path("parent")) + "/data\xe9";
    useDataDirectory(Files::fromNativeName(data));
    Platform::install(std::make_unique<DesktopPhotoLibrary>());

    addCoin("Quarter", 1999);
    QAbstractButton* share = shareOnTheEditForm();
    ASSERT_NE(share, nullptr);
    share->click();
    share->click(); // within the same second: a name of its own

    QStringList saved;
    if (DIR* dir = ::opendir((data + "/Pictures").constData())) {
        while (const dirent* entry = ::readdir(dir))
            if (QByteArray(entry->d_name).startsWith("Pelvane-"))
                saved << QString::fromUtf8(entry->d_name);
        ::closedir(dir);
    }
    EXPECT_EQ(saved.size(), 2) << saved.join(' ').toStdString();
}
