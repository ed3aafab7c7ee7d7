#include "AppFixture.h"
#include "platform/core/Console.h"
#include "platform/core/UserDefaults.h"
#include "screens/menu/LaunchHousekeeping.h"

#include <QDir>
#include <QFile>
#include <sqlite3.h>

namespace {
void launch() {
    LaunchHousekeeping(UserDefaults::standard()).run();
}

template <typename T> QStringList texts(const QList<std::shared_ptr<T>>& records) {
    QStringList out;
    for (const auto& r : records)
        out << r->value(0).toString();
    return out;
}
} // namespace

TEST_F(AppTest, FirstLaunchSeedsOnceAndNeverAgain) {
    launch();
    EXPECT_EQ(Console::captured(), QStringList({"First Launch"}));
    const auto strikes = all<StrikeCharacters>();
    const auto grades = all<GradeNumbers>();
    const auto edges = all<CoinEdge>();
    ASSERT_EQ(strikes.size(), 65);
    ASSERT_EQ(grades.size(), 30);
    EXPECT_EQ(texts(edges),
              QStringList({"Plain", "Ridged", "Smooth", "Grooved", "Milled", "Reeded"}));
    // Store order is the seeding order, quirks included.
    EXPECT_EQ(texts(strikes).indexOf("RY") + 1, texts(strikes).indexOf("RFY"));
    EXPECT_EQ(texts(grades).first(), "MS/PF-70");
    EXPECT_EQ(texts(grades).at(23), "VG-1-");
    EXPECT_EQ(texts(grades).last(), "PO-1");

    // The user empties the lists; a later launch does not seed again.
    for (const auto& s : strikes)
        ctx().deleteObject(s);
    delegate->saveContext();
    relaunch();
    Console::startCapture();
    launch();
    EXPECT_EQ(Console::captured(), QStringList({"Not First Launch"}));
    EXPECT_EQ(all<StrikeCharacters>().size(), 0);
    EXPECT_EQ(all<GradeNumbers>().size(), 30);
}

TEST_F(AppTest, RepairNumbersCoinsOnlyWhileTheFlagIsSet) {
    launch();
    for (const char* d : {"1 Cent", "5 Cents", "10 Cents"}) {
        auto c = ctx().insert<Coins>();
        c->setDenomination(QString::fromLatin1(d));
        c->setQuantity(3);
    }
    ASSERT_TRUE(ctx().save().ok());
    relaunch();
    launch();
    for (const auto& c : all<Coins>())
        EXPECT_EQ(c->id(), 0); // flag absent: ids stay as stored

    UserDefaults::standard().setBool(true, "IDHasBeenFixedFlag");
    for (int start = 0; start < 2; ++start) {
        relaunch();
        Console::startCapture();
        launch();
        EXPECT_EQ(Console::captured(), QStringList({"Not First Launch", "Fixing ID's"}));
        relaunch();
        QList<qint16> ids;
        QStringList names;
        for (const auto& c : all<Coins>()) {
            ids << c->id();
            names << c->denomination();
            EXPECT_EQ(c->quantity(), 3);
        }
        EXPECT_EQ(ids, QList<qint16>({1, 2, 3}));
        EXPECT_EQ(names, QStringList({"1 Cent", "5 Cents", "10 Cents"}));
        EXPECT_TRUE(UserDefaults::standard().boolForKey("IDHasBeenFixedFlag"));
    }
}

TEST_F(AppTest, StoreFailuresAreFatalWithTheirSourceAndLine) {
    // A folder where the store file should be cannot be opened as a store.
    QFile::remove(path("Pelvane.sqlite"));
    QDir(dir()).mkpath("Pelvane.sqlite");
    EXPECT_DEATH(
        {
            relaunch();
            ctx();
        },
        "Pelvane/AppDelegate:46: Fatal error: Unresolved error the collection cannot be opened "
        "\\(unable to open database file\\), store .*/Pelvane.sqlite, SQLite code 14");
}

TEST_F(AppTest, FailedSaveContextIsFatal) {
    auto c = ctx().insert<Coins>();
    c->setDenomination("1 Cent");
    ASSERT_TRUE(ctx().save().ok());
    ASSERT_EQ(OtherConnection(path("Pelvane.sqlite"))
                  .exec("CREATE TRIGGER refuse BEFORE UPDATE ON Coins BEGIN "
                        "SELECT RAISE(ABORT, 'disk says no'); END;"),
              SQLITE_OK);
    c->setDenomination("2 Cents");
    EXPECT_DEATH(delegate->saveContext(),
                 "Pelvane/AppDelegate:63: Fatal error: Unresolved error the collection refused the "
                 "change \\(disk says no\\), store .*/Pelvane.sqlite, SQLite code 1811");
    // Without changes there is nothing to save and nothing fails.
    ctx().deleteObject(c);
    c.reset();
}
