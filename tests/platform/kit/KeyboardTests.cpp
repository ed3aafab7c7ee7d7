// The keyboard through the real kit widgets: alerts take it, screens go back and save, lists
// move, open, delete and search, pickers pick.
#include "KitFixture.h"
#include "platform/kit/PickerView.h"
#include "platform/kit/TextInput.h"

#include <QListWidget>
#include <QMenu>
#include <QShortcut>
#include <QTest>
#include <QToolButton>

namespace {
class KeyboardTest : public KitTest {
protected:
    void SetUp() override {
        KitTest::SetUp();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    QWidget* focus() { return window->focusWidget(); }
    // A key as the user presses it: to whatever has the keyboard.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* target = focus() ? focus() : window.get();
        QTest::keyClick(target, Qt::Key(key), modifiers);
        QApplication::processEvents();
    }
};
} // namespace

TEST_F(KeyboardTest, AnAlertTakesTheKeyboardFromEverythingBehindIt) {
    int shortcuts = 0;
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_K), root);
    QObject::connect(shortcut, &QShortcut::activated, [&] { ++shortcuts; });
    root->button->setFocus();
    press(Qt::Key_K, Qt::ControlModifier);
    ASSERT_EQ(shortcuts, 1); // the shortcut works while no alert is shown

    QStringList ran;
    auto* confirm =
        new AlertController("Remove Front Coin Image", "Do You Want to Remove This Image?");
    confirm->addAction("Yes", AlertController::ActionStyle::Default, [&] { ran << "Yes"; });
    confirm->addAction("No", AlertController::ActionStyle::Cancel, [&] { ran << "No"; });
    root->present(confirm);
    EXPECT_EQ(focus(), confirm->findChild<QPushButton*>("Yes"));

    // Space and shortcuts sent to the button behind go nowhere; Enter there answers the alert.
    QTest::keyClick(root->button, Qt::Key_Space);
    QTest::keyClick(root->button, Qt::Key_K, Qt::ControlModifier);
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(root->clicks, 0);
    EXPECT_EQ(shortcuts, 1);
    EXPECT_EQ(AlertController::current(), confirm);

    // A second alert stacked on top takes the keyboard; Escape closes it (its only action) and
    // hands the keyboard back to the first.
    auto* notice = AlertController::okAlert("Clipboard", "There is no image in the Clipboard");
    root->present(notice);
    EXPECT_EQ(focus(), notice->findChild<QPushButton*>("OK"));
    press(Qt::Key_Space); // clicks OK, the focused action
    EXPECT_EQ(AlertController::current(), confirm);
    EXPECT_EQ(focus(), confirm->findChild<QPushButton*>("Yes"));

    // Tab stays within the alert's actions; Enter triggers the focused one.
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), confirm->findChild<QPushButton*>("No"));
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), confirm->findChild<QPushButton*>("Yes"));
    press(Qt::Key_Backtab);
    press(Qt::Key_Return);
    EXPECT_EQ(ran, QStringList({"No"}));
    EXPECT_EQ(AlertController::current(), nullptr);

    // The keyboard is back where it was: Space clicks the button again.
    EXPECT_EQ(focus(), root->button);
    press(Qt::Key_Space);
    EXPECT_EQ(root->clicks, 1);

    // Enter pressed behind an alert triggers its default action, Escape its cancel action.
    const std::pair<Qt::Key, QString> answers[] = {{Qt::Key_Enter, "Yes"}, {Qt::Key_Escape, "No"}};
    for (const auto& [key, expected] : answers) {
        ran.clear();
        auto* again = new AlertController("Remove", "Sure?");
        again->addAction("No", AlertController::ActionStyle::Cancel, [&] { ran << "No"; });
        again->addAction("Yes", AlertController::ActionStyle::Default, [&] { ran << "Yes"; });
        root->present(again);
        QTest::keyClick(root->button, key);
        EXPECT_EQ(ran, QStringList({expected}));
        EXPECT_EQ(root->clicks, 1);
    }
    // With several actions and none to cancel, Escape leaves the alert up.
    auto* choice =
        new AlertController("Picture", "From where?", AlertController::Style::ActionSheet);
    choice->addAction("Camera");
    choice->addAction("Files");
    root->present(choice);
    press(Qt::Key_Escape);
    EXPECT_EQ(AlertController::current(), choice);
}

TEST_F(KeyboardTest, ScreensGoBackAndSaveByKey) {
    press(Qt::Key_Escape); // the first screen has nowhere to go back to
    EXPECT_EQ(top(), root);
    root->performSegue("next");
    auto* form = top();
    ASSERT_NE(form, root);
    EXPECT_TRUE(form->isAncestorOf(focus()) || focus() == form);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(form->saves, 1);
    EXPECT_EQ(root->saves, 0);
    press(Qt::Key_Escape);
    EXPECT_EQ(top(), root);

    root->performSegue("next");
    // Keys from the bar's buttons reach the screen on top too.
    window->navigationController()->backButton()->setFocus();
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(top(), root);

    // A screen whose bar shows its own back item in place of the stack's goes back through it.
    root->performSegue("next");
    int unwound = 0;
    top()->navigationItem().hidesBackButton = true;
    top()->navigationItem().leftItems = {
        {QStringLiteral("\u2039 Back"), [&] { ++unwound; }, nullptr, QStringLiteral("BackButton")}};
    top()->updateNavigationBar();
    QApplication::processEvents(); // the bar shows its new items
    press(Qt::Key_Escape);
    EXPECT_EQ(unwound, 1);

    // No key reaches a screen while an alert is up.
    root->present(
        AlertController::okAlert("Record not Saved!", "Required Fields in RED not Entered"));
    QTest::keyClick(top()->button, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(top()->saves, 0);
}

TEST_F(KeyboardTest, ListsMoveOpenDeleteAndSearchByKey) {
    root->performSegue("list");
    KitScreen* list = top();
    QListView* rows = list->table->listView();
    ASSERT_EQ(focus(), rows); // a list screen opens with the keyboard on its rows

    // The arrows pass over the section headers; Enter opens the row as a tap does.
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    ASSERT_TRUE(list->table->currentRow().has_value());
    EXPECT_EQ(*list->table->currentRow(), (IndexPath{1, 0}));
    press(Qt::Key_Up);
    EXPECT_EQ(*list->table->currentRow(), (IndexPath{0, 2}));
    press(Qt::Key_Return);
    EXPECT_EQ(list->rows.opened, QList<IndexPath>({{0, 2}}));

    // Delete offers the swipe's actions in a menu; Enter there takes the first.
    press(Qt::Key_Delete);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().value(0)->text(), "Delete");
    QTest::keyClick(menu, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(list->rows.sections[0], QList<int>({0, 1}));

    // Typing goes on in the search field; Ctrl+F goes there too.
    list->rows.searches.clear();
    press(Qt::Key_1);
    EXPECT_EQ(focus(), list->search);
    EXPECT_EQ(list->search->text(), "1");
    EXPECT_EQ(list->rows.searches.last(), "1");
    // Escape clears the search, then goes down to the rows, then back.
    press(Qt::Key_Escape);
    EXPECT_EQ(list->search->text(), "");
    EXPECT_EQ(list->rows.searches.last(), "");
    press(Qt::Key_Escape);
    EXPECT_EQ(focus(), rows);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(focus(), list->search);
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), rows);
    press(Qt::Key_Escape);
    EXPECT_EQ(top(), root);
}

TEST_F(KeyboardTest, PickersWorkWithArrowsTypingAndEnter) {
    struct Grades : PickerViewDataSource {
        TextField* field = nullptr;
        QStringList titles{"AG-3", "AU-50", "AU-55", "MS-60"};
        int numberOfRows(PickerView*) override { return int(titles.size()); }
        QString titleForRow(PickerView*, int row) override { return titles[row]; }
        void didSelectRow(PickerView*, int row) override { field->setText(titles[row]); }
    } grades;
    auto* field = new TextField(root);
    auto* next = new QPushButton("Next", root);
    root->layout()->addWidget(field);
    root->layout()->addWidget(next);
    grades.field = field;
    PickerView picker(field);
    picker.setDataSource(&grades);
    field->setInputView(&picker);
    field->setText("AU-50");
    QApplication::processEvents();

    field->setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(picker.isOpen());
    auto* choices = picker.findChild<QListWidget*>();
    EXPECT_EQ(choices->currentRow(), 1); // starts on the field's value
    QTest::keyClick(choices, Qt::Key_Down);
    QTest::keyClick(choices, Qt::Key_Return);
    EXPECT_EQ(field->text(), "AU-55");
    EXPECT_FALSE(picker.isOpen());

    // Down opens it again; typing jumps to the matching row.
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Down);
    ASSERT_TRUE(picker.isOpen());
    QTest::keyClicks(choices, "MS");
    QTest::keyClick(choices, Qt::Key_Enter);
    EXPECT_EQ(field->text(), "MS-60");
    // Escape closes it without picking.
    QTest::keyClick(field, Qt::Key_Down);
    ASSERT_TRUE(picker.isOpen());
    QTest::keyClick(choices, Qt::Key_Up);
    QTest::keyClick(choices, Qt::Key_Escape);
    EXPECT_FALSE(picker.isOpen());
    EXPECT_EQ(field->text(), "MS-60");
    // Tab leaves the open picker for the next field.
    QTest::keyClick(field, Qt::Key_Down);
    ASSERT_TRUE(picker.isOpen());
    QTest::keyClick(choices, Qt::Key_Tab);
    EXPECT_FALSE(picker.isOpen());
    EXPECT_EQ(window->focusWidget(), next);
}
