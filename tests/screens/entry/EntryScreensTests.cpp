#include "../ScreenFixture.h"
#include "exchange/ExchangeReader.h"
#include "platform/graphics/ImageCoding.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/NotesViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/feedback/RateShareTableViewController.h"
#include "screens/list/MainListTableViewController.h"

#include <QClipboard>
#include <QFocusEvent>
#include <QMimeData>

class EntryScreenTest : public ScreenTest {
protected:
    // Opens the coin from the main list as a tap on its row does.
    EditViewController* openFromList(const CoinPtr& coin) {
        auto* list = topAs<MainListTableViewController>();
        list->tableView->selectRow({0, int(list->CoinList.indexOf(coin))});
        return topAs<EditViewController>();
    }
};

TEST_F(EntryScreenTest, AddFormFiltersPicksAndSaves) {
    auto* list = openList();
    list->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    ASSERT_NE(add, nullptr);

    add->SaveButton->click();
    EXPECT_EQ(alertText(), "Record not Saved! / Required Fields in RED not Entered");
    dismissAlert();
    EXPECT_EQ(top(), add);

    // Typed and pasted text pass the same filters.
    QTest::keyClicks(add->YearTextField, "19a6.4");
    EXPECT_EQ(add->YearTextField->text(), "1964");
    QApplication::clipboard()->setText("12.5");
    add->ValueTextField->paste();
    EXPECT_EQ(add->ValueTextField->text(), "12.5");
    add->QuantityTextField->paste(); // the point is refused in a whole-number field
    EXPECT_EQ(add->QuantityTextField->text(), "");
    QApplication::clipboard()->setText("1x");
    add->DiameterTextField->paste();
    EXPECT_EQ(add->DiameterTextField->text(), "");
    QTest::keyClicks(add->NotesTextView, "Nice \"coin\"");
    QTest::keyClick(add->NotesTextView, Qt::Key_Return);
    EXPECT_EQ(add->NotesTextView->text(), "Nice coin");
    QTest::keyClicks(add->DenominationTextField, " Dime ");

    // The grade field is edited by its picker.
    QFocusEvent focus(QEvent::FocusIn, Qt::MouseFocusReason);
    QApplication::sendEvent(add->GradeNumberTextField, &focus);
    ASSERT_TRUE(add->GradePickerView->isOpen());
    add->GradePickerView->pick(4);
    EXPECT_EQ(add->GradeNumberTextField->text(), add->GradeNumbersList[4]);

    // A large photo from a file, a camera without a camera, an empty clipboard.
    QImage photo(4000, 3000, QImage::Format_RGB32);
    photo.fill(Qt::darkYellow);
    const QString path = dir() + "/photo.jpg";
    ASSERT_TRUE(photo.save(path, "JPEG"));
    fakes.documentPicker->next = path;
    add->FrontFolderButton->click();
    add->RearFolderButton->click();
    EXPECT_EQ(add->FrontImage->image().size(), QSize(4000, 3000));
    EXPECT_EQ(add->BackImage->image().size(), QSize(4000, 3000));
    add->RearCameraButton->click();
    EXPECT_EQ(alertText(), "Camera / There is no camera available");
    dismissAlert();
    QApplication::clipboard()->setText("no picture");
    add->RearPasteButton->click();
    EXPECT_EQ(alertText(), "Clipboard / There is no image in the Clipboard");
    dismissAlert();
    fakes.imagePicker->camera = true;
    fakes.imagePicker->next = QImage(30, 40, QImage::Format_RGB32);
    add->RearCameraButton->click();
    EXPECT_EQ(add->BackImage->image().size(), QSize(30, 40));
    add->RearRemoveButton->click(); // at once, without asking
    EXPECT_FALSE(add->BackImage->hasImage());
    EXPECT_EQ(AlertController::current(), nullptr);

    add->SaveButton->click();
    EXPECT_EQ(top(), list);
    ASSERT_EQ(list->CoinList.size(), 1);
    CoinPtr coin = list->CoinList.first();
    EXPECT_EQ(coin->denomination(), "Dime");
    EXPECT_EQ(coin->year(), 1964);
    EXPECT_EQ(coin->mintMark(), "None");
    EXPECT_EQ(coin->id(), 0);
    EXPECT_EQ(coin->value(), 12.5f);
    EXPECT_EQ(coin->gradeNumber(), add->GradeNumbersList[4]);
    EXPECT_FALSE(coin->hasValue(Coins::Attr::notes)); // entered later, on the notes screen
    EXPECT_FALSE(coin->hasValue(Coins::Attr::backImage));
    const QByteArray front = coin->frontImage();
    EXPECT_TRUE(front.startsWith("\xff\xd8"));
    EXPECT_EQ(ImageCoding::decode(front).size(), QSize(100, 100));

    // The coin is there after the program starts again.
    window.reset();
    relaunch();
    auto coins = all<Coins>();
    ASSERT_EQ(coins.size(), 1);
    EXPECT_EQ(coins.first()->frontImage(), front);
}

TEST_F(EntryScreenTest, EditSavesByTheNotedIdAndReturnsWhereItCameFrom) {
    auto a = addCoin("Lincoln Cent", 1909, 1, 3.5f, "USA", "D");
    auto b = addCoin("Lincoln Cent", 1909, 2, 1.0f, "USA", "D");
    a->setId(1);
    b->setId(2);
    a->setBackImage(coinPicture(Qt::red));
    b->setBackImage(coinPicture(Qt::blue));
    ctx().save();
    auto* list = openList();
    auto* edit = openFromList(a);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->ValueTextField->text(), "3.50");
    EXPECT_EQ(edit->DiameterTextField->text(), "0.0");
    EXPECT_TRUE(edit->BackImage->hasImage());
    EXPECT_FALSE(edit->FrontImage->hasImage());
    EXPECT_TRUE(edit->valuationSearchUrl().toString().endsWith(
        "?q=+how+much+is+a+1909+Lincoln+Cent+worth"));

    // A long press on the back picture looks the coin up.
    QTest::mousePress(edit->BackImage, Qt::LeftButton);
    ASSERT_TRUE(waitUntil([&] { return !fakes.browser->inApp.isEmpty(); }));
    QTest::mouseRelease(edit->BackImage, Qt::LeftButton);
    EXPECT_EQ(fakes.browser->inApp.first(), edit->valuationSearchUrl());

    edit->DiameterTextField->setText("");
    edit->WeightTextField->setText("1.2.3");
    edit->MintMarkTextField->setText("");
    edit->SaveButton->click();
    EXPECT_EQ(top(), list);
    EXPECT_TRUE(a->hasValue(Coins::Attr::diameter));
    EXPECT_EQ(a->diameter(), 0.0);
    EXPECT_EQ(a->weight(), 0.0);
    EXPECT_EQ(a->mintMark(), "None");
    EXPECT_FALSE(ctx().hasChanges());

    // Opened from the second coin, removing the back picture finds the first coin with the
    // noted denomination, year and mint mark.
    edit = openFromList(b);
    edit->RemoveBackImage();
    EXPECT_EQ(AlertController::current()->actionTitles(), QStringList({"Yes", "No"}));
    AlertController::current()->triggerAction("No");
    EXPECT_TRUE(b->hasValue(Coins::Attr::backImage));
    a->setMintMark("D");
    ctx().save();
    edit->RemoveBackImage();
    EXPECT_EQ(alertText(), "Remove Back Coin Image / Do You Want to Remove This Image?");
    AlertController::current()->triggerAction("Yes");
    EXPECT_FALSE(a->hasValue(Coins::Attr::backImage));
    EXPECT_TRUE(b->hasValue(Coins::Attr::backImage));
    EXPECT_FALSE(edit->BackImage->hasImage());

    // From a screen that is no list, the save writes the coin the main list noted last and
    // the screen stays open.
    auto* other = new EditViewController;
    other->setDetailItem(a);
    CalledFromList = "Master";
    edit->navigationController()->pushViewController(other, false);
    EXPECT_EQ(SelectedCoinID, 2);
    other->DenominationTextField->setText("Indian Head Cent");
    other->SaveButton->click();
    EXPECT_EQ(top(), other);
    EXPECT_EQ(b->denomination(), "Indian Head Cent");
    EXPECT_EQ(a->denomination(), "Lincoln Cent");
    CalledFromList = "";
    other->SaveButton->click();
    EXPECT_EQ(top(), other);
}

TEST_F(EntryScreenTest, NotesGoToTheFirstCoinOfTheDenominationAndYear) {
    auto first = addCoin("Dime", 1964);
    auto second = addCoin("Dime", 1964);
    second->setId(7);
    second->setNotes("Toned");
    ctx().save();
    openList();
    auto* edit = openFromList(second);
    edit->NotesButton->click();
    auto* notes = topAs<NotesViewController>();
    ASSERT_NE(notes, nullptr);
    EXPECT_EQ(notes->NotesTextView->text(), "Toned");
    edit->DenominationTextField->setText("unsaved edit");
    notes->NotesTextView->setText("  Struck off-centre ");
    notes->SaveButton->click();
    EXPECT_EQ(top(), edit);
    EXPECT_EQ(first->notes(), "  Struck off-centre ");
    EXPECT_EQ(second->notes(), "Toned");
    EXPECT_EQ(SelectedNotes, "Struck off-centre");
    // The return fills the form again from the opened coin.
    EXPECT_EQ(edit->DenominationTextField->text(), "Dime");
    EXPECT_EQ(edit->NotesTextView->text(), "Toned");

    // Nothing matches: nothing is written, the editor still returns.
    SelectedDenomination = "";
    edit->NotesButton->click();
    topAs<NotesViewController>()->SaveButton->click();
    EXPECT_EQ(top(), edit);
    EXPECT_EQ(first->notes(), "  Struck off-centre ");
}

TEST_F(EntryScreenTest, ZoomShowsBothPicturesAndScalesWithoutLimit) {
    auto coin = addCoin("Nickel", 1937);
    coin->setFrontImage(coinPicture(Qt::red));
    coin->setBackImage(coinPicture(Qt::green));
    ctx().save();
    openList();
    auto* edit = openFromList(coin);
    QTest::mouseDClick(edit->FrontImage, Qt::LeftButton);
    auto* zoom = topAs<ZoomViewController>();
    ASSERT_NE(zoom, nullptr);
    EXPECT_EQ(zoom->numberOfItems(), 2);
    zoom->pinchedView(2);
    zoom->pinchedView(2);
    EXPECT_DOUBLE_EQ(zoom->transform().m11(), 4.0);
    for (int i = 0; i < 60; ++i)
        zoom->pinchedView(0.5);
    EXPECT_GT(zoom->transform().m11(), 0.0);
    EXPECT_LT(zoom->transform().m11(), 1e-15);
    zoom->draggedView({10, -5});
    EXPECT_EQ(zoom->transform().dx(), 10);

    zoom->shareButtonClicked();
    ASSERT_EQ(fakes.shareSheet->presented.size(), 1);
    EXPECT_EQ(fakes.shareSheet->presented[0].items[0].data, coin->frontImage());
    EXPECT_EQ(fakes.shareSheet->presented[0].items[1].data, coin->backImage());
    fakes.messages->canSend = false;
    zoom->shareButtonClicked();
    ASSERT_TRUE(waitUntil([] { return AlertController::current() != nullptr; }));
    EXPECT_EQ(alertText(),
              "Can't Send Text Message / Your device is not able to send text messages.");
}

TEST_F(EntryScreenTest, EditScreenAsksForAReviewFiveSecondsAfterOpening) {
    auto coin = addCoin("Quarter", 1999);
    openList();
    auto* edit = openFromList(coin);
    edit->shareButtonClicked();
    EXPECT_EQ(fakes.photoLibrary->saved.size(), 1);
    ASSERT_EQ(fakes.shareSheet->presented.size(), 1);
    EXPECT_FALSE(fakes.shareSheet->presented[0].items[0].image.isNull());
    QTest::qWait(4000);
    EXPECT_EQ(fakes.reviewRequester->requests, 0);
    ASSERT_TRUE(waitUntil([&] { return fakes.reviewRequester->requests == 1; }, 2000));
    EXPECT_TRUE(edit->reviewService.lastRequest().has_value());
}

TEST_F(EntryScreenTest, RateShareRows) {
    menu->performSegue("RateShare");
    auto* rate = topAs<RateShareTableViewController>();
    ASSERT_NE(rate, nullptr);
    EXPECT_EQ(rate->tableView->numberOfRows(0), 5);
    for (int row = 0; row < 5; ++row)
        rate->tableView->selectRow({0, row});
    ASSERT_EQ(fakes.browser->external.size(), 2);
    EXPECT_EQ(fakes.browser->external[0].query(), "action=write-review");
    ASSERT_EQ(fakes.shareSheet->presented.size(), 2);
    EXPECT_EQ(fakes.shareSheet->presented[0].items[0].url, rate->productURL);
    EXPECT_EQ(fakes.shareSheet->presented[1].items[0].text, rate->instructions);
    ASSERT_EQ(fakes.mail->sent.size(), 1);
    EXPECT_EQ(fakes.mail->sent[0].body, "<p>Enter your comments about the Pelvane app below: </p>");
    EXPECT_TRUE(fakes.mail->sent[0].subject.isEmpty());

    fakes.messages->canSend = false;
    fakes.mail->canSend = false;
    rate->tableView->selectRow({0, 2});
    EXPECT_EQ(alertText(),
              "Can't Send Text Message / Your Device is not able to send text messages.");
    dismissAlert();
    rate->tableView->selectRow({0, 4});
    EXPECT_EQ(alertText(), "Can't Send Email / Your Device is not able to send Email.");
}

// A coin imported without a year has year 0, and the screens that find the opened coin again
// by its noted values find it; texts are matched as texts, so an absent denomination is not
// found by the empty text.
TEST_F(EntryScreenTest, ImportedCoinWithoutYearKeepsNotesAndLosesOnlyTheRemovedPicture) {
    const QByteArray front = coinPicture(Qt::red).toBase64(),
                     back = coinPicture(Qt::blue).toBase64();
    Exchange::mergeExchangeText(ctx(), QByteArray("[PELVANE]\nPeru^Sol^^^^^^^P") +
                                           QByteArray(11, '^') + front + '^' + back +
                                           "\nChile^^^^^^^^^^^^^^^^^^1990\n");
    const auto coins = all<Coins>();
    ASSERT_EQ(coins.size(), 2);
    const CoinPtr peru = coins[0], chile = coins[1];
    ASSERT_EQ(peru->year(), 0);
    ASSERT_FALSE(chile->hasValue(Coins::Attr::denomination));

    openList();
    auto* edit = openFromList(peru);
    edit->NotesButton->click();
    auto* notes = topAs<NotesViewController>();
    ASSERT_NE(notes, nullptr);
    notes->NotesTextView->setText("Bought in Lima");
    notes->SaveButton->click();
    EXPECT_EQ(peru->notes(), "Bought in Lima");
    EXPECT_FALSE(ctx().hasChanges());

    edit->RearRemoveButton->click();
    AlertController::current()->triggerAction("Yes");
    EXPECT_FALSE(peru->hasValue(Coins::Attr::backImage));
    EXPECT_TRUE(peru->hasValue(Coins::Attr::frontImage));

    // The coin without a denomination: its noted denomination is "", which no stored text
    // equals, so the notes editor changes nothing.
    edit->performUnwind("unwindToList");
    edit = openFromList(chile);
    EXPECT_FALSE(SelectedDenomination.isNull());
    edit->NotesButton->click();
    topAs<NotesViewController>()->NotesTextView->setText("lost, as the form says");
    topAs<NotesViewController>()->SaveButton->click();
    EXPECT_FALSE(chile->hasValue(Coins::Attr::notes));
}

TEST_F(EntryScreenTest, AClickOutsideTheFieldsEndsEditingOnBothForms) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    const CoinPtr dime = addCoin("Dime", 1964);
    auto* list = openList();
    list->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    add->YearTextField->setFocus();
    ASSERT_TRUE(add->YearTextField->hasFocus());
    QTest::mouseClick(add, Qt::LeftButton, {}, QPoint(2, add->height() - 2));
    EXPECT_FALSE(add->YearTextField->hasFocus());
    add->performUnwind("unwindToList");

    auto* edit = openFromList(dime);
    ASSERT_NE(edit, nullptr);
    edit->DenominationTextField->setFocus();
    ASSERT_TRUE(edit->DenominationTextField->hasFocus());
    QTest::mouseClick(edit, Qt::LeftButton, {}, QPoint(2, edit->height() - 2));
    EXPECT_FALSE(edit->DenominationTextField->hasFocus());
}

TEST_F(EntryScreenTest, PictureButtonsCarryTheirSymbols) {
    openList()->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    for (QPushButton* b : {add->FrontCameraButton, add->FrontFolderButton, add->FrontPasteButton,
                           add->FrontRemoveButton, add->RearCameraButton, add->RearFolderButton,
                           add->RearPasteButton, add->RearRemoveButton}) {
        EXPECT_FALSE(b->icon().isNull()) << b->objectName().toStdString();
        EXPECT_FALSE(b->text().isEmpty());
    }
    // Front and rear removal point different ways.
    EXPECT_NE(add->FrontRemoveButton->icon().pixmap(20).toImage(),
              add->RearRemoveButton->icon().pixmap(20).toImage());
}
