#include "StoreFixture.h"
#include "model/Journal.h"
#include "model/ValueHistory.h"

#include <QDir>

namespace {
class JournalTest : public StoreTest {
protected:
    QByteArray collection() {
        return storeDump(QDir(dir()).filePath("Pelvane.sqlite"), Dump::Collection);
    }
    QString undoName() {
        const auto s = Journal::undoable(ctx());
        return s.ok() && s.value() ? Journal::commandName(*s.value()) : QString();
    }
    QString redoName() {
        const auto s = Journal::redoable(ctx());
        return s.ok() && s.value() ? Journal::commandName(*s.value()) : QString();
    }
    void expectHistoryMatchesCoins() {
        const auto series = ValueHistory::series(ctx());
        ASSERT_TRUE(series.ok());
        ASSERT_FALSE(series.value().isEmpty());
        EXPECT_EQ(series.value().last().pieces, totals().first);
        EXPECT_NEAR(series.value().last().value, totals().second, 1e-6);
    }
};
} // namespace

// Each saved change is a step; undone newest first, every row (pictures, record numbers,
// reference values) is exactly as it was, in memory as on disk; redo brings each back; a new
// change drops what could be redone; undo works after the store is opened again.
TEST_F(JournalTest, UndoAndRedoPutEveryRowBackExactly) {
    QList<QByteArray> states{collection()};
    CoinPtr dime = coin("US", "10 Cents", 1964, "D", 2, 1.5f);
    dime->setFrontImage(QByteArray("front-1"));
    ASSERT_TRUE(ctx().save().ok());
    states << collection();
    CoinPtr other = coin("US", "5 Cents", 1950);
    ASSERT_TRUE(ctx().save().ok());
    states << collection();
    EXPECT_EQ(undoName(), "Addition of 5 Cents 1950");

    dime->setValue(3.25f);
    dime->setId(7);
    dime->setBackImage(QByteArray("back-1"));
    dime->setFrontImage(QByteArray());
    ASSERT_TRUE(ctx().save().ok());
    states << collection();
    EXPECT_EQ(undoName(), "Edit of 10 Cents 1964");
    // A coin's row and its pictures' row are one change of the coin, field by field; a text
    // saved empty where there was none is no change.
    dime->setDescrip(QStringLiteral(""));
    ASSERT_TRUE(ctx().save().ok());
    ASSERT_TRUE(Journal::undo(ctx()).ok());
    const auto edit = Journal::changesOf(ctx(), Journal::undoable(ctx()).value()->pk, 10);
    ASSERT_TRUE(edit.ok());
    ASSERT_EQ(edit.value().rows.size(), 1);
    EXPECT_EQ(edit.value().rows.first().name, "10 Cents 1964");
    QStringList fields;
    for (const Journal::FieldChange& f : edit.value().rows.first().fields)
        fields << f.attribute;
    EXPECT_EQ(fields, QStringList({"id", "value", "backImage", "frontImage"}));

    auto grade = ctx().insert<GradeNumbers>();
    grade->setGrade("MS-63");
    ASSERT_TRUE(ctx().save().ok());
    states << collection();
    grade->setGrade("MS-64");
    ASSERT_TRUE(ctx().save().ok());
    states << collection();

    ctx().deleteObject(other);
    ASSERT_TRUE(ctx().save().ok());
    states << collection();
    EXPECT_EQ(undoName(), "Deletion of 5 Cents 1950");
    expectHistoryMatchesCoins();

    for (qsizetype i = states.size() - 2; i >= 2; --i) {
        const auto undone = Journal::undo(ctx());
        ASSERT_TRUE(undone.ok()) << undone.error().message.toStdString();
        EXPECT_EQ(collection(), states[i]) << "after undoing back to state " << i;
        expectHistoryMatchesCoins();
    }
    // The records in memory follow the store.
    EXPECT_EQ(dime->value(), 1.5f);
    EXPECT_EQ(dime->frontImage(), QByteArray("front-1"));
    EXPECT_TRUE(dime->backImage().isNull());
    EXPECT_EQ(grade->managedObjectContext(), nullptr);

    reopen();
    EXPECT_EQ(redoName(), "Edit of 10 Cents 1964");
    for (qsizetype i = 3; i < states.size(); ++i) {
        const auto redone = Journal::redo(ctx());
        ASSERT_TRUE(redone.ok()) << redone.error().message.toStdString();
        EXPECT_EQ(collection(), states[i]) << "after redoing to state " << i;
    }
    EXPECT_EQ(redoName(), "");
    expectHistoryMatchesCoins();

    ASSERT_TRUE(Journal::undo(ctx()).ok());
    ASSERT_TRUE(Journal::undo(ctx()).ok());
    EXPECT_EQ(collection(), states[states.size() - 3]);
    coin("UK", "Crown", 1965);
    ASSERT_TRUE(ctx().save().ok());
    EXPECT_EQ(redoName(), "");
    EXPECT_FALSE(Journal::redo(ctx()).ok());

    // Undo back to a step takes every later one with it, and one redo brings them all back.
    const QByteArray beforeBackTo = collection();
    const auto all = Journal::steps(ctx(), 100).valueOr({});
    qint64 firstEdit = 0;
    for (const Journal::StepInfo& s : all)
        if (s.kind == Journal::Edit && s.state == Journal::StepInfo::State::InPlace)
            firstEdit = s.pk;
    ASSERT_NE(firstEdit, 0);
    const auto back = Journal::undoBackTo(ctx(), firstEdit);
    ASSERT_TRUE(back.ok()) << back.error().message.toStdString();
    EXPECT_EQ(back.value(), 3);
    EXPECT_EQ(collection(), states[2]);
    ASSERT_TRUE(Journal::redo(ctx()).ok());
    EXPECT_EQ(collection(), beforeBackTo);
    const auto newest = Journal::steps(ctx(), 1).valueOr({});
    ASSERT_EQ(newest.size(), 1);
    EXPECT_EQ(Journal::describe(newest.first(), false),
              "Redid 3 steps, from the Edit of 10 Cents 1964");
}

// A coin's earlier versions come back as a new step; a deleted coin is listed and put back
// under its own number, pictures and all, even after a new coin was added since.
TEST_F(JournalTest, VersionsAndDeletedCoinsComeBack) {
    CoinPtr dime = coin("US", "10 Cents", 1964, "D", 1, 1);
    dime->setFrontImage(QByteArray("front-1"));
    ASSERT_TRUE(ctx().save().ok());
    const qint64 pk = dime->objectID();
    dime->setValue(2);
    ASSERT_TRUE(ctx().save().ok());
    dime->setValue(3);
    dime->setFrontImage(QByteArray("front-2"));
    ASSERT_TRUE(ctx().save().ok());

    const auto versions = Journal::versionsOf(ctx(), pk);
    ASSERT_TRUE(versions.ok());
    ASSERT_EQ(versions.value().size(), 2);
    const Journal::CoinVersion& first = versions.value().last();
    QStringList changed;
    for (const Journal::FieldChange& f : first.fromNow)
        changed << f.attribute + "=" + f.after.toString();
    EXPECT_EQ(changed, QStringList({"value=1", "frontImage=front-1"}));
    ASSERT_TRUE(Journal::restoreVersion(ctx(), pk, first.step.pk).ok());
    EXPECT_EQ(dime->value(), 1.0f);
    EXPECT_EQ(dime->frontImage(), QByteArray("front-1"));
    EXPECT_EQ(undoName(), "Version Restore of 10 Cents 1964");

    const QByteArray withDime = collection();
    ctx().deleteObject(dime);
    ASSERT_TRUE(ctx().save().ok());
    // The number a deleted coin had is never given to a new one.
    CoinPtr crown = coin("UK", "Crown", 1965);
    ASSERT_TRUE(ctx().save().ok());
    EXPECT_GT(crown->objectID(), pk);

    const auto deleted = Journal::recentlyDeleted(ctx());
    ASSERT_TRUE(deleted.ok());
    ASSERT_EQ(deleted.value().size(), 1);
    EXPECT_EQ(deleted.value().first().name, "10 Cents 1964");
    EXPECT_EQ(deleted.value().first().country, "US");
    ASSERT_TRUE(Journal::putBack(ctx(), pk).ok());
    EXPECT_TRUE(Journal::recentlyDeleted(ctx()).valueOr({}).isEmpty());
    ctx().deleteObject(crown);
    ASSERT_TRUE(ctx().save().ok());
    EXPECT_EQ(collection(), withDime);

    // What a step changed, field by field.
    const auto changes = Journal::changesOf(ctx(), Journal::undoable(ctx()).value()->pk, 10);
    ASSERT_TRUE(changes.ok());
    ASSERT_EQ(changes.value().rows.size(), 1);
    EXPECT_EQ(changes.value().rows.first().kind, Journal::RowChange::Kind::Deleted);
    EXPECT_EQ(changes.value().rows.first().name, "Crown 1965");
}

// Old steps go at start only past both the days and the count kept, whole.
TEST_F(JournalTest, PruningKeepsTheDaysAndTheCount) {
    QDateTime now(QDate(2026, 1, 1), QTime(12, 0));
    ValueHistory::setClock([&now] { return now; });
    CoinPtr c = coin("US", "Cent", 1909);
    ASSERT_TRUE(ctx().save().ok());
    for (int i = 0; i < 9; ++i) {
        now = now.addDays(30);
        c->setValue(float(i + 2));
        ASSERT_TRUE(ctx().save().ok());
    }
    // Ten steps, thirty days apart: those older than 90 days and not among the newest 5 go.
    EXPECT_EQ(Journal::prune(ctx(), now, 90, 5).valueOr(-1), 5);
    EXPECT_EQ(Journal::steps(ctx(), 100).valueOr({}).size(), 5);
    EXPECT_EQ(Journal::prune(ctx(), now, 90, 2).valueOr(-1), 1);
    EXPECT_EQ(Journal::prune(ctx(), now, 90, 2).valueOr(-1), 0);
    ValueHistory::setClock({});
    const auto versions = Journal::versionsOf(ctx(), c->objectID());
    EXPECT_EQ(versions.valueOr({}).size(), 4);
    EXPECT_EQ(OtherConnection(QDir(dir()).filePath("Pelvane.sqlite"))
                  .number("SELECT count(*) FROM Journal WHERE seq / 16777216 NOT IN (SELECT "
                          "seq / 16777216 FROM Journal WHERE tbl = 0)"),
              0);
}
