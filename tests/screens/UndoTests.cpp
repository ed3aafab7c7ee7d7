// Undo and Redo through the window's Edit menu and keys: what a collector did by mistake is
// taken back exactly, screens in front show it at once, and it holds across a restart.
#include "ScreenFixture.h"
#include "app/AppMenuBar.h"
#include "exchange/ExchangeReader.h"
#include "exchange/ExchangeWriter.h"
#include "model/Journal.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/valuation/ValuationViewController.h"

#include <QDir>
#include <QMenuBar>

namespace {
class UndoTest : public MenuBarScreenTest {
protected:
    void key(Qt::Key k, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(window.get(), k, modifiers);
        QApplication::processEvents();
    }
    void undo() { key(Qt::Key_Z); }
    void redo() { key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    // The exchange file of the collection, as --export writes it, and the store's own rows.
    QByteArray exported() { return Exchange::exchangeText(ctx()).valueOr("failed"); }
    QByteArray rows() {
        return storeDump(QDir(dir()).filePath("Pelvane.sqlite"), Dump::Collection);
    }
    QString menuText(const char* action) {
        QMenu* edit = bar->findChild<QMenu*>("EditMenu");
        QMetaObject::invokeMethod(edit, "aboutToShow");
        auto* a = bar->findChild<QAction*>(action);
        const QString text = a && a->isEnabled() ? a->text() : QString();
        QMetaObject::invokeMethod(edit, "aboutToHide");
        return text;
    }
    void addThroughForm(MainListTableViewController* list, const char* denomination,
                        const char* year, const char* value) {
        list->performSegue("AddCoin");
        auto* add = topAs<AddViewController>();
        ASSERT_NE(add, nullptr);
        add->DenominationTextField->setText(denomination);
        add->YearTextField->setText(year);
        add->CountryTextField->setText("United States");
        add->QuantityTextField->setText("1");
        add->ValueTextField->setText(value);
        add->SaveButton->click();
        QApplication::processEvents();
    }
};
} // namespace

// The new user's walk: two coins added through the form both get record number 0, so editing
// the second writes over the first. Ctrl+Z takes the edit back exactly, the screen in front
// shows it, Ctrl+Shift+Z brings the edit back, and the undo still works after a restart.
TEST_F(UndoTest, TheEditThatWroteOverAnotherCoinIsUndoneExactly) {
    auto* list = openList();
    addThroughForm(list, "10 Cents", "1964", "1.50");
    addThroughForm(list, "5 Cents", "1950", "0.25");
    ASSERT_EQ(top(), list);
    ASSERT_EQ(all<Coins>().size(), 2);
    const QByteArray exportBefore = exported();
    const QByteArray rowsBefore = rows();

    // The second coin is opened; its Save goes to the first coin with record number 0.
    const QList<CoinPtr> coins = all<Coins>("denomination");
    ASSERT_EQ(coins[0]->denomination(), "10 Cents");
    list->tableView->selectRow({0, 0});
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    edit->ValueTextField->setText("9.99");
    edit->SaveButton->click();
    QApplication::processEvents();
    const QByteArray exportEdited = exported();
    ASSERT_NE(exportEdited, exportBefore);
    EXPECT_EQ(menuText("UndoAction"), "Undo Edit of 10 Cents 1964");

    undo();
    EXPECT_EQ(exported(), exportBefore);
    EXPECT_EQ(rows(), rowsBefore);
    EXPECT_EQ(menuText("RedoAction"), "Redo Edit of 10 Cents 1964");
    redo();
    EXPECT_EQ(exported(), exportEdited);

    // An open edit form follows the undo at once.
    list = openList();
    list->tableView->selectRow({0, 0});
    edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    const QString shown = edit->ValueTextField->text();
    // Ctrl+Z in a field is the field's own undo; from the window it is the collection's.
    window->setFocus();
    undo();
    EXPECT_EQ(exported(), exportBefore);
    EXPECT_NE(edit->ValueTextField->text(), shown);
    EXPECT_FALSE(edit->hasUnsavedChanges());

    // After a restart, the redo and the undo are still there.
    window.reset();
    relaunch();
    menu = new MainMenuViewController;
    window = std::make_unique<Window>(menu);
    window->show();
    installBar();
    redo();
    EXPECT_EQ(exported(), exportEdited);
    undo();
    undo();
    undo();
    EXPECT_EQ(all<Coins>().size(), 0);
    // What is left is the first start's own step.
    EXPECT_EQ(menuText("UndoAction"), "Undo Filling of the Reference Lists");
}

// A delete, a revaluation, a whole import with its pictures and a reference rename each come
// back with one undo; the value history's last day still equals the collection.
TEST_F(UndoTest, DeleteRevaluationImportAndReferenceRenameAreEachOneUndo) {
    QFile sample(PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv");
    ASSERT_TRUE(sample.open(QIODevice::ReadOnly));
    const QByteArray empty = rows();
    {
        Exchange::Merge merge(ctx(), sample.readAll(), "Pelvane-sample.csv");
        while (merge.step(1000)) {
        }
    }
    ASSERT_TRUE(ctx().save().ok());
    const QByteArray imported = rows();
    EXPECT_EQ(menuText("UndoAction"), "Undo Import of Pelvane-sample.csv");

    // A delete from the list.
    openList();
    const int before = int(all<Coins>().size());
    ctx().deleteObject(all<Coins>().first());
    delegate->saveContext();
    ASSERT_EQ(all<Coins>().size(), before - 1);
    undo();
    EXPECT_EQ(rows(), imported);

    // A revaluation of every coin of one denomination and year.
    const CoinPtr some = all<Coins>().first();
    menu->performSegue("CoinValuation");
    auto* valuation = topAs<ValuationViewController>();
    ASSERT_NE(valuation, nullptr);
    valuation->Denomination = some->denomination();
    valuation->CoinYear = QString::number(some->year());
    valuation->NewValueTextField->setText("123.45");
    valuation->SaveNewCardButtonClicked();
    QApplication::processEvents();
    ASSERT_NE(rows(), imported);
    EXPECT_TRUE(menuText("UndoAction").startsWith("Undo Revaluation of "));
    undo();
    EXPECT_EQ(rows(), imported);

    // A reference value renamed.
    auto grade = ctx().insert<GradeNumbers>();
    grade->setGrade("MS-63");
    ASSERT_TRUE(ctx().save().ok());
    const QByteArray withGrade = rows();
    grade->setGrade("MS-64");
    ASSERT_TRUE(ctx().save().ok());
    undo();
    EXPECT_EQ(rows(), withGrade);
    EXPECT_EQ(grade->grade(), "MS-63");
    undo();

    // The whole import, pictures and all, in one step.
    undo();
    EXPECT_EQ(rows(), empty);
    const auto series = ValueHistory::series(ctx());
    ASSERT_TRUE(series.ok());
    EXPECT_EQ(series.value().last().pieces, 0);
    EXPECT_NEAR(series.value().last().value, 0, 1e-6);
    redo();
    EXPECT_EQ(rows(), imported);
}
