// The three reference lists through their table of differences: the same checks over the grade,
// strike character and edge rows, with the texts as the lists are meant to show them.
#include "../ScreenFixture.h"
#include "platform/core/Console.h"
#include "platform/kit/TextTableViewCell.h"
#include "screens/entry/AddViewController.h"
#include "screens/reference/ReferenceListScreens.h"
#include "screens/reference/ReferenceListViewController.h"
#include "screens/reference/ReferenceTableViewController.h"
#include "screens/reference/ReferenceValueScreens.h"

#include <QAction>
#include <QFocusEvent>
#include <QRegularExpression>

namespace {

struct ListRow {
    const char* name;
    const char* hubButton;
    const char* entity;
    const char* attribute;
    const char* title;
    const char* placeholder;
    QString* selection;
    const char* addTitle;
    const char* emptyMessage;
    const char* editTitle;
    const char* saveAction;
    const char* coinAttribute;
    // The coin form's field for the list, and its picker.
    TextField* CoinFormViewController::*pickerField;
    PickerView* CoinFormViewController::*picker;
    // The named classes of the row's three screens.
    bool (*isList)(ViewController*);
    bool (*isAdd)(ViewController*);
    bool (*isEdit)(ViewController*);
};

void PrintTo(const ListRow& row, std::ostream* os) {
    *os << row.name;
}

template <typename T> bool is(ViewController* v) {
    return dynamic_cast<T*>(v) != nullptr;
}

const ListRow kRows[] = {
    {"Grade", "GradeNumberButton", "GradeNumbers", "grade", "Grade Number List",
     "Search by Grade Number", &SelectedGrade, "Add Grade Numbers", "Grade Number not Entered",
     "Edit Grade Numbers", "SaveGenre", "gradeNumber",
     &CoinFormViewController::GradeNumberTextField, &CoinFormViewController::GradePickerView,
     is<GradeNumberTableViewController>, is<AddGradeNumberViewController>,
     is<EditGradeNumberViewController>},
    {"Strike", "StrikeCharacterButton", "StrikeCharacters", "strike", "Strike Character List",
     "Search by Strike Character", &SelectedStrikeCharacter, "Add Strike Character",
     "Strike Character not Entered", "Edit Strike Characters", "SaveGenre", "strikeCharacter",
     &CoinFormViewController::StrikeCharacterTextField,
     &CoinFormViewController::StrikeCharacterPickerView, is<StrikeCharacterTableViewController>,
     is<AddStrikeCharacterViewController>, is<EditStrikeCharacterViewController>},
    {"Edge", "EdgeButton", "CoinEdge", "edge", "Edge List", "Search by Edge", &SelectedEdge,
     "Add Edge", "Edge not Entered", "Edit Edge", "SaveEdge", "edge",
     &CoinFormViewController::EdgeTextField, &CoinFormViewController::EdgePickerView,
     is<EdgeTableViewController>, is<AddEdgeViewController>, is<EditEdgeViewController>},
};

} // namespace

class ReferenceListTest : public ScreenTest, public ::testing::WithParamInterface<ListRow> {
protected:
    const ListRow& row() const { return GetParam(); }
    // The list holds exactly these values (stored in this order) and nothing seeded.
    void storeOnly(const QStringList& values) {
        FetchRequest all(QString::fromLatin1(row().entity));
        for (const ObjectPtr& r : ctx().fetch(all))
            ctx().deleteObject(r);
        for (const QString& v : values)
            ctx()
                .insertNewObject(QString::fromLatin1(row().entity))
                ->setValue(QString::fromLatin1(row().attribute), v);
        ASSERT_TRUE(ctx().save().ok());
    }
    // The stored values of the list, ascending.
    QStringList stored() {
        FetchRequest all(QString::fromLatin1(row().entity));
        all.sortDescriptors = {{QString::fromLatin1(row().attribute), true}};
        return values(ctx().fetch(all));
    }
    // What the table shows, row by row.
    static QStringList shown(ReferenceTableViewController* list) {
        QStringList out;
        for (int r = 0; r < list->tableView->numberOfRows(0); ++r)
            out << static_cast<TextTableViewCell*>(list->cellForRow(list->tableView, {0, r}))
                       ->textLabel->text();
        return out;
    }
    QStringList values(const QList<ObjectPtr>& records) {
        QStringList out;
        for (const ObjectPtr& r : records)
            out << r->value(QString::fromLatin1(row().attribute)).toString();
        return out;
    }
    ReferenceTableViewController* openList() {
        menu->performSegue("ReferenceLists");
        auto* hub = topAs<ReferenceListViewController>();
        EXPECT_NE(hub, nullptr);
        if (!hub)
            return nullptr;
        hub->findChild<QPushButton*>(QString::fromLatin1(row().hubButton))->click();
        return topAs<ReferenceTableViewController>();
    }
};

TEST_P(ReferenceListTest, ListFetchesSearchesSortsAndDeletes) {
    storeOnly({"Reeded", "VF", "MS/PF-65", "AU-58"});
    auto coin = addCoin("Cent", 1909);
    coin->setValue(QString::fromLatin1(row().coinAttribute), QStringLiteral("VF"));
    ASSERT_TRUE(ctx().save().ok());

    auto* list = openList();
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(row().isList(list));
    EXPECT_EQ(list->title(), row().title);
    EXPECT_EQ(list->searchController->placeholderText(), row().placeholder);
    EXPECT_EQ(list->List.size(), 0); // the fetch is queued, not run during the load
    QApplication::processEvents();
    EXPECT_EQ(values(list->List), QStringList({"AU-58", "MS/PF-65", "Reeded", "VF"}));
    EXPECT_EQ(shown(list), values(list->List));
    EXPECT_EQ(list->Count, 4);
    EXPECT_FALSE(button("SortButton")->icon().isNull());
    EXPECT_FALSE(button("AddButton")->icon().isNull());

    // Without a search the sort button fetches again, descending first.
    button("SortButton")->click();
    EXPECT_EQ(shown(list), QStringList({"VF", "Reeded", "MS/PF-65", "AU-58"}));
    button("SortButton")->click();
    EXPECT_EQ(shown(list), QStringList({"AU-58", "MS/PF-65", "Reeded", "VF"}));

    // Case-insensitive search; with it the button sorts the shown rows in place, the other way
    // round: ascending first, and the full list is not fetched again.
    QTest::keyClicks(list->searchController, "ms");
    EXPECT_EQ(shown(list), QStringList({"MS/PF-65"}));
    list->searchController->findChild<QAction*>("ClearButton")->trigger();
    EXPECT_EQ(shown(list).size(), 4);
    QTest::keyClicks(list->searchController, "F");
    EXPECT_EQ(shown(list), QStringList({"MS/PF-65", "VF"}));
    button("SortButton")->click();
    EXPECT_EQ(list->SortAsc, false);
    EXPECT_EQ(shown(list), QStringList({"MS/PF-65", "VF"}));
    button("SortButton")->click();
    EXPECT_EQ(shown(list), QStringList({"VF", "MS/PF-65"}));
    EXPECT_EQ(values(list->List), QStringList({"AU-58", "MS/PF-65", "Reeded", "VF"}));

    // The delete action takes the row from the list in use only; the coin keeps its text.
    EXPECT_TRUE(list->tableView->triggerSwipeAction({0, 0}, "delete"));
    EXPECT_EQ(shown(list), QStringList({"MS/PF-65"}));
    EXPECT_EQ(stored(), QStringList({"AU-58", "MS/PF-65", "Reeded"}));
    EXPECT_EQ(list->Count, 4);
    EXPECT_EQ(coin->value(QString::fromLatin1(row().coinAttribute)).toString(), "VF");
    list->searchController->clear();
    EXPECT_EQ(shown(list), QStringList({"AU-58", "MS/PF-65", "Reeded", "VF"}));
    list->fetch();
    EXPECT_EQ(shown(list), QStringList({"AU-58", "MS/PF-65", "Reeded"}));

    // Committing a delete edit only takes the row off the display, until the next reload.
    list->commitEditingStyle(list->tableView, ReferenceTableViewController::EditingStyle::Delete,
                             {0, 1});
    EXPECT_EQ(shown(list), QStringList({"AU-58", "Reeded"}));
    EXPECT_EQ(list->List.size(), 3);
    EXPECT_EQ(stored().size(), 3);
    list->updateSearchResults(list->searchController);
    EXPECT_EQ(shown(list).size(), 3);
}

TEST_P(ReferenceListTest, AddAndEditScreensCheckSaveAndReturn) {
    storeOnly({"VF", "AU-58", "Reeded"});
    auto coin = addCoin("Cent", 1909);
    coin->setValue(QString::fromLatin1(row().coinAttribute), QStringLiteral("Reeded"));
    ASSERT_TRUE(ctx().save().ok());
    auto* list = openList();
    ASSERT_NE(list, nullptr);
    QApplication::processEvents();

    EXPECT_EQ(CalledFromList, "MAINMENU");
    button("AddButton")->click();
    auto* add = topAs<AddReferenceViewController>();
    ASSERT_NE(add, nullptr);
    EXPECT_TRUE(row().isAdd(add));
    EXPECT_EQ(CalledFromList, "Master");
    EXPECT_EQ(add->title(), row().addTitle);
    EXPECT_EQ(add->StoredValues, QStringList({"VF", "AU-58", "Reeded"}));
    // The field has the keyboard; a tap elsewhere on the screen takes it away.
    EXPECT_TRUE(add->textField->hasFocus());
    QTest::mouseClick(add, Qt::LeftButton, {}, QPoint(20, add->height() - 20));
    EXPECT_FALSE(add->textField->hasFocus());
    auto* save = add->findChild<QPushButton*>(QString::fromLatin1(row().saveAction));
    ASSERT_NE(save, nullptr);
    save->click();
    EXPECT_EQ(alertText(), QStringLiteral("Record not Saved! / ") + row().emptyMessage);
    AlertController::current()->triggerAction("OK");
    QTest::keyClicks(add->textField, "VF");
    save->click();
    EXPECT_EQ(alertText(), "Record not Saved! / Duplicates not allowed");
    AlertController::current()->triggerAction("OK");
    EXPECT_EQ(top(), add);
    // The text as typed is checked, the trimmed text stored: "VF " makes a second VF.
    add->textField->setText("VF ");
    save->click();
    EXPECT_EQ(top(), list); // returned, and fetched again
    EXPECT_EQ(values(list->List), QStringList({"AU-58", "Reeded", "VF", "VF"}));
    // Only blanks are trimmed: the line break stays.
    button("AddButton")->click();
    add = topAs<AddReferenceViewController>();
    add->textField->setText("\tvf \n ");
    add->findChild<QPushButton*>(QString::fromLatin1(row().saveAction))->click();
    EXPECT_EQ(top(), list);
    EXPECT_EQ(values(list->List), QStringList({"AU-58", "Reeded", "VF", "VF", "vf \n"}));

    // The edit screen shows the row chosen, but renames the record its selection variable
    // names.
    CalledFromList = "MAINCOINLIST";
    list->tableView->selectRow({0, 0});
    EXPECT_EQ(CalledFromList, "Master");
    EXPECT_EQ(*row().selection, "AU-58");
    auto* edit = topAs<EditReferenceViewController>();
    ASSERT_NE(edit, nullptr);
    EXPECT_TRUE(row().isEdit(edit));
    EXPECT_EQ(edit->title(), row().editTitle);
    EXPECT_EQ(edit->detailItem, list->List.first());
    EXPECT_EQ(edit->textField->text(), "AU-58");
    *row().selection = "Reeded";
    edit->textField->setText(" VF\t");
    edit->findChild<QPushButton*>(QString::fromLatin1(row().saveAction))->click();
    EXPECT_EQ(edit->ResultsCount, 1);
    EXPECT_EQ(top(), list);
    EXPECT_EQ(values(list->List), QStringList({"AU-58", "VF", "VF", "VF", "vf \n"}));
    // A renamed value is renamed in the list only: the coins keep the text they hold.
    EXPECT_EQ(coin->value(QString::fromLatin1(row().coinAttribute)).toString(), "Reeded");

    // Cleared to empty: nothing found changes nothing, and the screen still returns; a value
    // found is kept, empty.
    for (const char* selection : {"gone", "vf \n"}) {
        list->tableView->selectRow({0, 0});
        edit = topAs<EditReferenceViewController>();
        *row().selection = selection;
        edit->textField->clear();
        edit->findChild<QPushButton*>(QString::fromLatin1(row().saveAction))->click();
        EXPECT_EQ(top(), list);
    }
    EXPECT_EQ(stored(), QStringList({"", "AU-58", "VF", "VF", "VF"}));

    // The coin form's picker offers the list as it is now.
    window->navigationController()->popToRootViewController(false);
    menu->performSegue("AddCoin");
    auto* form = topAs<AddViewController>();
    ASSERT_NE(form, nullptr);
    QFocusEvent focus(QEvent::FocusIn, Qt::MouseFocusReason);
    QApplication::sendEvent(form->*row().pickerField, &focus);
    EXPECT_TRUE((form->*row().picker)->isOpen());
    EXPECT_EQ((form->*row().picker)->titles(), stored());
}

// A list that cannot be read: the list, its add screen and its edit screen each say why on the
// console and carry on with nothing.
TEST_P(ReferenceListTest, FailedFetchesArePrinted) {
    auto* list = openList();
    ASSERT_NE(list, nullptr);
    QApplication::processEvents();
    list->tableView->selectRow({0, 0});
    auto* edit = topAs<EditReferenceViewController>();
    ASSERT_NE(edit, nullptr);
    ASSERT_EQ(OtherConnection(dir() + "/Pelvane.sqlite")
                  .exec((QByteArray("DROP TABLE ") + row().entity).constData()),
              0);
    Console::startCapture();
    edit->findChild<QPushButton*>(QString::fromLatin1(row().saveAction))->click();
    EXPECT_EQ(edit->ResultsCount, 0);
    EXPECT_EQ(top(), list);
    button("AddButton")->click();
    auto* add = topAs<AddReferenceViewController>();
    ASSERT_NE(add, nullptr);
    EXPECT_TRUE(add->StoredValues.isEmpty());
    // The edit screen's lookup, the list's fetch on its return, the add screen's fetch.
    EXPECT_EQ(Console::captured().filter(QRegularExpression("^Could not fetch. ")).size(), 3)
        << Console::captured().join("\n").toStdString();
}

INSTANTIATE_TEST_SUITE_P(Lists, ReferenceListTest, ::testing::ValuesIn(kRows),
                         [](const auto& info) { return std::string(info.param.name); });

// The stops for a value that is not there, and for a list too long to count.
class ReferenceListDeathTest : public ScreenTest {
protected:
    GradeNumberTableViewController* gradeList() {
        menu->performSegue("ReferenceLists");
        top()->findChild<QPushButton*>("GradeNumberButton")->click();
        QApplication::processEvents();
        return topAs<GradeNumberTableViewController>();
    }
    void storeGradeWithoutValue() {
        ctx().insert<GradeNumbers>();
        ASSERT_TRUE(ctx().save().ok());
    }
};

TEST_F(ReferenceListDeathTest, AbsentValueStopsOnSelectionInPlaceSortAndAddScreen) {
    storeGradeWithoutValue();
    auto* list = gradeList();
    ASSERT_EQ(list->GradeCount, 31);
    // Shown as an empty row, found by no search.
    EXPECT_EQ(static_cast<TextTableViewCell*>(list->cellForRow(list->tableView, {0, 0}))
                  ->textLabel->text(),
              "");
    QTest::keyClicks(list->searchController, "a");
    EXPECT_EQ(list->FilteredListOfGrades.size(), 5); // the four AU grades and AG-3
    list->searchController->clear();
    EXPECT_DEATH(list->tableView->selectRow({0, 0}), "Fatal error");
    // A fetch while searching (a return from the add screen) fills the filtered list with all.
    QTest::keyClicks(list->searchController, "a");
    list->fetch();
    EXPECT_DEATH(list->SortButtonTapped(), "Fatal error");
    list->searchController->clear();
    EXPECT_DEATH(list->performSegue("AddGradeNumber"), "Fatal error");
}

TEST_F(ReferenceListDeathTest, FetchOf32768ValuesStops) {
    {
        OtherConnection other(dir() + "/Pelvane.sqlite");
        ASSERT_EQ(other.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                             "WHERE i < 32738) INSERT INTO GradeNumbers (grade) "
                             "SELECT 'G-' || i FROM n"),
                  0);
    }
    EXPECT_DEATH(gradeList(), "Fatal error");
}
