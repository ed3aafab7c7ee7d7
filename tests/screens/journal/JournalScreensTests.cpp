#include "../ScreenFixture.h"
#include "app/AppMenuBar.h"
#include "model/Journal.h"
#include "platform/kit/Views.h"
#include "screens/entry/EditViewController.h"
#include "screens/journal/RecentChangesViewController.h"
#include "screens/journal/RecentlyDeletedViewController.h"
#include "screens/statistics/CoinHistoryViewController.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QTableWidget>
#include <QToolButton>

namespace {
QString cell(QTableWidget* table, int row, int column) {
    auto* item = table->item(row, column);
    return item ? item->text() : QString();
}

QStringList column(QTableWidget* table, int c) {
    QStringList out;
    for (int r = 0; r < table->rowCount(); ++r)
        out << cell(table, r, c);
    return out;
}

QStringList lines(QListWidget* list) {
    QStringList out;
    for (int r = 0; r < list->count(); ++r)
        out << list->item(r)->text().trimmed();
    return out;
}

// Every button, list and picture of the screen has a name a screen reader says.
void expectNamedControls(QWidget* screen) {
    for (QWidget* w : screen->findChildren<QWidget*>()) {
        if (w->objectName().isEmpty())
            continue;
        if (!qobject_cast<QAbstractButton*>(w) && !qobject_cast<QAbstractItemView*>(w) &&
            !qobject_cast<ImageView*>(w))
            continue;
        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
        ASSERT_NE(a, nullptr);
        EXPECT_FALSE(a->text(QAccessible::Name).isEmpty())
            << w->metaObject()->className() << " " << w->objectName().toStdString();
    }
}

CoinPtr find(const QList<CoinPtr>& coins, const QString& denomination) {
    for (const CoinPtr& c : coins)
        if (c->denomination() == denomination)
            return c;
    return nullptr;
}
} // namespace

class JournalScreensTest : public DollarScreenTest {
protected:
    RecentChangesViewController* openRecentChanges() {
        menu->HandleButtonClick();
        menu->RecentChangesButton->click();
        return topAs<RecentChangesViewController>();
    }
    // Answers the alert shown now with the action of that title.
    static bool answer(const QString& title) {
        auto* a = AlertController::current();
        return a && a->triggerAction(title);
    }
};

// The steps are listed newest first, each with what it changed; a step of many records says how
// many more it touched than are listed. Undo Back to Here asks first, then undoes the step and
// every later one, which stay listed as undone; a reversal or an undone step cannot be undone
// from here. The screen is reached from the start screen and the Go menu.
TEST_F(JournalScreensTest, RecentChangesShowsEachStepAndUndoesBackToOne) {
    {
        Journal::Step import(ctx(), Journal::Import, "Pelvane.csv");
        for (int i = 0; i < RecentChangesViewController::kRowsShown + 2; ++i)
            addCoin(QStringLiteral("Token %1").arg(i), 1900 + i);
    }
    CoinPtr dime = addCoin("10 Cents", 1964, 2, 1.5f, "US", "D");
    CoinPtr crown = addCoin("Crown", 1965, 1, 5.0f, "UK", "");
    dime->setValue(3.25f);
    dime->setMintMark("S");
    ASSERT_TRUE(ctx().save().ok());
    ctx().deleteObject(crown);
    ASSERT_TRUE(ctx().save().ok());

    auto* screen = openRecentChanges();
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(screen->title(), "Recent Changes");
    expectNamedControls(screen);
    QTableWidget* steps = screen->StepsTable;
    // Below these, the reference values the first start put in, one step each.
    const int listed = steps->rowCount();
    ASSERT_GE(listed, 5);
    EXPECT_EQ(column(steps, 1).mid(0, 5),
              QStringList({"Deleted Crown 1965", "Edited 10 Cents 1964", "Added Crown 1965",
                           "Added 10 Cents 1964", "Imported Pelvane.csv"}));
    EXPECT_EQ(column(steps, 2), QStringList(listed, QString()));
    EXPECT_EQ(cell(steps, 0, 0),
              QLocale().toString(screen->Steps[0].time.toLocalTime(), QLocale::ShortFormat));

    // The newest is shown at first; the edit lists its fields in the form's words.
    EXPECT_EQ(screen->DetailLabel->text(), "Deleted Crown 1965");
    EXPECT_EQ(lines(screen->ChangesList), QStringList({"Crown 1965 — Deleted"}));
    steps->setCurrentCell(1, 0);
    EXPECT_EQ(screen->DetailLabel->text(), "Edited 10 Cents 1964");
    const QStringList edit = lines(screen->ChangesList);
    EXPECT_EQ(edit.value(0), "10 Cents 1964 — Changed");
    EXPECT_TRUE(edit.contains("Mint Mark: D → S")) << edit.join('|').toStdString();
    EXPECT_TRUE(edit.contains("Value: 1.50 → 3.25")) << edit.join('|').toStdString();
    steps->setCurrentCell(4, 0);
    const QStringList import = lines(screen->ChangesList);
    EXPECT_EQ(import.size(), RecentChangesViewController::kRowsShown + 1);
    EXPECT_EQ(import.first(), "Token 0 1900 — Added");
    EXPECT_EQ(import.last(), "and 2 more");

    // Cancel leaves everything as it is.
    steps->setCurrentCell(1, 0);
    ASSERT_TRUE(screen->UndoBackButton->isEnabled());
    screen->UndoBackButton->click();
    EXPECT_TRUE(alertText().startsWith("Undo Back to Here? / The Edit of 10 Cents 1964 and every "
                                       "change after it are undone."))
        << alertText().toStdString();
    ASSERT_TRUE(answer("Cancel"));
    EXPECT_EQ(steps->rowCount(), listed);
    EXPECT_EQ(all<Coins>().size(), RecentChangesViewController::kRowsShown + 3);

    screen->UndoBackButton->click();
    ASSERT_TRUE(answer("Undo"));
    // The crown is back and the dime as it was, in the store.
    const QList<CoinPtr> coins = all<Coins>();
    ASSERT_NE(find(coins, "Crown"), nullptr);
    EXPECT_EQ(find(coins, "10 Cents")->value(), 1.5f);
    EXPECT_EQ(find(coins, "10 Cents")->mintMark(), "D");
    // The undo is the newest step; the steps it undid are marked, and the one chosen stays so.
    ASSERT_EQ(steps->rowCount(), listed + 1);
    EXPECT_EQ(cell(steps, 0, 1), "Undid 2 steps, back to the Edit of 10 Cents 1964");
    EXPECT_EQ(column(steps, 2).mid(0, 5), QStringList({"", "Undone", "Undone", "", ""}));
    EXPECT_EQ(steps->currentRow(), 2);
    EXPECT_FALSE(screen->UndoBackButton->isEnabled());
    steps->setCurrentCell(0, 0);
    EXPECT_FALSE(screen->UndoBackButton->isEnabled());
    steps->setCurrentCell(3, 0);
    EXPECT_TRUE(screen->UndoBackButton->isEnabled());

    // The start screen and the Go menu open it.
    window->navigationController()->popToRootViewController(false);
    QMenuBar* bar = AppMenuBar::install(*window, menu);
    QAction* go = nullptr;
    for (QAction* m : bar->actions())
        if (m->text().remove('&') == "Go")
            for (QAction* a : m->menu()->actions())
                if (a->text() == "Recent Changes")
                    go = a;
    ASSERT_NE(go, nullptr);
    EXPECT_EQ(go->shortcut(), QKeySequence("Ctrl+6"));
    go->trigger();
    EXPECT_NE(topAs<RecentChangesViewController>(), nullptr);
}

// A coin deleted lately is listed with its country and when it went; Put Back returns it with
// its pictures under its own record, and the list is empty again. Recent Changes shows the
// put back as a step once it is in front again.
TEST_F(JournalScreensTest, RecentlyDeletedPutsACoinBack) {
    menu->performSegue("RecentlyDeleted");
    auto* deleted = topAs<RecentlyDeletedViewController>();
    ASSERT_NE(deleted, nullptr);
    EXPECT_EQ(deleted->title(), "Recently Deleted");
    EXPECT_FALSE(deleted->EmptyLabel->isHidden());
    EXPECT_EQ(deleted->EmptyLabel->text(), "No coins were deleted in the last 90 days.");
    EXPECT_TRUE(deleted->DeletedTable->isHidden());
    EXPECT_FALSE(deleted->PutBackButton->isEnabled());
    window->navigationController()->popToRootViewController(false);

    addCoin("10 Cents", 1964, 2, 1.5f, "US", "D");
    CoinPtr crown = addCoin("Crown", 1965, 1, 5.0f, "UK", "");
    crown->setFrontImage(coinPicture(Qt::red));
    ASSERT_TRUE(ctx().save().ok());
    const qint64 pk = crown->objectID();
    ctx().deleteObject(crown);
    ASSERT_TRUE(ctx().save().ok());

    auto* changes = openRecentChanges();
    ASSERT_NE(changes, nullptr);
    changes->RecentlyDeletedButton->click();
    deleted = topAs<RecentlyDeletedViewController>();
    ASSERT_NE(deleted, nullptr);
    expectNamedControls(deleted);
    QTableWidget* table = deleted->DeletedTable;
    EXPECT_FALSE(table->isHidden());
    EXPECT_TRUE(deleted->EmptyLabel->isHidden());
    ASSERT_EQ(table->rowCount(), 1);
    EXPECT_EQ(cell(table, 0, 0), "Crown 1965");
    EXPECT_EQ(cell(table, 0, 1), "UK");
    EXPECT_EQ(cell(table, 0, 2), QLocale().toString(deleted->Deleted[0].step.time.toLocalTime(),
                                                    QLocale::ShortFormat));
    ASSERT_TRUE(deleted->PutBackButton->isEnabled());
    deleted->PutBackButton->click();
    EXPECT_EQ(alertText(), "");

    const CoinPtr back = find(all<Coins>(), "Crown");
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->objectID(), pk);
    EXPECT_EQ(back->country(), "UK");
    EXPECT_EQ(back->frontImage(), coinPicture(Qt::red));
    EXPECT_EQ(table->rowCount(), 0);
    EXPECT_FALSE(deleted->EmptyLabel->isHidden());
    EXPECT_FALSE(deleted->PutBackButton->isEnabled());

    window->navigationController()->popViewController(false);
    EXPECT_EQ(cell(changes->StepsTable, 0, 1), "Put back Crown 1965");
}

// History of a coin shows it read-only with its earlier versions, each with what differs from
// the coin now; Restore This Version asks, then writes the chosen one back, pictures included,
// as a new version of its own.
TEST_F(JournalScreensTest, CoinHistoryRestoresAnEarlierVersion) {
    CoinPtr dime = addCoin("10 Cents", 1964, 2, 1.5f, "US", "D");
    dime->setFrontImage(coinPicture(Qt::red));
    dime->setGradeNumber("MS-63");
    ASSERT_TRUE(ctx().save().ok());
    dime->setValue(3.25f);
    ASSERT_TRUE(ctx().save().ok());
    dime->setQuantity(5);
    dime->setFrontImage(coinPicture(Qt::blue));
    ASSERT_TRUE(ctx().save().ok());

    openList()->tableView->selectRow({0, 0});
    ASSERT_NE(topAs<EditViewController>(), nullptr);
    button("HistoryButton")->click();
    auto* history = topAs<CoinHistoryViewController>();
    ASSERT_NE(history, nullptr);
    expectNamedControls(history);
    EXPECT_EQ(history->CoinLabel->text(), "10 Cents, US 1964");
    EXPECT_EQ(history->CountryValue->text(), "US");
    EXPECT_EQ(history->YearValue->text(), "1964");
    EXPECT_EQ(history->QuantityValue->text(), "5");
    EXPECT_EQ(history->ValueValue->text(), "$3.25");
    EXPECT_EQ(history->GradeValue->text(), "MS-63");
    EXPECT_TRUE(history->FrontImage->hasImage());
    EXPECT_FALSE(history->BackImage->hasImage());

    QTableWidget* versions = history->VersionsTable;
    ASSERT_EQ(versions->rowCount(), 3);
    // Each version says which step changed it afterwards, and when.
    for (int r = 0; r < 3; ++r)
        EXPECT_EQ(cell(versions, r, 0),
                  "Before: Edited 10 Cents 1964\n" +
                      QLocale().toString(history->Versions[r].step.time.toLocalTime(),
                                         QLocale::ShortFormat));
    EXPECT_EQ(cell(versions, 0, 1), "Quantity: 5 → 2\nFront picture changed");
    EXPECT_EQ(cell(versions, 1, 1), "Quantity: 5 → 2\nValue: 3.25 → 1.50\nFront picture changed");
    EXPECT_EQ(cell(versions, 2, 1),
              "Grade: MS-63 → (none)\nQuantity: 5 → 2\nValue: 3.25 → 1.50\nFront picture removed");

    EXPECT_FALSE(history->RestoreVersionButton->isEnabled());
    versions->setCurrentCell(1, 0);
    ASSERT_TRUE(history->RestoreVersionButton->isEnabled());
    history->RestoreVersionButton->click();
    EXPECT_TRUE(alertText().startsWith("Restore This Version? / ")) << alertText().toStdString();
    ASSERT_TRUE(answer("Restore"));
    EXPECT_EQ(alertText(), "");

    const CoinPtr stored = find(all<Coins>(), "10 Cents");
    ASSERT_NE(stored, nullptr);
    EXPECT_EQ(stored->quantity(), 2);
    EXPECT_EQ(stored->value(), 1.5f);
    EXPECT_EQ(stored->gradeNumber(), "MS-63");
    EXPECT_EQ(stored->frontImage(), coinPicture(Qt::red));
    // The screen shows the coin as it is now; the version it replaced is one of the versions,
    // and the one restored, now the same as the coin, is not.
    EXPECT_EQ(history->QuantityValue->text(), "2");
    EXPECT_EQ(history->ValueValue->text(), "$1.50");
    ASSERT_EQ(versions->rowCount(), 3);
    EXPECT_TRUE(
        cell(versions, 0, 0).startsWith("Before: Restored an earlier version of 10 Cents 1964\n"));
    EXPECT_EQ(cell(versions, 0, 1), "Quantity: 2 → 5\nValue: 1.50 → 3.25\nFront picture changed");

    // The edit form behind shows the version written back, so that its Save cannot put the
    // replaced one over it again.
    window->navigationController()->backButton()->click();
    QApplication::processEvents();
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->QuantityTextField->text(), "2");
    EXPECT_FALSE(edit->hasUnsavedChanges());
}
