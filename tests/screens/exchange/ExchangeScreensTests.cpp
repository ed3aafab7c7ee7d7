#include "../ScreenFixture.h"
#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "model/Backup.h"
#include "model/Snapshots.h"
#include "platform/kit/Views.h"
#include "screens/exchange/DamagedStoreBanner.h"
#include "screens/exchange/ExportViewController.h"
#include "screens/exchange/ImportExportViewController.h"
#include "screens/exchange/ImportViewController.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QLabel>

#include <QTimer>
#include <QToolButton>

#include <algorithm>

class ExchangeScreenTest : public ScreenTest {
protected:
    template <typename T> T* open(const char* segue) {
        menu->performSegue("ImportExport");
        top()->performSegue(segue);
        return static_cast<T*>(top());
    }
    // Reading and merging run while the window keeps going: their alert comes later.
    static QString alertShown() {
        EXPECT_TRUE(waitUntil([] { return AlertController::current() != nullptr; }, 5000));
        return alertText();
    }
};

TEST_F(ExchangeScreenTest, ExportBuildsTheFileAndHandsItOn) {
    for (int i = 0; i < 12; ++i) {
        auto c = ctx().insert<Coins>();
        c->setDenomination(QStringLiteral("%1 Cents").arg(i));
        c->setYear(qint16(1950 + i));
    }
    ASSERT_TRUE(ctx().save().ok());
    auto* screen = open<ExportViewController>("ExportCoins");
    EXPECT_EQ(screen->title(), "Export Coins");
    EXPECT_TRUE(screen->ExportButton->isEnabled());
    EXPECT_FALSE(screen->SaveButton->isEnabled());
    EXPECT_FALSE(screen->EmailButton->isEnabled());
    EXPECT_TRUE(screen->HelpTextView->text().startsWith("Step 1: Create the Export File\nStep 2: "
                                                        "Option 1: Click 'Save To Files' button\n "
                                                        "            Option 2:"));

    QTest::mouseClick(screen->ExportButton, Qt::LeftButton);
    EXPECT_EQ(screen->ExportTextView->text().toUtf8(), Exchange::exchangeText(ctx()).value());
    EXPECT_FALSE(screen->ExportButton->isEnabled());
    EXPECT_TRUE(screen->SaveButton->isEnabled());
    EXPECT_EQ(screen->theEntryList.size(), 12);
    EXPECT_EQ(screen->ProgressView_->progress(), 0.0f); // the steps run after the build
    EXPECT_EQ(alertShown(),
              "Data Export File / Process Complete - File Ready to Save To Files or Email");
    EXPECT_EQ(screen->progress.completedUnitCount, 12);
    EXPECT_EQ(screen->ProgressView_->progress(), 1.0f);
    EXPECT_FALSE(screen->activityIndicator->isAnimating());
    dismissAlert();

    QTest::mouseClick(screen->SaveButton, Qt::LeftButton);
    ASSERT_EQ(fakes.shareSheet->presented.size(), 1);
    const auto& shared = fakes.shareSheet->presented[0];
    EXPECT_TRUE(shared.items[0].url.toLocalFile().endsWith("/Pelvane.csv"));
    EXPECT_EQ(shared.excluded.size(), 9);
    EXPECT_EQ(shared.excluded.last(), ShareSheet::Print);
    EXPECT_EQ(readFile(shared.items[0].url.toLocalFile()), Exchange::exchangeText(ctx()).value());

    fakes.mail->canSend = false;
    QTest::mouseClick(screen->EmailButton, Qt::LeftButton);
    EXPECT_EQ(alertText(), "Sending Email / Email not Setup or Unavailable");
    dismissAlert();
    fakes.mail->canSend = true;
    QTest::mouseClick(screen->EmailButton, Qt::LeftButton);
    ASSERT_EQ(fakes.mail->sent.size(), 1);
    EXPECT_EQ(fakes.mail->sent[0].mimeType, "csv");
    EXPECT_EQ(fakes.mail->sent[0].fileName, "Pelvane.csv");
    EXPECT_EQ(fakes.mail->sent[0].subject, "Pelvane Update Text File");
    EXPECT_FALSE(fakes.mail->sent[0].isHTML);
    EXPECT_EQ(fakes.mail->sent[0].attachment, Exchange::exchangeText(ctx()).value());
}

TEST_F(ExchangeScreenTest, ImportLoadsMergesAndReturnsToTheMenu) {
    auto* screen = open<ImportViewController>("ImportCoins");
    EXPECT_FALSE(screen->ImportButton->isEnabled());
    // A file that cannot be read still gets the "loaded" message, and nothing to import.
    fakes.documentPicker->next = path("missing.csv");
    QTest::mouseClick(screen->LoadFileButton, Qt::LeftButton);
    EXPECT_EQ(alertShown(), "Data Import File / File Loaded and Ready to Import");
    dismissAlert();
    EXPECT_FALSE(screen->ImportButton->isEnabled());

    writeFile(path("Pelvane.csv"), "[PELVANE]\nPeru^1 Sol^^^^^^^None^^^1^^^^^^^1935^^0\n");
    fakes.documentPicker->next = path("Pelvane.csv");
    QTest::mouseClick(screen->LoadFileButton, Qt::LeftButton);
    alertShown();
    dismissAlert();
    EXPECT_TRUE(screen->ImportButton->isEnabled());
    EXPECT_FALSE(screen->LoadFileButton->isEnabled());
    QTest::mouseClick(screen->ImportButton, Qt::LeftButton);
    EXPECT_EQ(alertShown(), "Data Import File / Data File Import Completed");
    dismissAlert();
    EXPECT_EQ(window->navigationController()->topViewController(), menu);
    EXPECT_EQ(all<Coins>().size(), 1);

    auto* again = open<ImportViewController>("ImportCoins");
    writeFile(path("notes.txt"), "milk, eggs\n");
    fakes.documentPicker->next = path("notes.txt");
    again->LoadFile();
    alertShown();
    dismissAlert();
    again->ImportTextFile();
    EXPECT_EQ(alertShown(), "Data Import / notes.txt Is The Incorrect Import File");
    dismissAlert();
    EXPECT_EQ(window->navigationController()->topViewController(), menu);
    EXPECT_EQ(all<Coins>().size(), 1);
}

// An import that takes the collection past the 32,767 pieces the lists can count says so,
// naming the lines, before it reports itself done; the coins are all kept.
TEST_F(ExchangeScreenTest, ImportPastThePiecesTheListsCountSaysWhichLinesDidIt) {
    addCoin("Dime", 1964, 30000);
    auto* screen = open<ImportViewController>("ImportCoins");
    writeFile(path("Pelvane.csv"), "[PELVANE]\n"
                                   "Peru^1 Sol^^^^^^^None^^^2000^^^^^^^1935^^\n"
                                   "Peru^2 Sol^^^^^^^None^^^1000^^^^^^^1935^^\n"
                                   "\n"
                                   "Peru^5 Sol^^^^^^^None^^^3^^^^^^^1935^^\n");
    fakes.documentPicker->next = path("Pelvane.csv");
    screen->LoadFile();
    alertShown();
    dismissAlert();
    screen->ImportTextFile();
    EXPECT_EQ(alertShown(),
              "Too Many Pieces / The collection now holds 33,003 pieces, more than the 32,767 the "
              "coin list and the valuation screen can count: they stop when they open. The coins "
              "of the file's lines 3, 5 took it past. Edit > Undo takes the whole import back.");
    dismissAlert();
    EXPECT_EQ(alertShown(), "Data Import File / Data File Import Completed");
    dismissAlert();
    EXPECT_EQ(top(), menu);
    EXPECT_EQ(all<Coins>().size(), 4);
}

// A large file is read on a worker and merged a few lines per turn of the event loop: the
// window keeps running (timers fire, the progress moves) and the coins saved are exactly those
// the merge saves in one go.
TEST_F(ExchangeScreenTest, ImportKeepsTheWindowAliveAndSavesWhatTheMergeSaves) {
    addCoin("1 Cent", 1901, 1, 1, "Peru", "M1"); // updated by line 1
    addCoin("1 Cent", 1902, 1, 1, "Peru", "M2"); // two alike: line 2 is skipped
    addCoin("1 Cent", 1902, 1, 1, "Peru", "M2");
    QByteArray text = "[PELVANE]\n";
    const QByteArray picture(300, 'A'); // valid base64, shown cut short
    for (int i = 1; i <= 400; ++i)
        text += QStringLiteral("Peru^1 Cent^d'%1^^1.5^^^^M%2^a~b^^2^^^^^3.25^^%3^%4^^\r\n")
                    .arg(i)
                    .arg(i <= 2 ? i : i % 7 + 3)
                    .arg(i <= 2 ? 1900 + i : 1000 + i)
                    .arg(QString::fromLatin1(picture))
                    .toUtf8();
    writeFile(path("Pelvane.csv"), text);

    // What the merge makes of the same file in one call, in a store of its own.
    QList<QStringList> expected;
    {
        auto* screen = open<ImportViewController>("ImportCoins");
        fakes.documentPicker->next = path("Pelvane.csv");
        screen->LoadFile();
        ASSERT_FALSE(alertShown().isEmpty());
        dismissAlert();
        EXPECT_TRUE(screen->ImportTextView->text().startsWith("[PELVANE]\nPeru^1 Cent^d'1^"));
        EXPECT_TRUE(screen->ImportTextView->text().contains("^AAAAAAAAAAAAAAAAAAAAAAAA\u2026^"));
        EXPECT_EQ(screen->document->size(), text.size());

        int ticks = 0;
        QTimer ticker;
        QObject::connect(&ticker, &QTimer::timeout, [&] { ++ticks; });
        ticker.start(0);
        QList<float> progress;
        QObject::connect(screen->ImportProgressView, &QProgressBar::valueChanged,
                         [&] { progress << screen->ImportProgressView->progress(); });
        screen->ImportTextFile();
        EXPECT_TRUE(screen->isBusy());
        EXPECT_TRUE(screen->ImportProgressView->isVisible());
        EXPECT_TRUE(window->navigationController()->backButton()->isHidden());
        EXPECT_EQ(alertShown(), "Data Import File / Data File Import Completed");
        EXPECT_GE(ticks, 8) << "the event loop ran between the steps";
        ASSERT_GE(progress.size(), 8);
        EXPECT_TRUE(std::is_sorted(progress.begin(), progress.end() - 1));
        EXPECT_FLOAT_EQ(progress[progress.size() - 2], 1.0f);
        dismissAlert();
        EXPECT_EQ(top(), menu);
    }
    auto rows = [&] {
        QList<QStringList> out;
        FetchRequest request(QStringLiteral("Coins"));
        request.sortDescriptors = {{"descrip", true}, {"year", true}};
        for (const CoinPtr& c : ctx().fetch<Coins>(request))
            out << QStringList{c->country(),
                               c->descrip(),
                               c->mintMark(),
                               c->notes(),
                               QString::number(c->year()),
                               QString::number(c->value()),
                               QString::number(c->frontImage().size()),
                               QString::number(c->backImage().size())};
        return out;
    };
    const QList<QStringList> viaScreen = rows();
    // The screen left the last updates pending as the merge does; a fresh store run through the
    // merge in one call, with the same coins before it, must give the same rows.
    for (const CoinPtr& c : ctx().fetch<Coins>(FetchRequest(QStringLiteral("Coins"))))
        ctx().deleteObject(c);
    ASSERT_TRUE(ctx().save().ok());
    addCoin("1 Cent", 1901, 1, 1, "Peru", "M1");
    addCoin("1 Cent", 1902, 1, 1, "Peru", "M2");
    addCoin("1 Cent", 1902, 1, 1, "Peru", "M2");
    const auto result = Exchange::mergeExchangeText(ctx(), text);
    EXPECT_EQ(result.created, 398);
    EXPECT_EQ(result.updated, 1);
    EXPECT_EQ(result.skipped, 1);
    EXPECT_EQ(rows(), viaScreen);
    EXPECT_EQ(viaScreen.size(), 401);
}

// A damaged store is reported, and nothing is offered to save over the last backup.
TEST_F(ExchangeScreenTest, ExportOfADamagedStoreOffersNothingToSave) {
    for (int i = 0; i < 20; ++i)
        addCoin(QStringLiteral("%1 Cents").arg(i), 1950 + i)->setFrontImage(coinPicture());
    ASSERT_TRUE(ctx().save().ok());
    delegate.reset();
    damagePage(path("Pelvane.sqlite"), "Coins_pictures");
    relaunch();

    auto* screen = open<ExportViewController>("ExportCoins");
    QTest::mouseClick(screen->ExportButton, Qt::LeftButton);
    EXPECT_EQ(alertText(),
              "Data Export File / The collection cannot be read: database disk image is malformed");
    EXPECT_FALSE(screen->SaveButton->isEnabled());
    EXPECT_FALSE(screen->EmailButton->isEnabled());
    EXPECT_EQ(screen->ExportTextView->text(), "");
    if (qEnvironmentVariableIsSet("PELVANE_SHOTS"))
        window->grab().save(qEnvironmentVariable("PELVANE_SHOTS") + "/export-damaged-store.png");
}

// The collection backed up through its button and put back through the other: the file chosen
// in the dialog, progress while it is written, the counts of both sides before anything is
// replaced, and a file that is no backup refused with the collection as it was.
TEST_F(ExchangeScreenTest, BackUpAndRestoreThroughTheButtons) {
    addCoin("1 Cent", 1909);
    addCoin("5 Cents", 1910);
    menu->performSegue("ImportExport");
    auto* screen = topAs<ImportExportViewController>();
    ASSERT_TRUE(screen);
    auto coinsHeld = [this] { return ctx().count(FetchRequest(QStringLiteral("Coins"))).value(); };

    fakes.documentPicker->next = path("backup.sqlite");
    QTest::mouseClick(screen->BackupButton, Qt::LeftButton);
    EXPECT_TRUE(fakes.documentPicker->suggested.endsWith(
        "/Pelvane-" + QDate::currentDate().toString(Qt::ISODate) + ".sqlite"));
    EXPECT_TRUE(screen->isBusy() || AlertController::current());
    EXPECT_EQ(alertShown(), "Backup Complete / Backed up 2 coins to " + path("backup.sqlite"));
    dismissAlert();
    EXPECT_TRUE(screen->RestoreButton->isEnabled());
    const Result<Backup::StoreInfo> info = Backup::inspect(path("backup.sqlite"));
    ASSERT_TRUE(info.ok()) << qPrintable(info.error().message);
    EXPECT_EQ(info.value().coins, 2);

    addCoin("10 Cents", 1911);
    writeFile(path("notes.txt"), "no collection at all");
    fakes.documentPicker->next = path("notes.txt");
    QTest::mouseClick(screen->RestoreButton, Qt::LeftButton);
    EXPECT_EQ(alertShown(), "Restore Failed / " + path("notes.txt") +
                                " is not a Pelvane backup: it is no SQLite database");
    dismissAlert();

    fakes.documentPicker->next = path("backup.sqlite");
    QTest::mouseClick(screen->RestoreButton, Qt::LeftButton);
    EXPECT_EQ(alertShown(), "Restore From Backup? / The backup holds 2 coins; the collection holds "
                            "3 coins. The collection as it is now is kept as a snapshot in "
                            "Backups/.");
    AlertController::current()->triggerAction("Cancel");
    EXPECT_EQ(coinsHeld(), 3);

    QTest::mouseClick(screen->RestoreButton, Qt::LeftButton);
    ASSERT_TRUE(waitUntil([] { return AlertController::current() != nullptr; }, 5000));
    AlertController::current()->triggerAction("Restore");
    EXPECT_EQ(alertText(), "Restore Complete / Restored 2 coins.");
    EXPECT_EQ(top(), menu); // no screen left showing the collection that went
    EXPECT_EQ(coinsHeld(), 2);
    EXPECT_EQ(QDir(dir() + "/Backups").entryList({"*before-restore*"}).size(), 1);
}

// A collection file damaged under the window: a moment after it shows, the banner says so and
// offers the newest snapshot that passes the checks (a newer one with a byte changed is passed
// over); Restore Snapshot… asks, then puts it back and moves the damaged file aside whole.
TEST_F(ExchangeScreenTest, DamagedStoreBannerOffersTheNewestWholeSnapshot) {
    addCoin("1 Cent", 1909);
    addCoin("5 Cents", 1910);
    const QString store = delegate->persistentContainer().storePath();
    const Result<QString> whole = Snapshots::take(store);
    ASSERT_TRUE(whole.ok());
    addCoin("10 Cents", 1911);
    const Result<QString> changed = Snapshots::take(store, QStringLiteral("before-restore"));
    ASSERT_TRUE(changed.ok());
    QByteArray bytes = readFile(changed.value());
    bytes[bytes.indexOf("10 Cents") + 1] = 'X';
    writeFile(changed.value(), bytes);
    OtherConnection(store).exec("PRAGMA wal_checkpoint(TRUNCATE)");
    damagePage(store, "Coins_denomination_year_mintMark");
    const QByteArray damaged = readFile(store);

    DamagedStoreBanner::checkSoon(window.get(), store);
    ASSERT_TRUE(waitUntil([this] { return window->banner() != nullptr; }, 5000));
    auto* title = window->banner()->findChild<QLabel*>("DamagedTitle");
    ASSERT_TRUE(title);
    EXPECT_EQ(title->text(), "Your collection file is damaged");
    EXPECT_TRUE(
        window->banner()->findChild<QLabel*>("DamagedDetail")->text().contains("holds 2 coins"));
    auto* restore = window->banner()->findChild<QPushButton*>("RestoreSnapshotButton");
    ASSERT_TRUE(restore);
    QTest::mouseClick(restore, Qt::LeftButton);
    EXPECT_EQ(alertShown(),
              "Restore From Backup? / The backup holds 2 coins; the collection cannot "
              "be read. Its file is moved aside whole, not deleted, and the backup "
              "takes its place.");
    AlertController::current()->triggerAction("Restore");
    EXPECT_TRUE(alertText().startsWith("Restore Complete / Restored 2 coins. The damaged "
                                       "collection file was kept as " +
                                       dir() + "/Pelvane-damaged-"))
        << qPrintable(alertText());
    EXPECT_EQ(ctx().count(FetchRequest(QStringLiteral("Coins"))).value(), 2);
    const QStringList aside = QDir(dir()).entryList({"Pelvane-damaged-*.sqlite"});
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(readFile(dir() + "/" + aside.first()), damaged);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window->banner(), nullptr);
}

// Restore From Backup… opens its dialog in the snapshot folder beside the store, made when
// there is none yet: hidden away with the store, it could not be reached otherwise.
TEST_F(ExchangeScreenTest, RestoreOpensInTheSnapshotFolder) {
    addCoin("1 Cent", 1909);
    menu->performSegue("ImportExport");
    auto* screen = topAs<ImportExportViewController>();
    ASSERT_TRUE(screen);
    const QString snapshots = dir() + "/Backups";
    ASSERT_FALSE(QFileInfo::exists(snapshots));
    QTest::mouseClick(screen->RestoreButton, Qt::LeftButton); // and cancelled
    EXPECT_EQ(fakes.documentPicker->presented, 1);
    EXPECT_EQ(fakes.documentPicker->folder, snapshots);
    EXPECT_TRUE(QFileInfo(snapshots).isDir());
    EXPECT_EQ(AlertController::current(), nullptr);
    EXPECT_FALSE(screen->isBusy());
}
