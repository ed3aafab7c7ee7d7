// A collector's first session, driven through the buttons and fields a person uses: three
// coins added, the list sorted and searched, one coin edited, annotated and zoomed, one swiped
// away, and the collection found again after a restart.
#include "ScreenFixture.h"
#include "platform/ImageCoding.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/NotesViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/list/MainListTableViewCell.h"
#include "screens/list/MainListTableViewController.h"

#include <QMenu>
#include <QPushButton>
#include <QToolButton>

namespace {
QStringList rowTitles(MainListTableViewController* list) {
    QStringList out;
    for (int row = 0; row < list->tableView->numberOfRows(0); ++row) {
        auto* cell =
            static_cast<MainListTableViewCell*>(list->cellForRow(list->tableView, {0, row}));
        out << cell->DenominationLabel->text();
    }
    return out;
}
} // namespace

class WalkthroughTest : public ScreenTest {
protected:
    QPushButton* barButton(const char* name) {
        return window->findChild<QPushButton*>(QString::fromLatin1(name));
    }
    void chooseSort(MainListTableViewController* list, const QString& title) {
        for (QAction* action : list->sortMenu->actions())
            if (action->text() == title)
                action->trigger();
    }
    void addCoin(const QString& denomination, const QString& year, const QString& quantity,
                 const QString& value, const QString& country) {
        barButton("AddButton")->click();
        auto* add = topAs<AddViewController>();
        ASSERT_NE(add, nullptr);
        QTest::keyClicks(add->DenominationTextField, denomination);
        QTest::keyClicks(add->YearTextField, year);
        QTest::keyClicks(add->QuantityTextField, quantity);
        QTest::keyClicks(add->ValueTextField, value);
        QTest::keyClicks(add->CountryTextField, country);
        if (!photoPath.isEmpty()) {
            fakes.documentPicker->next = photoPath;
            add->FrontFolderButton->click();
            add->RearFolderButton->click();
            photoPath.clear();
        }
        add->SaveButton->click();
    }
    QString photoPath;
};

TEST_F(WalkthroughTest, AddSortSearchEditAnnotateZoomDeleteAndRestart) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    menu->performSegue("ListCoins");
    auto* list = topAs<MainListTableViewController>();
    ASSERT_NE(list, nullptr);

    QImage photo(800, 600, QImage::Format_RGB32);
    photo.fill(QColor(184, 115, 51));
    photoPath = dir() + "/cent.png";
    ASSERT_TRUE(photo.save(photoPath));
    addCoin("Lincoln Cent", "1909", "2", "12.5", "United States");
    addCoin("Maple Leaf", "1988", "0", "2100", "Canada");
    addCoin("Dime", "1964", "5", "0.25", "United States");
    ASSERT_EQ(top(), list);
    ASSERT_EQ(list->CoinList.size(), 3);
    EXPECT_EQ(list->tableView->headerTitle(0), "# Coins = 3 of 3");

    // Currency values; the coin with quantity 0 counts as one.
    auto* maple = static_cast<MainListTableViewCell*>(
        list->cellForRow(list->tableView, {0, int(rowTitles(list).indexOf("Maple Leaf"))}));
    EXPECT_EQ(maple->Label3->text(), "Qty: 1");
    EXPECT_EQ(maple->Label4->text(), "Value: $2,100.00  Total Value: $2,100.00");

    // Every fetch reads the direction and then flips it, the returns from the add screen
    // included: after the load and three returns each sort shows the list ascending, then
    // descending when chosen again.
    const QList<std::pair<QString, QStringList>> sorts = {
        {"By Name", {"Dime", "Lincoln Cent", "Maple Leaf"}},
        {"By Year", {"Lincoln Cent", "Dime", "Maple Leaf"}},
        {"By Quantity", {"Maple Leaf", "Lincoln Cent", "Dime"}},
        {"By Value", {"Dime", "Lincoln Cent", "Maple Leaf"}},
    };
    for (const auto& [title, ascending] : sorts) {
        chooseSort(list, title);
        EXPECT_EQ(rowTitles(list), ascending) << title.toStdString();
        chooseSort(list, title);
        EXPECT_EQ(rowTitles(list), QStringList(ascending.rbegin(), ascending.rend()))
            << title.toStdString();
    }
    chooseSort(list, "By Country");
    EXPECT_EQ(list->searchController->placeholderText(), "Search by Country");

    // Searching by each key.
    const QList<std::tuple<QString, QString, int>> searches = {{"By Name", "CENT", 1},
                                                               {"By Year", "19", 3},
                                                               {"By Quantity", "5", 1},
                                                               {"By Value", "2.5", 1}, // 12.5
                                                               {"By Country", "united", 2}};
    for (const auto& [title, text, expected] : searches) {
        chooseSort(list, title);
        list->searchController->setActive(true);
        QTest::keyClicks(list->searchController, text);
        EXPECT_EQ(list->tableView->numberOfRows(0), expected) << title.toStdString();
        list->searchController->clear();
        list->searchController->setActive(false);
    }

    // Open the cent, change its value, write notes, zoom its front picture.
    chooseSort(list, "By Name");
    list->tableView->selectRow({0, int(rowTitles(list).indexOf("Lincoln Cent"))});
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->ValueTextField->text(), "12.50");
    EXPECT_TRUE(edit->FrontImage->hasImage());
    edit->NotesButton->click();
    auto* notes = topAs<NotesViewController>();
    ASSERT_NE(notes, nullptr);
    QTest::keyClicks(notes->NotesTextView, "VDB on the reverse");
    notes->SaveButton->click();
    ASSERT_EQ(top(), edit);
    EXPECT_EQ(edit->NotesTextView->text(), "VDB on the reverse");
    QTest::mouseDClick(edit->FrontImage, Qt::LeftButton);
    auto* zoom = topAs<ZoomViewController>();
    ASSERT_NE(zoom, nullptr);
    EXPECT_EQ(zoom->numberOfItems(), 2);
    zoom->pinchedView(1.5);
    EXPECT_DOUBLE_EQ(zoom->transform().m11(), 1.5);
    window->navigationController()->backButton()->click();
    ASSERT_EQ(top(), edit);
    edit->ValueTextField->clear();
    QTest::keyClicks(edit->ValueTextField, "850");
    edit->SaveButton->click();
    ASSERT_EQ(top(), list);

    // Swipe the dime away.
    const int dime = int(rowTitles(list).indexOf("Dime"));
    EXPECT_TRUE(list->tableView->triggerSwipeAction({0, dime}, "delete"));
    EXPECT_EQ(list->tableView->headerTitle(0), "# Coins = 2 of 2");
    QLocale::setDefault(QLocale::c());

    // The program starts again on the same folder: the collection is there.
    window.reset();
    relaunch();
    const auto coins = all<Coins>("denomination");
    ASSERT_EQ(coins.size(), 2);
    EXPECT_EQ(coins[0]->denomination(), "Lincoln Cent");
    EXPECT_EQ(coins[0]->value(), 850.0f);
    EXPECT_EQ(coins[0]->notes(), "VDB on the reverse");
    EXPECT_EQ(ImageCoding::decode(coins[0]->backImage()).size(), QSize(100, 100));
    EXPECT_EQ(coins[1]->denomination(), "Maple Leaf");
    EXPECT_EQ(coins[1]->quantity(), 0);
}
