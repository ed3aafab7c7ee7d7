// Layout at phone and desktop widths, the bar's Save, long texts, dark borders and where a
// list stands after a sort or search, through the real screens.
#include "ScreenFixture.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/Elide.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/NotesViewController.h"
#include "screens/list/MainListTableViewController.h"
#include "screens/reference/ReferenceListScreens.h"
#include "screens/reference/ReferenceValueScreens.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

class LayoutTest : public ScreenTest {
protected:
    void settle() {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    MainListTableViewController* listOf(int coins) {
        for (int i = 0; i < coins; ++i)
            addCoin(QStringLiteral("%1 Cents").arg(i, 3, 10, QLatin1Char('0')), 1900 + i);
        return openList();
    }
};

TEST_F(LayoutTest, ADesktopWindowCentresAReadableColumnAndAPhoneWindowUsesItAll) {
    auto* list = listOf(3);
    // Cards keep the readable column (the table, a wide window's default, takes the width).
    CoinListView::choose(CoinListView::Presentation::Cards);
    window->resize(1280, 900);
    settle();
    EXPECT_EQ(list->width(), ViewController::kReadableWidth);
    const int left = list->mapTo(window.get(), QPoint(0, 0)).x();
    EXPECT_NEAR(left, (1280 - ViewController::kReadableWidth) / 2, 1);
    // The bar stands over the column: its Add button sits at the column's right edge.
    list->performSegue("AddCoin");
    settle();
    QPushButton* save = button("SaveButtonInBar");
    ASSERT_NE(save, nullptr);
    EXPECT_LE(save->mapTo(window.get(), QPoint(save->width(), 0)).x(),
              left + ViewController::kReadableWidth);

    window->resize(400, 800);
    settle();
    EXPECT_EQ(top()->width(), 400);
    // Nothing in the bar runs off a phone-sized window, even beside a long back title.
    window->navigationController()->popViewController(false);
    list->tableView->selectRow({0, 0});
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    edit->setTitle(QStringLiteral("A very long title for a coin that does not fit the bar"));
    settle();
    for (QWidget* w : {static_cast<QWidget*>(button("SaveButtonInBar")),
                       static_cast<QWidget*>(button("ShareButton")),
                       static_cast<QWidget*>(window->navigationController()->backButton())}) {
        ASSERT_NE(w, nullptr);
        EXPECT_TRUE(w->isVisible());
        EXPECT_LE(w->mapTo(window.get(), QPoint(w->width(), 0)).x(), 400);
    }
}

TEST_F(LayoutTest, TheBarsSaveDoesWhatTheFormsSaveDoes) {
    openList()->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    ASSERT_NE(button("SaveButtonInBar"), nullptr);
    EXPECT_EQ(button("SaveButtonInBar")->text(), "Save");
    button("SaveButtonInBar")->click();
    EXPECT_EQ(alertText(), "Record not Saved! / Required Fields in RED not Entered");
    dismissAlert();
    add->DenominationTextField->setText("Dime");
    add->YearTextField->setText("1964");
    button("SaveButtonInBar")->click();
    ASSERT_EQ(all<Coins>().size(), 1);
    EXPECT_EQ(all<Coins>().first()->denomination(), "Dime");
    EXPECT_NE(topAs<MainListTableViewController>(), nullptr);

    // Notes: the bar's button saves the text and returns.
    auto* list = topAs<MainListTableViewController>();
    list->tableView->selectRow({0, 0});
    auto* edit = topAs<EditViewController>();
    edit->NotesButton->click();
    topAs<NotesViewController>()->NotesTextView->setText("From the bar");
    button("SaveButtonInBar")->click();
    EXPECT_EQ(top(), edit);
    EXPECT_EQ(all<Coins>().first()->notes(), "From the bar");

    // A reference value: the bar's button carries the form button's name and action.
    window->navigationController()->popToRootViewController(false);
    menu->performSegue("ReferenceLists");
    top()->performSegue("EdgeList");
    top()->performSegue("AddEdge");
    auto* addEdge = topAs<AddEdgeViewController>();
    ASSERT_NE(addEdge, nullptr);
    addEdge->textField->setText("Milled twice");
    ASSERT_NE(button("SaveEdgeInBar"), nullptr);
    button("SaveEdgeInBar")->click();
    bool stored = false;
    for (const auto& edge : all<CoinEdge>())
        stored = stored || edge->edge() == "Milled twice";
    EXPECT_TRUE(stored);

    // The bar's button is enabled with the form's.
    openList()->performSegue("AddCoin");
    topAs<AddViewController>()->SaveButton->setEnabled(false);
    EXPECT_FALSE(button("SaveButtonInBar")->isEnabled());
}

TEST_F(LayoutTest, AfterASortOrASearchTheListShowsItsFirstRow) {
    auto* list = listOf(60);
    window->resize(400, 800);
    settle();
    QScrollBar* bar = list->tableView->listView()->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 0);
    bar->setValue(bar->maximum());
    list->chooseSort("By Year");
    settle();
    EXPECT_EQ(bar->value(), 0);
    bar->setValue(bar->maximum());
    list->searchController->setText("0");
    settle();
    EXPECT_EQ(bar->value(), 0);
    EXPECT_GT(list->FilteredCoinList.size(), 0);
}

TEST_F(LayoutTest, LongTextsEndAfterAWholeWord) {
    const QFontMetrics metrics(QApplication::font());
    const QString text = QStringLiteral("Twenty Five Cents Commemorative Issue");
    const int width = metrics.horizontalAdvance(QStringLiteral("Twenty Five Cents Com"));
    EXPECT_EQ(Elide::atWord(text, metrics, width), QStringLiteral("Twenty Five Cents\u2026"));
    EXPECT_EQ(Elide::atWord(text, metrics, 10000), text);
    // A first word too long on its own is cut where it must be.
    const QString cut = Elide::atWord(QStringLiteral("Supercalifragilistic coin"), metrics,
                                      metrics.horizontalAdvance(QStringLiteral("Super")));
    EXPECT_TRUE(cut.endsWith(QChar(0x2026)));
    EXPECT_LE(metrics.horizontalAdvance(cut), metrics.horizontalAdvance(QStringLiteral("Super")));

    // A row drawn with a long text keeps the text itself: only the drawing is shortened.
    auto coin = addCoin(QStringLiteral("Half Dollar ") + QString(12, u'X') +
                            QStringLiteral(" Commemorative Silver Proof Edition Issue"),
                        1964);
    auto* list = listOf(0);
    window->resize(400, 800);
    settle();
    list->grab();
    auto* cell = list->tableView->dequeueReusableCell(
        list->tableView->dataSource()->cellForRow(list->tableView, {0, 0})->reuseIdentifier);
    ASSERT_NE(cell, nullptr);
    bool whole = false;
    for (QLabel* label : cell->findChildren<QLabel*>())
        whole = whole || label->text().contains("Silver Proof Edition Issue");
    EXPECT_TRUE(whole);
    EXPECT_LE(cell->width(), list->width());
}

TEST_F(LayoutTest, DarkBordersStayVisible) {
    Appearance::setDark(true);
    const QColor window = QApplication::palette().color(QPalette::Window);
    const QColor border = Styling::visibleBorder(Qt::black);
    EXPECT_GT(qAbs(border.lightness() - window.lightness()), 80);
    openList()->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    EXPECT_TRUE(add->SaveButton->styleSheet().contains(border.name()));
    EXPECT_FALSE(add->SaveButton->styleSheet().contains(QColor(Qt::black).name() + ";"));
    Appearance::setDark(false);
    EXPECT_EQ(Styling::visibleBorder(Qt::black), QColor(Qt::black));
}
