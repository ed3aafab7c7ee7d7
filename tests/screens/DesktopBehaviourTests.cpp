// The program as a desktop user meets it: keys on the real screens, closing the window, a
// desktop without a web browser, a designed stop told in the window.
#include "ScreenFixture.h"
#include "platform/DesktopServices.h"
#include "platform/kit/FatalMessage.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/list/MainListTableViewController.h"

#include <QMessageBox>
#include <QPointer>
#include <QTimer>

class DesktopTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* focus = window->focusWidget();
        QTest::keyClick(focus ? focus : window.get(), Qt::Key(key), modifiers);
        QApplication::processEvents();
    }
};

TEST_F(DesktopTest, TheMainListAndTheAddFormAnswerTheKeyboard) {
    addCoin("Penny", 1950);
    addCoin("Dime", 1960);
    auto* list = openList();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(window->focusWidget(), list->tableView->listView());

    // Typing searches; Escape clears the search and then goes down to the rows.
    QTest::keyClicks(window->focusWidget(), "Di");
    EXPECT_EQ(list->searchController->text(), "Di");
    EXPECT_TRUE(list->searchController->isActive());
    press(Qt::Key_Escape);
    EXPECT_EQ(list->searchController->text(), "");
    press(Qt::Key_Escape);
    EXPECT_EQ(window->focusWidget(), list->tableView->listView());

    // Enter opens the row as a tap does; Escape comes back.
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_NE(topAs<EditViewController>(), nullptr);
    press(Qt::Key_Escape);
    EXPECT_EQ(top(), list);

    // Ctrl+S is the form's Save: with the required fields empty it says so and saves nothing.
    list->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    ASSERT_NE(add, nullptr);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(alertText(), "Record not Saved! / Required Fields in RED not Entered");
    press(Qt::Key_Return);
    EXPECT_EQ(AlertController::current(), nullptr);
    add->DenominationTextField->setFocus();
    QTest::keyClicks(add->DenominationTextField, "Nickel");
    add->YearTextField->setFocus();
    QTest::keyClicks(add->YearTextField, "1970");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(top(), list);
    EXPECT_EQ(all<Coins>().size(), 3);
}

// The window closing ends the program on every screen, also where rows were drawn.
TEST_F(DesktopTest, ClosingTheWindowEndsTheProgramWhicheverScreenShows) {
    addCoin("Penny", 1950);
    for (const char* segue : {"", "ListCoins", "RateShare", "TabBarController"}) {
        window = std::make_unique<Window>(menu = new MainMenuViewController);
        window->show();
        if (*segue)
            menu->performSegue(segue);
        window->grab(); // the rows are drawn, as on screen
        bool stuck = false;
        QTimer guard; // gone with this round, so it never fires into the next
        guard.setSingleShot(true);
        QObject::connect(&guard, &QTimer::timeout, [&stuck] {
            stuck = true;
            QApplication::exit(1);
        });
        guard.start(3000);
        QTimer::singleShot(0, window.get(), [this] { window->close(); });
        EXPECT_EQ(QApplication::exec(), 0) << segue;
        EXPECT_FALSE(stuck) << segue;
    }
}

TEST_F(DesktopTest, ADesktopWithoutWebBrowserSaysSo) {
    QList<QUrl> asked;
    Platform::install(std::make_unique<DesktopWebBrowser>([&](const QUrl& url) {
        asked << url;
        return false;
    }));
    menu->performSegue("RateShare");
    auto* rateShare = dynamic_cast<TableViewDataSource*>(top());
    ASSERT_NE(rateShare, nullptr);
    rateShare->didSelectRow(top()->findChild<TableView*>(), {0, 3}); // the product page
    ASSERT_EQ(asked.size(), 1);
    auto* alert = AlertController::current();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->title(), "Can't Open Web Page");
    EXPECT_TRUE(alert->message().contains(asked.first().toDisplayString()));
    EXPECT_EQ(alert->window(), window.get());
}

TEST_F(DesktopTest, ADesignedStopIsShownWithoutALoopOfItsOwn) {
    // The box opens and returns at once; the caller's loop shows it, and closing it deletes it.
    QPointer<QMessageBox> box = FatalMessage::open("Unresolved error disk full");
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->windowTitle(), "Fatal error");
    EXPECT_EQ(box->text(), "Unresolved error disk full");
    box->button(QMessageBox::Ok)->click();
    EXPECT_TRUE(waitUntil([&] { return box.isNull(); }, 2000));
}
