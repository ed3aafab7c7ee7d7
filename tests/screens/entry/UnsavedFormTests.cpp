// Leaving a coin form that holds changes by the bar's back button, Escape, Alt+Left or closing
// the window asks first; an unchanged form leaves at once. So does going to the notes.
#include "../ScreenFixture.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/list/MainListTableViewController.h"

#include <QToolButton>

class UnsavedFormTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        // The window is closed here; that must not end the test program.
        QApplication::setQuitOnLastWindowClosed(false);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    void TearDown() override {
        ScreenTest::TearDown();
        QApplication::setQuitOnLastWindowClosed(true);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* focus = window->focusWidget();
        QTest::keyClick(focus ? focus : window.get(), Qt::Key(key), modifiers);
        QApplication::processEvents();
    }
    void type(TextField* field, const char* text) {
        field->setFocus();
        QTest::keyClicks(field, text);
    }
    // The prompt shown now, with its answers, or empty.
    static QString prompt() {
        auto* a = AlertController::current();
        return a ? a->title() + " / " + a->actionTitles().join(", ") : QString();
    }
    static void answer(const char* action) {
        ASSERT_NE(AlertController::current(), nullptr);
        AlertController::current()->triggerAction(action);
        QApplication::processEvents();
    }
    AddViewController* openAdd(MainListTableViewController* list) {
        list->performSegue("AddCoin");
        return topAs<AddViewController>();
    }
    const QString kPrompt = QStringLiteral("Discard changes? / Discard, Keep Editing");
};

TEST_F(UnsavedFormTest, TheAddFormAsksBeforeEscapeAltLeftOrClosingThrowChangesAway) {
    auto* list = openList();
    // Nothing typed: Escape and Alt+Left leave at once.
    for (const auto& [key, modifiers] :
         {std::pair{Qt::Key_Escape, Qt::NoModifier}, std::pair{Qt::Key_Left, Qt::AltModifier}}) {
        ASSERT_NE(openAdd(list), nullptr);
        press(key, modifiers);
        EXPECT_EQ(prompt(), "");
        EXPECT_EQ(top(), list);
    }

    auto* add = openAdd(list);
    type(add->DenominationTextField, "Nickel");
    press(Qt::Key_Escape);
    EXPECT_EQ(prompt(), kPrompt);
    // Escape on the prompt keeps editing, as Keep Editing does; so does Enter pressed by habit.
    press(Qt::Key_Escape);
    EXPECT_EQ(prompt(), "");
    EXPECT_EQ(top(), add);
    EXPECT_EQ(add->DenominationTextField->text(), "Nickel");
    press(Qt::Key_Escape);
    EXPECT_EQ(prompt(), kPrompt);
    press(Qt::Key_Return);
    EXPECT_EQ(prompt(), "");
    EXPECT_EQ(top(), add);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(prompt(), kPrompt);
    answer("Discard");
    EXPECT_EQ(top(), list);
    EXPECT_TRUE(all<Coins>().isEmpty());

    // A text typed and taken back again is no change.
    add = openAdd(list);
    type(add->YearTextField, "19");
    QTest::keyClick(add->YearTextField, Qt::Key_Backspace);
    QTest::keyClick(add->YearTextField, Qt::Key_Backspace);
    press(Qt::Key_Escape);
    EXPECT_EQ(prompt(), "");
    EXPECT_EQ(top(), list);

    // A picture is a change too.
    add = openAdd(list);
    fakes.imagePicker->camera = true;
    fakes.imagePicker->next = QImage(30, 40, QImage::Format_RGB32);
    add->FrontCameraButton->click();
    press(Qt::Key_Escape);
    EXPECT_EQ(prompt(), kPrompt);
    answer("Discard");
    EXPECT_EQ(top(), list);

    // Closing the window: Keep Editing leaves it open, Discard closes it.
    add = openAdd(list);
    add->PeriodTextField->setText("Modern");
    EXPECT_FALSE(window->close());
    EXPECT_EQ(prompt(), kPrompt);
    EXPECT_FALSE(window->close()); // asked once, not twice
    answer("Keep Editing");
    EXPECT_EQ(AlertController::current(), nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->close());
    answer("Discard");
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(all<Coins>().isEmpty());
}

TEST_F(UnsavedFormTest, TheEditFormAsksOnlyWhenItDiffersFromTheCoinItOpenedWith) {
    auto coin = addCoin("Quarter", 1999, 2, 0.25f, "USA", "D");
    coin->setFrontImage(coinPicture(Qt::red));
    coin->setBackImage(coinPicture(Qt::blue));
    ASSERT_TRUE(ctx().save().ok());
    auto* list = openList();
    auto open = [&] {
        list->tableView->selectRow({0, 0});
        return topAs<EditViewController>();
    };
    auto* edit = open();
    ASSERT_NE(edit, nullptr);
    // Opened and left alone (the value reads 0.25, the pictures as stored): no question.
    press(Qt::Key_Escape);
    EXPECT_EQ(prompt(), "");
    EXPECT_EQ(top(), list);

    edit = open();
    type(edit->QuantityTextField, "5");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(prompt(), kPrompt);
    answer("Keep Editing");
    EXPECT_EQ(edit->QuantityTextField->text(), "25");
    press(Qt::Key_Escape);
    answer("Discard");
    EXPECT_EQ(top(), list);
    EXPECT_EQ(coin->quantity(), 2);
    EXPECT_FALSE(ctx().hasChanges());

    // A picture removed is saved at once: nothing is left to lose.
    edit = open();
    edit->RemoveBackImage();
    answer("Yes");
    EXPECT_FALSE(coin->hasValue(Coins::Attr::backImage));
    press(Qt::Key_Escape);
    EXPECT_EQ(prompt(), "");
    EXPECT_EQ(top(), list);
}

// The bar's back button ("‹ Coins") asks as Escape does, on the add form and the edit form.
TEST_F(UnsavedFormTest, TheBackButtonAsksBeforeThrowingChangesAway) {
    auto coin = addCoin("Quarter", 1999, 2, 0.25f, "USA", "D");
    auto* list = openList();
    auto back = [&] {
        QAbstractButton* button = window->navigationController()->backButton();
        EXPECT_TRUE(button->isVisible());
        button->click();
        QApplication::processEvents();
    };
    auto openEdit = [&] {
        list->tableView->selectRow({0, 0});
        return topAs<EditViewController>();
    };

    // Unchanged: both leave at once.
    ASSERT_NE(openAdd(list), nullptr);
    back();
    EXPECT_EQ(prompt(), "");
    EXPECT_EQ(top(), list);
    ASSERT_NE(openEdit(), nullptr);
    back();
    EXPECT_EQ(prompt(), "");
    EXPECT_EQ(top(), list);

    // The add form: Keep Editing stays with the text; Discard leaves and saves nothing.
    auto* add = openAdd(list);
    type(add->DenominationTextField, "Nickel");
    type(add->YearTextField, "1950");
    back();
    EXPECT_EQ(prompt(), kPrompt);
    answer("Keep Editing");
    EXPECT_EQ(top(), add);
    EXPECT_EQ(add->DenominationTextField->text(), "Nickel");
    back();
    EXPECT_EQ(prompt(), kPrompt);
    answer("Discard");
    EXPECT_EQ(top(), list);
    EXPECT_EQ(all<Coins>().size(), 1);

    // The edit form the same; the coin keeps what it had.
    auto* edit = openEdit();
    type(edit->QuantityTextField, "7");
    back();
    EXPECT_EQ(prompt(), kPrompt);
    answer("Keep Editing");
    EXPECT_EQ(top(), edit);
    EXPECT_EQ(edit->QuantityTextField->text(), "27");
    back();
    answer("Discard");
    EXPECT_EQ(top(), list);
    EXPECT_EQ(coin->quantity(), 2);
    EXPECT_FALSE(ctx().hasChanges());
}

// The notes come back to a form filled from the coin again: changes are saved, dropped or kept
// on the form first, as the user says.
TEST_F(UnsavedFormTest, TheNotesButtonAsksToSaveChangesFirst) {
    auto coin = addCoin("Quarter", 1999, 2, 0.25f, "USA", "D");
    auto* list = openList();
    list->tableView->selectRow({0, 0});
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    auto notesShown = [&] { return top() && top()->title() == "Notes"; };
    const QString notesPrompt = QStringLiteral("Save Changes? / Save, Discard, Keep Editing");

    // Unchanged: straight to the notes.
    edit->NotesButton->click();
    EXPECT_EQ(prompt(), "");
    EXPECT_TRUE(notesShown());
    window->navigationController()->backButton()->click();
    QApplication::processEvents();
    ASSERT_EQ(top(), edit);

    // Keep Editing stays on the form with the change.
    type(edit->CountryTextField, "X");
    edit->NotesButton->click();
    EXPECT_EQ(prompt(), notesPrompt);
    answer("Keep Editing");
    EXPECT_EQ(top(), edit);
    EXPECT_EQ(edit->CountryTextField->text(), "USAX");
    EXPECT_EQ(coin->country(), "USA");

    // Discard: the form shows the coin again, nothing is written, and the notes open.
    edit->NotesButton->click();
    answer("Discard");
    EXPECT_TRUE(notesShown());
    EXPECT_EQ(coin->country(), "USA");
    EXPECT_FALSE(ctx().hasChanges());
    window->navigationController()->backButton()->click();
    QApplication::processEvents();
    ASSERT_EQ(top(), edit);
    EXPECT_EQ(edit->CountryTextField->text(), "USA");
    EXPECT_FALSE(edit->hasUnsavedChanges());

    // Save: written as the Save button writes it, then the notes; coming back keeps it.
    type(edit->QuantityTextField, "5");
    edit->NotesButton->click();
    answer("Save");
    EXPECT_TRUE(notesShown());
    EXPECT_EQ(coin->quantity(), 25);
    EXPECT_FALSE(ctx().hasChanges());
    window->navigationController()->backButton()->click();
    QApplication::processEvents();
    ASSERT_EQ(top(), edit);
    EXPECT_EQ(edit->QuantityTextField->text(), "25");
    EXPECT_FALSE(edit->hasUnsavedChanges());
}
