#include "TestSupport.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/TableView.h"
#include "platform/kit/TextInput.h"
#include "platform/kit/Window.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

QStringList lifecycle;

class Screen : public ViewController {
public:
    explicit Screen(const QString& name) { setTitle(name); }
    void viewDidLoad() override { lifecycle << title() + ":load"; }
    void viewWillAppear(bool) override { lifecycle << title() + ":willAppear"; }
    void viewDidAppear(bool) override { lifecycle << title() + ":didAppear"; }
    void viewWillDisappear(bool) override { lifecycle << title() + ":willDisappear"; }
    void viewDidDisappear(bool) override { lifecycle << title() + ":didDisappear"; }
    void prepareForSegue(StoryboardSegue& segue, QObject*) override {
        if (auto* next = dynamic_cast<Screen*>(segue.destination))
            next->handedOver = title();
        prepared << segue.identifier;
    }
    QString handedOver;
    QStringList prepared;
};

class KitTest : public PelvaneTest {
protected:
    void SetUp() override {
        PelvaneTest::SetUp();
        lifecycle.clear();
        Storyboard::clear();
        Storyboard::registerSegue("next", SegueKind::Push, [] { return new Screen("Second"); });
        Storyboard::registerSegue("third", SegueKind::Push, [] { return new Screen("Third"); });
        Storyboard::registerSegue("modal", SegueKind::Modal, [] { return new Screen("Modal"); });
        root = new Screen("First");
        window = std::make_unique<Window>(root);
        window->show();
    }
    void TearDown() override {
        window.reset();
        QApplication::processEvents();
        PelvaneTest::TearDown();
    }
    Screen* top() {
        return static_cast<Screen*>(window->navigationController()->topViewController());
    }
    Screen* root = nullptr;
    std::unique_ptr<Window> window;
};

} // namespace

TEST_F(KitTest, SeguesHandOverAndUnwindToTheOwner) {
    EXPECT_EQ(lifecycle, QStringList({"First:load", "First:willAppear", "First:didAppear"}));
    lifecycle.clear();
    root->performSegue("next");
    Screen* second = top();
    EXPECT_EQ(second->title(), "Second");
    EXPECT_EQ(second->handedOver, "First");
    EXPECT_EQ(lifecycle, QStringList({"Second:load", "First:willDisappear", "Second:willAppear",
                                      "First:didDisappear", "Second:didAppear"}));
    second->performSegue("third");
    top()->performSegue("modal");
    Screen* modal = top();
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

namespace {
class Cell : public TableViewCell {
public:
    Cell()
        : label(new QLabel(this)) {
        label->setGeometry(0, 0, 300, 40);
    }
    QLabel* label;
};
struct Rows : TableViewDataSource {
    QList<int> rows;
    int cellsAsked = 0;
    int numberOfRows(TableView*, int) override { return int(rows.size()); }
    TableViewCell* cellForRow(TableView* t, IndexPath p) override {
        ++cellsAsked;
        auto* cell = static_cast<Cell*>(t->dequeueReusableCell("Cell"));
        cell->label->setText(QString::number(rows[p.row]));
        return cell;
    }
    QString titleForHeader(TableView*, int) override {
        return QStringLiteral("# Coins = %1").arg(rows.size());
    }
    QList<SwipeAction> trailingSwipeActions(TableView* t, IndexPath) override {
        return {{"delete", true, [this, t](IndexPath p) {
                     rows.removeAt(p.row);
                     t->deleteRows({p});
                 }}};
    }
};
} // namespace

TEST_F(KitTest, TableDrawsOnlyVisibleRowsAndDeletesBySwipe) {
    Rows source;
    for (int i = 0; i < 32000; ++i)
        source.rows << i;
    auto* table = new TableView(root);
    table->registerCell("Cell", [] { return new Cell; });
    table->setDataSource(&source);
    table->setGeometry(0, 0, 390, 700);
    table->show();
    QApplication::processEvents();
    table->grab();
    EXPECT_GT(source.cellsAsked, 0);
    EXPECT_LT(source.cellsAsked, 40); // a screenful, not 32,000
    EXPECT_EQ(table->headerTitle(0), "# Coins = 32000");

    EXPECT_TRUE(table->triggerSwipeAction({0, 2}, "delete"));
    EXPECT_EQ(table->numberOfRows(0), 31999);
    EXPECT_EQ(source.rows[2], 3);

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
    EXPECT_EQ(source.rows.first(), 1);
    EXPECT_EQ(table->numberOfRows(0), 31998);
}
