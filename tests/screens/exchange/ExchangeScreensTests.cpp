#include "../ScreenFixture.h"
#include "exchange/ExchangeWriter.h"
#include "exchange/ExportViewController.h"
#include "exchange/ImportViewController.h"
#include "platform/ImageCoding.h"

#include <QFile>

class ExchangeScreenTest : public ScreenTest {
protected:
    template <typename T> T* open(const char* segue) {
        menu->performSegue("ImportExport");
        top()->performSegue(segue);
        return static_cast<T*>(top());
    }
};

TEST_F(ExchangeScreenTest, ExportBuildsTheFileAndHandsItOn) {
    for (int i = 0; i < 12; ++i) {
        auto c = ctx().insert<Coins>();
        c->setDenomination(QStringLiteral("%1 Cents").arg(i));
        c->setYear(qint16(1950 + i));
    }
    ASSERT_FALSE(ctx().save());
    auto* screen = open<ExportViewController>("ExportCoins");
    EXPECT_EQ(screen->title(), "Export Coins");
    EXPECT_TRUE(screen->ExportButton->isEnabled());
    EXPECT_FALSE(screen->SaveButton->isEnabled());
    EXPECT_FALSE(screen->EmailButton->isEnabled());
    EXPECT_TRUE(screen->HelpTextView->text().startsWith("Step 1: Create the Export File\nStep 2: "
                                                        "Option 1: Click 'Save To Files' button\n "
                                                        "            Option 2:"));

    QTest::mouseClick(screen->ExportButton, Qt::LeftButton);
    EXPECT_EQ(screen->ExportTextView->text().toUtf8(), Exchange::exchangeText(ctx()));
    EXPECT_FALSE(screen->ExportButton->isEnabled());
    EXPECT_TRUE(screen->SaveButton->isEnabled());
    EXPECT_EQ(screen->theEntryList.size(), 12);
    EXPECT_EQ(screen->ProgressView_->progress(), 0.0f); // the steps run after the build
    ASSERT_TRUE(waitUntil([&] { return AlertController::current() != nullptr; }, 3000));
    EXPECT_EQ(screen->progress.completedUnitCount, 12);
    EXPECT_EQ(screen->ProgressView_->progress(), 1.0f);
    EXPECT_FALSE(screen->activityIndicator->isAnimating());
    EXPECT_EQ(AlertController::current()->message(),
              "Process Complete - File Ready to Save To Files or Email");
    AlertController::current()->triggerAction("OK");

    QTest::mouseClick(screen->SaveButton, Qt::LeftButton);
    ASSERT_EQ(fakes.shareSheet->presented.size(), 1);
    const auto& shared = fakes.shareSheet->presented[0];
    EXPECT_TRUE(shared.items[0].url.toLocalFile().endsWith("/Pelvane.csv"));
    EXPECT_EQ(shared.excluded.size(), 9);
    EXPECT_EQ(shared.excluded.last(), ShareSheet::Print);
    QFile written(shared.items[0].url.toLocalFile());
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), Exchange::exchangeText(ctx()));

    fakes.mail->canSend = false;
    QTest::mouseClick(screen->EmailButton, Qt::LeftButton);
    ASSERT_NE(AlertController::current(), nullptr);
    EXPECT_EQ(AlertController::current()->title(), "Sending Email");
    EXPECT_EQ(AlertController::current()->message(), "Email not Setup or Unavailable");
    AlertController::current()->triggerAction("OK");
    fakes.mail->canSend = true;
    QTest::mouseClick(screen->EmailButton, Qt::LeftButton);
    ASSERT_EQ(fakes.mail->sent.size(), 1);
    EXPECT_EQ(fakes.mail->sent[0].mimeType, "csv");
    EXPECT_EQ(fakes.mail->sent[0].fileName, "Pelvane.csv");
    EXPECT_EQ(fakes.mail->sent[0].subject, "Pelvane Update Text File");
    EXPECT_FALSE(fakes.mail->sent[0].isHTML);
    EXPECT_EQ(fakes.mail->sent[0].attachment, Exchange::exchangeText(ctx()));
}

TEST_F(ExchangeScreenTest, ImportLoadsMergesAndReturnsToTheMenu) {
    auto* screen = open<ImportViewController>("ImportCoins");
    EXPECT_FALSE(screen->ImportButton->isEnabled());
    // A file that cannot be read still gets the "loaded" message, and nothing to import.
    fakes.documentPicker->next = path("missing.csv");
    QTest::mouseClick(screen->LoadFileButton, Qt::LeftButton);
    ASSERT_NE(AlertController::current(), nullptr);
    EXPECT_EQ(AlertController::current()->message(), "File Loaded and Ready to Import");
    AlertController::current()->triggerAction("OK");
    EXPECT_FALSE(screen->ImportButton->isEnabled());

    QFile file(path("Pelvane.csv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[PELVANE]\nPeru^1 Sol^^^^^^^None^^^1^^^^^^^1935^^0\n");
    file.close();
    fakes.documentPicker->next = path("Pelvane.csv");
    QTest::mouseClick(screen->LoadFileButton, Qt::LeftButton);
    AlertController::current()->triggerAction("OK");
    EXPECT_TRUE(screen->ImportButton->isEnabled());
    EXPECT_FALSE(screen->LoadFileButton->isEnabled());
    QTest::mouseClick(screen->ImportButton, Qt::LeftButton);
    ASSERT_NE(AlertController::current(), nullptr);
    EXPECT_EQ(AlertController::current()->title(), "Data Import File");
    EXPECT_EQ(AlertController::current()->message(), "Data File Import Completed");
    AlertController::current()->triggerAction("OK");
    EXPECT_EQ(window->navigationController()->topViewController(), menu);
    EXPECT_EQ(all<Coins>().size(), 1);

    auto* again = open<ImportViewController>("ImportCoins");
    QFile notes(path("notes.txt"));
    ASSERT_TRUE(notes.open(QIODevice::WriteOnly));
    notes.write("milk, eggs\n");
    notes.close();
    fakes.documentPicker->next = path("notes.txt");
    again->LoadFile();
    AlertController::current()->triggerAction("OK");
    again->ImportTextFile();
    EXPECT_EQ(AlertController::current()->title(), "Data Import");
    EXPECT_EQ(AlertController::current()->message(), "notes.txt Is The Incorrect Import File");
    AlertController::current()->triggerAction("OK");
    EXPECT_EQ(window->navigationController()->topViewController(), menu);
    EXPECT_EQ(all<Coins>().size(), 1);
}

// A damaged store is reported, and nothing is offered to save over the last backup.
TEST_F(ExchangeScreenTest, ExportOfADamagedStoreOffersNothingToSave) {
    QImage face(100, 100, QImage::Format_RGB32);
    face.fill(Qt::darkYellow);
    for (int i = 0; i < 20; ++i)
        addCoin(QStringLiteral("%1 Cents").arg(i), 1950 + i)
            ->setFrontImage(ImageCoding::coinPictureData(face));
    ASSERT_FALSE(ctx().save());
    delegate.reset();
    damagePage(path("Pelvane.sqlite"), "Coins_pictures");
    relaunch();

    auto* screen = open<ExportViewController>("ExportCoins");
    QTest::mouseClick(screen->ExportButton, Qt::LeftButton);
    ASSERT_NE(AlertController::current(), nullptr);
    EXPECT_EQ(AlertController::current()->title(), "Data Export File");
    EXPECT_EQ(AlertController::current()->message(),
              "The collection cannot be read: database disk image is malformed");
    EXPECT_FALSE(screen->SaveButton->isEnabled());
    EXPECT_FALSE(screen->EmailButton->isEnabled());
    EXPECT_EQ(screen->ExportTextView->text(), "");
    if (qEnvironmentVariableIsSet("PELVANE_SHOTS"))
        window->grab().save(qEnvironmentVariable("PELVANE_SHOTS") + "/export-damaged-store.png");
}
