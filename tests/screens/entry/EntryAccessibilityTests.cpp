// What a screen reader and a translator find on the list, form, notes, zoom, journal and start
// screens; the coin form's number fields under a locale that writes a decimal comma.
#include "../ScreenFixture.h"
#include "../Walks.h"
#include "platform/kit/TableView.h"
#include "screens/CoinListView.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/NotesViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/journal/RecentChangesViewController.h"
#include "screens/journal/RecentlyDeletedViewController.h"

#include <QAccessibleInterface>
#include <QClipboard>
#include <QLabel>
#include <QRegularExpression>
#include <QTableView>
#include <QTableWidget>

namespace {
// Numbers, money and the coins' own values are data, never translated.
bool isData(const QString& text) {
    static const QStringList values = {"Morgan Dollar", "Dime", "United States",
                                       "Canada",        "CC",   "P"};
    static const QRegularExpression number(QStringLiteral("^[-+$0-9.,\\s]+$"));
    return values.contains(text) || number.match(text).hasMatch();
}

QString nameOf(QWidget* w) {
    QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
    return a ? a->text(QAccessible::Name) : QString();
}
QString descriptionOf(QWidget* w) {
    QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
    return a ? a->text(QAccessible::Description) : QString();
}
} // namespace

// Every text is asked for in the user's language from the start: the start screen included.
class MarkedScreenTest : public DollarScreenTest {
protected:
    void SetUp() override {
        QCoreApplication::installTranslator(&marking);
        DollarScreenTest::SetUp();
    }
    void TearDown() override {
        DollarScreenTest::TearDown();
        QCoreApplication::removeTranslator(&marking);
    }
    void expectNamedAndMarked(const char* screen) {
        SCOPED_TRACE(screen);
        QApplication::processEvents();
        EXPECT_EQ(Walks::unnamedControls(window.get()), QStringList());
        EXPECT_EQ(Walks::unmarkedTexts(top(), isData), QStringList());
    }
    Walks::MarkingTranslator marking;
};

TEST_F(MarkedScreenTest, EveryScreenIsNamedForAReaderAndTranslated) {
    auto coin = addCoin("Dime", 1964, 2, 3.5f, "United States", "P");
    coin->setFrontImage(coinPicture(Qt::red));
    ctx().save();
    // One coin gone, so that the recently deleted screen shows its table.
    ctx().deleteObject(addCoin("Dime", 1916, 1, 40, "United States", "D"));
    ctx().save();
    menu->HandleButtonClick();
    expectNamedAndMarked("start screen");

    auto* list = openList();
    ASSERT_NE(list, nullptr);
    expectNamedAndMarked("list, cards");
    CoinListView::choose(CoinListView::Presentation::Table);
    expectNamedAndMarked("list, table");
    CoinListView::choose(CoinListView::Presentation::Cards);

    list->performSegue("AddCoin");
    ASSERT_NE(topAs<AddViewController>(), nullptr);
    expectNamedAndMarked("add form");
    topAs<AddViewController>()->goBack();

    list->tableView->selectRow({0, 0});
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    expectNamedAndMarked("edit form");
    edit->NotesButton->click();
    ASSERT_NE(topAs<NotesViewController>(), nullptr);
    expectNamedAndMarked("notes");
    topAs<NotesViewController>()->goBack();
    QTest::mouseDClick(edit->FrontImage, Qt::LeftButton);
    ASSERT_NE(topAs<ZoomViewController>(), nullptr);
    expectNamedAndMarked("zoom");
    top()->goBack();
    top()->goBack();
    top()->goBack();

    menu->HandleButtonClick();
    menu->RecentChangesButton->click();
    auto* changes = topAs<RecentChangesViewController>();
    ASSERT_NE(changes, nullptr);
    expectNamedAndMarked("recent changes");
    changes->RecentlyDeletedButton->click();
    auto* deleted = topAs<RecentlyDeletedViewController>();
    ASSERT_NE(deleted, nullptr);
    ASSERT_TRUE(deleted->DeletedTable->isVisibleTo(deleted));
    expectNamedAndMarked("recently deleted");
}

// The form's fields carry their labels' names; the picture views and buttons say their side,
// and an empty picture says so.
TEST_F(DollarScreenTest, FormFieldsAndPicturesAreNamedBySideAndState) {
    auto* list = openList();
    EXPECT_EQ(nameOf(button("AddButton")), "Add Coin"); // the bar shows "+"
    list->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    ASSERT_NE(add, nullptr);
    EXPECT_EQ(nameOf(add->MintMarkTextField), "Mint Mark");
    EXPECT_EQ(nameOf(add->NotesTextView), "Notes");
    EXPECT_EQ(descriptionOf(add->DenominationTextField), "Required");
    EXPECT_EQ(nameOf(add->FrontCameraButton), "Front: Camera");
    EXPECT_EQ(nameOf(add->RearRemoveButton), "Back: Remove");
    EXPECT_EQ(add->FrontCameraButton->text(), "Camera"); // the title stays as seen
    EXPECT_EQ(nameOf(add->FrontImage), "Front picture");
    EXPECT_EQ(nameOf(add->BackImage), "Back picture");
    EXPECT_EQ(descriptionOf(add->FrontImage), "No picture");

    QImage photo(40, 40, QImage::Format_RGB32);
    photo.fill(Qt::blue);
    QApplication::clipboard()->setImage(photo);
    add->FrontPasteButton->click();
    EXPECT_EQ(descriptionOf(add->FrontImage), "");
    EXPECT_EQ(descriptionOf(add->BackImage), "No picture");
}

// A row is read as the card shows it, in both views; the table's titles are column headers.
TEST_F(DollarScreenTest, ListRowsAreReadAsACollectorSeesThem) {
    addCoin("Morgan Dollar", 1884, 1, 385, "United States", "CC");
    addCoin("Dime", 1964, 0, 2.5f, "", "P");
    auto* list = openList();
    ASSERT_NE(list, nullptr);
    const QString morgan =
        "Morgan Dollar, 1884, mint mark CC, quantity 1, value $385.00, United States";
    // The list counts a quantity of 0 as one coin, and a coin without a country says none.
    const QString dime = "Dime, 1964, mint mark P, quantity 1, value $2.50";

    QAccessibleInterface* cards =
        QAccessible::queryAccessibleInterface(list->tableView->listView());
    ASSERT_NE(cards, nullptr);
    QStringList read;
    for (int i = 0; i < cards->childCount(); ++i)
        read << cards->child(i)->text(QAccessible::Name);
    EXPECT_TRUE(read.contains(morgan)) << read.join(" | ").toStdString();
    EXPECT_TRUE(read.contains(dime)) << read.join(" | ").toStdString();

    CoinListView::choose(CoinListView::Presentation::Table);
    QTableView* grid = list->tableView->gridView();
    ASSERT_TRUE(grid->isVisible());
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(grid);
    ASSERT_NE(table, nullptr);
    ASSERT_NE(table->tableInterface(), nullptr);
    const int row = int(list->CoinList.indexOf(list->CoinList.first()->denomination() == "Dime"
                                                   ? list->CoinList.last()
                                                   : list->CoinList.first()));
    QAccessibleInterface* denomination =
        table->tableInterface()->cellAt(row, CoinListView::Denomination);
    ASSERT_NE(denomination, nullptr);
    EXPECT_EQ(denomination->text(QAccessible::Name), "Morgan Dollar");
    EXPECT_EQ(denomination->text(QAccessible::Description), morgan);
    EXPECT_EQ(table->tableInterface()->cellAt(row, CoinListView::Picture)->text(QAccessible::Name),
              "No picture");
    const QList<QAccessibleInterface*> headers =
        denomination->tableCellInterface()->columnHeaderCells();
    ASSERT_EQ(headers.size(), 1);
    EXPECT_EQ(headers[0]->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(headers[0]->text(QAccessible::Name), "Denomination");
}

// Under a locale writing "2,50", the comma is the decimal separator: typed or pasted, it is
// kept as the point the catalogue stores. A refused character is said beside its field.
TEST_F(DollarScreenTest, NumberFieldsTakeTheLocalesDecimalSeparatorAndSayWhatTheyRefuse) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    openList()->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    ASSERT_NE(add, nullptr);
    QLabel* notice = add->refusedNotice(add->DiameterTextField);
    ASSERT_NE(notice, nullptr);
    EXPECT_FALSE(notice->isVisibleTo(add));

    QTest::keyClicks(add->ValueTextField, "2,50");
    EXPECT_EQ(add->ValueTextField->text(), "2.50");
    QApplication::clipboard()->setText("3,75");
    add->WeightTextField->paste();
    EXPECT_EQ(add->WeightTextField->text(), "3.75");

    QTest::keyClicks(add->DiameterTextField, "1a");
    EXPECT_EQ(add->DiameterTextField->text(), "1");
    EXPECT_TRUE(notice->isVisibleTo(add));
    EXPECT_EQ(notice->text(), "\u201Ca\u201D is not accepted here");
    QTest::keyClicks(add->DiameterTextField, "9");
    EXPECT_EQ(add->DiameterTextField->text(), "19");
    EXPECT_FALSE(notice->isVisibleTo(add));
    // A whole number takes no separator at all, and says so.
    QTest::keyClicks(add->YearTextField, "18,84");
    EXPECT_EQ(add->YearTextField->text(), "1884");
    QTest::keyClicks(add->QuantityTextField, ",");
    EXPECT_EQ(add->refusedNotice(add->QuantityTextField)->text(),
              "\u201C,\u201D is not accepted here");
    EXPECT_TRUE(add->refusedNotice(add->QuantityTextField)->isVisibleTo(add));
    EXPECT_FALSE(add->refusedNotice(add->YearTextField)->isVisibleTo(add));

    QTest::keyClicks(add->DenominationTextField, "Dime");
    add->SaveButton->click();
    const auto coins = all<Coins>();
    ASSERT_EQ(coins.size(), 1);
    EXPECT_FLOAT_EQ(coins[0]->value(), 2.5f);
    EXPECT_EQ(coins[0]->year(), 1884);

    // Under English the comma is refused.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    ASSERT_NE(topAs<MainListTableViewController>(), nullptr);
    top()->performSegue("AddCoin");
    add = topAs<AddViewController>();
    ASSERT_NE(add, nullptr);
    QTest::keyClicks(add->ValueTextField, "2,50");
    EXPECT_EQ(add->ValueTextField->text(), "250");
}
