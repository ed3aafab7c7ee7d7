// A collector keeps a reference list through the real screens, and the coin form's picker
// follows: menu, Reference Lists, the list, adds (one refused as a duplicate, two accepted
// that look alike), a rename, a value cleared to empty, a delete while searching; then the
// add coin form.
#include "ReferenceFixture.h"
#include "screens/entry/AddViewController.h"
#include "screens/reference/ReferenceListScreens.h"
#include "screens/reference/ReferenceListViewController.h"
#include "screens/reference/ReferenceValueScreens.h"

#include <QFocusEvent>
#include <QToolButton>

class ReferenceWalkthroughTest : public ReferenceScreenTest {
protected:
    struct Path {
        const char* hubButton;
        const char* entity;
        const char* attribute;
        QString value; // not among the seeded values
        const char* coinAttribute;
        TextField* CoinFormViewController::*pickerField;
        PickerView* CoinFormViewController::*picker;
    };

    QStringList stored(const Path& p) { return ReferenceScreenTest::stored(p.entity, p.attribute); }
    // Types a value on the list's add screen and saves it.
    void add(const QString& typed) {
        button("AddButton")->click();
        auto* screen = topAs<AddReferenceViewController>();
        ASSERT_NE(screen, nullptr);
        QTest::keyClicks(screen->textField, typed);
        screen->SaveButton->click();
    }
    void edit(ReferenceTableViewController* list, const QString& from, const QString& to) {
        const int row = int(shown(list).indexOf(from));
        ASSERT_GE(row, 0) << from.toStdString();
        QTest::mouseClick(list->tableView->listView()->viewport(), Qt::LeftButton, {},
                          list->tableView->listView()
                              ->visualRect(list->tableView->listView()->model()->index(row, 0))
                              .center());
        auto* screen = topAs<EditReferenceViewController>();
        ASSERT_NE(screen, nullptr);
        EXPECT_EQ(screen->textField->text(), from);
        screen->textField->selectAll();
        QTest::keyClick(screen->textField, Qt::Key_Delete);
        QTest::keyClicks(screen->textField, to);
        screen->SaveButton->click();
        EXPECT_EQ(top(), list);
    }

    void walk(const Path& p) {
        const QString v = p.value;
        auto coin = addCoin("Cent", 1909);
        coin->setValue(QString::fromLatin1(p.coinAttribute), v);
        ASSERT_FALSE(ctx().save().has_value());

        menu->HandleButtonClick();
        ASSERT_TRUE(menu->ReferenceListButton->isEnabled());
        QTest::mouseClick(menu->ReferenceListButton, Qt::LeftButton);
        ASSERT_NE(topAs<ReferenceListViewController>(), nullptr);
        QTest::mouseClick(button(p.hubButton), Qt::LeftButton);
        auto* list = topAs<ReferenceTableViewController>();
        ASSERT_NE(list, nullptr);
        ASSERT_TRUE(waitUntil([&] { return !list->List.isEmpty(); }));
        const int seeded = int(list->List.size());

        add(v);
        ASSERT_EQ(top(), list);
        EXPECT_TRUE(shown(list).contains(v));
        add(v);
        auto* alert = AlertController::current();
        ASSERT_NE(alert, nullptr);
        EXPECT_EQ(alert->message(), "Duplicates not allowed");
        alert->triggerAction("OK");
        window->navigationController()->backButton()->click();
        ASSERT_EQ(top(), list);
        add(v.toLower());
        add(v + " ");
        EXPECT_EQ(stored(p).count(v), 2);
        EXPECT_EQ(list->List.size(), seeded + 3);

        edit(list, v, v + "-10");
        EXPECT_EQ(stored(p).count(v), 1); // only the first of the two was renamed
        EXPECT_TRUE(stored(p).contains(v + "-10"));
        edit(list, v.toLower(), QString());
        EXPECT_TRUE(stored(p).contains(QString()));
        EXPECT_TRUE(shown(list).contains(QString()));
        EXPECT_FALSE(stored(p).contains(v.toLower()));

        QTest::keyClicks(list->searchController, v.toLower());
        const int row = int(shown(list).indexOf(v + "-10"));
        ASSERT_GE(row, 0);
        EXPECT_TRUE(list->tableView->triggerSwipeAction({0, row}, "delete"));
        EXPECT_FALSE(shown(list).contains(v + "-10"));
        EXPECT_FALSE(stored(p).contains(v + "-10"));
        list->searchController->clear();
        EXPECT_TRUE(shown(list).contains(v + "-10")); // until the next fetch

        // The add coin form's picker offers the list as it is now; the coin kept its text.
        window->navigationController()->popToRootViewController(false);
        menu->performSegue("AddCoin");
        auto* form = topAs<AddViewController>();
        ASSERT_NE(form, nullptr);
        QFocusEvent focus(QEvent::FocusIn, Qt::MouseFocusReason);
        QApplication::sendEvent(form->*p.pickerField, &focus);
        PickerView* picker = form->*p.picker;
        EXPECT_TRUE(picker->isOpen());
        EXPECT_EQ(picker->titles(), stored(p));
        EXPECT_TRUE(picker->titles().contains(v));
        EXPECT_TRUE(picker->titles().contains(QString()));
        EXPECT_FALSE(picker->titles().contains(v + "-10"));
        EXPECT_FALSE(picker->titles().contains(v.toLower()));
        picker->close();
        EXPECT_EQ(coin->value(QString::fromLatin1(p.coinAttribute)).toString(), v);
    }
};

TEST_F(ReferenceWalkthroughTest, GradesFeedTheCoinFormsPicker) {
    walk({"GradeNumberButton", "GradeNumbers", "grade", "VF", "gradeNumber",
          &CoinFormViewController::GradeNumberTextField, &CoinFormViewController::GradePickerView});
}

TEST_F(ReferenceWalkthroughTest, EdgesFeedTheCoinFormsPicker) {
    walk({"EdgeButton", "CoinEdge", "edge", "Lettered", "edge",
          &CoinFormViewController::EdgeTextField, &CoinFormViewController::EdgePickerView});
}
