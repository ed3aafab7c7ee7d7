#include "KitFixture.h"
#include "platform/kit/Symbols.h"
#include "platform/kit/TextInput.h"

#include <QAction>
#include <QClipboard>
#include <QTest>

TEST_F(KitTest, SeguesHandOverAndUnwindToTheOwner) {
    EXPECT_EQ(lifecycle, QStringList({"First:load", "First:willAppear", "First:didAppear"}));
    lifecycle.clear();
    root->performSegue("next");
    KitScreen* second = top();
    EXPECT_EQ(second->title(), "Second");
    EXPECT_EQ(second->handedOver, "First");
    EXPECT_EQ(lifecycle, QStringList({"Second:load", "First:willDisappear", "Second:willAppear",
                                      "First:didDisappear", "Second:didAppear"}));
    second->performSegue("third");
    top()->performSegue("modal");
    KitScreen* modal = top();
    EXPECT_EQ(modal->title(), "Third"); // a modal screen sits in a stack of its own
    ViewController* presented = nullptr;
    for (auto* nav : window->findChildren<NavigationController*>())
        if (nav->presentingViewController())
            presented = nav->topViewController();
    ASSERT_NE(presented, nullptr);
    EXPECT_EQ(presented->title(), "Modal");

    int unwound = 0;
    root->registerUnwindAction("unwindToFirst", [&](StoryboardSegue& s) {
        ++unwound;
        EXPECT_EQ(s.source, presented);
    });
    second->registerUnwindAction("unwindToSecond", [&](StoryboardSegue&) { unwound += 10; });
    EXPECT_FALSE(presented->performUnwind("unwindToNowhere"));
    lifecycle.clear();
    EXPECT_TRUE(presented->performUnwind("unwindToFirst")); // through the modal and two pushes
    EXPECT_EQ(unwound, 1);
    EXPECT_EQ(top(), root);
    EXPECT_TRUE(lifecycle.contains("First:didAppear"));
    QApplication::processEvents();
    EXPECT_EQ(window->navigationController()->viewControllers().size(), 1);
    EXPECT_DEATH(root->performSegue("missing"), "Fatal error");
}

TEST_F(KitTest, AlertsRunWithoutBlockingAndTriggerByTitle) {
    QStringList ran;
    auto* alert =
        new AlertController("Remove Front Coin Image", "Do You Want to Remove This Image?");
    alert->addAction("Yes", AlertController::ActionStyle::Default, [&] { ran << "Yes"; });
    alert->addAction("No", AlertController::ActionStyle::Cancel);
    root->present(alert); // returns at once: no nested loop
    ran << "after present";
    ASSERT_EQ(AlertController::current(), alert);
    EXPECT_EQ(root->presentedAlert(), alert);
    EXPECT_EQ(alert->actionTitles(), QStringList({"Yes", "No"}));
    EXPECT_FALSE(alert->triggerAction("Maybe"));
    EXPECT_TRUE(alert->triggerAction("Yes"));
    EXPECT_EQ(ran, QStringList({"after present", "Yes"}));
    EXPECT_EQ(AlertController::current(), nullptr);

    // A real click on the button does the same.
    auto* ok = AlertController::okAlert("Clipboard", "There is no image in the Clipboard");
    root->present(ok);
    QTest::mouseClick(ok->findChild<QPushButton*>("OK"), Qt::LeftButton);
    EXPECT_EQ(AlertController::current(), nullptr);
}

namespace {
struct DigitsOnly : TextInputDelegate {
    QStringList asked;
    bool shouldChangeCharacters(QObject*, int start, int length, const QString& r) override {
        asked << QStringLiteral("%1,%2,%3").arg(start).arg(length).arg(r);
        for (QChar c : r)
            if (!c.isDigit())
                return false;
        return true;
    }
};
} // namespace

TEST_F(KitTest, TextInputsAskBeforeEveryInsertion) {
    DigitsOnly filter;
    auto* field = new TextField(root);
    field->setDelegate(&filter);
    field->show();
    field->setFocus();
    QTest::keyClicks(field, "19a6");
    EXPECT_EQ(field->text(), "196");
    QApplication::clipboard()->setText("0x");
    field->paste();
    EXPECT_EQ(field->text(), "196");
    QApplication::clipboard()->setText("05");
    field->paste();
    EXPECT_EQ(field->text(), "19605");
    EXPECT_EQ(filter.asked.last(), "3,0,05");
    QTest::keyClick(field, Qt::Key_Backspace); // deletion is asked too, and allowed here
    EXPECT_EQ(field->text(), "1960");

    auto* view = new TextView(root);
    view->setDelegate(&filter);
    view->show();
    view->setText("12");
    view->moveCursor(QTextCursor::End);
    QTest::keyClicks(view, "3");
    QTest::keyClick(view, Qt::Key_Return);
    QTest::keyClicks(view, "4");
    EXPECT_EQ(view->text(), "1234");
    QApplication::clipboard()->setText("5 6");
    view->paste();
    EXPECT_EQ(view->text(), "1234");
}

TEST_F(KitTest, TableDrawsOnlyVisibleRowsAndDeletesBySwipe) {
    KitRows source;
    source.sections = {{}};
    for (int i = 0; i < 32000; ++i)
        source.sections[0] << i;
    auto* table = new TableView(root);
    table->registerCell("Cell", [] { return new KitCell; });
    table->setDataSource(&source);
    table->setGeometry(0, 0, 390, 700);
    table->show();
    QApplication::processEvents();
    table->grab();
    EXPECT_GT(source.cellsAsked, 0);
    EXPECT_LT(source.cellsAsked, 40); // a screenful, not 32,000
    EXPECT_EQ(table->headerTitle(0), "32000 rows");

    EXPECT_TRUE(table->triggerSwipeAction({0, 2}, "Delete"));
    EXPECT_EQ(table->numberOfRows(0), 31999);
    EXPECT_EQ(source.sections[0][2], 3);

    // A real left drag on row 0 reveals the button; clicking it deletes the row.
    QWidget* vp = table->listView()->viewport();
    const QRect r =
        table->listView()->visualRect(table->listView()->model()->index(table->listRow({0, 0}), 0));
    QTest::mousePress(vp, Qt::LeftButton, {}, QPoint(300, r.center().y()));
    QMouseEvent move(QEvent::MouseMove, QPointF(200, r.center().y()),
                     vp->mapToGlobal(QPointF(200, r.center().y())), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(vp, &move);
    QTest::mouseRelease(vp, Qt::LeftButton, {}, QPoint(200, r.center().y()));
    EXPECT_EQ(table->revealedRow(), table->listRow({0, 0}));
    QTest::mouseClick(vp, Qt::LeftButton, {}, QPoint(r.right() - 20, r.center().y()));
    EXPECT_EQ(source.sections[0].first(), 1);
    EXPECT_EQ(table->numberOfRows(0), 31998);
}

// Symbols come from the resources in the colour asked for; a bar button shows its symbol
// instead of its title, and a name the resources lack leaves the title.
TEST_F(KitTest, SymbolsAreTintedAndShownOnBarButtons) {
    EXPECT_TRUE(Symbols::exists("plus"));
    EXPECT_FALSE(Symbols::exists("no.such.symbol"));
    EXPECT_TRUE(Symbols::icon("no.such.symbol").isNull());
    const QImage plus = Symbols::icon("plus", 22, Qt::red).pixmap(22, 22).toImage();
    ASSERT_FALSE(plus.isNull());
    const QColor centre = plus.pixelColor(plus.width() / 2, plus.height() / 2);
    EXPECT_EQ(centre.red(), 255);
    EXPECT_EQ(centre.green(), 0);
    EXPECT_EQ(plus.pixelColor(0, 0).alpha(), 0); // outside the drawing

    root->navigationItem().rightItems = {
        {"Sort", [] {}, nullptr, "SortButton", "arrow.up.arrow.down"},
        {"Other", [] {}, nullptr, "OtherButton", "no.such.symbol"}};
    root->updateNavigationBar();
    QApplication::processEvents(); // the bar shows its new items
    auto* sort = window->findChild<QPushButton*>("SortButton");
    ASSERT_NE(sort, nullptr);
    EXPECT_FALSE(sort->icon().isNull());
    EXPECT_TRUE(sort->text().isEmpty());
    EXPECT_EQ(sort->toolTip(), "Sort");
    EXPECT_EQ(window->findChild<QPushButton*>("OtherButton")->text(), "Other");

    // The search field's clear button appears with a text and empties the field.
    SearchController search;
    QStringList heard;
    search.searchResultsUpdater = [&](SearchController* s) { heard << s->text(); };
    auto* clear = search.findChild<QAction*>("ClearButton");
    ASSERT_NE(clear, nullptr);
    EXPECT_FALSE(clear->isVisible());
    search.setText("VF");
    EXPECT_TRUE(clear->isVisible());
    clear->trigger();
    EXPECT_EQ(search.text(), "");
    EXPECT_FALSE(clear->isVisible());
    EXPECT_EQ(heard, QStringList({"VF", ""}));
}
