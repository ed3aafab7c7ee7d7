#include "StoreFixture.h"

#include <QCoreApplication>
#include <sqlite3.h>

TEST_F(StoreTest, EveryQueryFormMatchesStoredRecords) {
    coin("Canada", "1 Cent", 1965, "P", 2, 0.5f);
    coin("Canada", "5 Cents", 1965, "D", 1, 3.5f);
    coin("USA", "1 Cent", 1909, "S", 4, 12.5f);
    coin("", "Dime", 1960);
    coin(QString(), "Nickel", 1961);
    ASSERT_TRUE(ctx().save().ok());
    reopen(); // everything below comes from the file, not from memory

    EXPECT_EQ(fetch(eq("denomination = %@", "1 Cent")).size(), 2);
    EXPECT_EQ(fetch(eq("denomination == %@", "1 Cent")).size(), 2);
    EXPECT_EQ(fetch(eq("denomination=%@", "1 Cent")).size(), 2);
    EXPECT_EQ(fetch(eq("denomination == %@", "1 cent")).size(), 0); // exact, case-sensitive
    EXPECT_EQ(fetch(eq("country == %@", "")).size(), 1);            // "" matches "" only
    EXPECT_EQ(fetch(eq("country == %@", ""))[0]->denomination(), "Dime");
    EXPECT_EQ(fetch(eq("country == %@", QVariant())).size(), 1); // nil matches absent
    // Integer attributes compare with the number a text spells; no number, no match.
    EXPECT_EQ(fetch(eq("year == %@", "1965")).size(), 2);
    EXPECT_EQ(fetch(eq("year = %@", 1909)).size(), 1);
    EXPECT_EQ(fetch(eq("year == %@", "")).size(), 0);
    EXPECT_EQ(fetch(eq("year == %@", "19x5")).size(), 0);
    EXPECT_EQ(fetch(eq("value=%@", "3.5")).size(), 1);

    auto both =
        Predicate::andPredicate({eq("denomination = %@", "1 Cent"), eq("year = %@", "1909")});
    ASSERT_EQ(fetch(both).size(), 1);
    EXPECT_EQ(fetch(both)[0]->country(), "USA");
    auto four =
        Predicate::andPredicate({eq("country == %@", "Canada"), eq("denomination == %@", "1 Cent"),
                                 eq("mintMark == %@", "P"), eq("year == %@", "1965")});
    EXPECT_EQ(fetch(four).size(), 1);
    EXPECT_EQ(
        fetch(Predicate::format(QStringLiteral("country == %@ AND year == %@"), {"Canada", "1965"}))
            .size(),
        2);

    // Sorting: every key both ways; absent texts first ascending; ties in store order.
    EXPECT_EQ(denominations(fetch({}, {{"country", true}})),
              QStringList({"Nickel", "Dime", "1 Cent", "5 Cents", "1 Cent"}));
    EXPECT_EQ(denominations(fetch({}, {{"year", false}})),
              QStringList({"1 Cent", "5 Cents", "Nickel", "Dime", "1 Cent"}));
    EXPECT_EQ(denominations(fetch({}, {{"value", false}})).first(), "1 Cent");
    EXPECT_EQ(fetch({}, {{"quantity", false}}).first()->quantity(), 4);
    EXPECT_EQ(denominations(fetch({}, {{"denomination", true}, {"year", true}})),
              QStringList({"1 Cent", "1 Cent", "5 Cents", "Dime", "Nickel"}));
    EXPECT_EQ(fetch({}, {{"denomination", true}, {"year", true}}).first()->year(), 1909);
}

TEST_F(StoreTest, FetchesSeePendingChanges) {
    auto a = coin("Canada", "1 Cent", 1965);
    auto b = coin("Canada", "5 Cents", 1966);
    coin("Canada", "10 Cents", 1967);
    ASSERT_TRUE(ctx().save().ok());
    EXPECT_FALSE(ctx().hasChanges());

    b->setDenomination(QStringLiteral("25 Cents")); // unsaved update
    EXPECT_TRUE(ctx().hasChanges());
    EXPECT_EQ(fetch(eq("denomination == %@", "25 Cents")).size(), 1);
    EXPECT_EQ(fetch(eq("denomination == %@", "5 Cents")).size(), 0);

    coin("Canada", "50 Cents", 1968); // unsaved insert
    EXPECT_EQ(fetch(eq("country == %@", "Canada")).size(), 4);
    ctx().deleteObject(a); // unsaved delete
    EXPECT_EQ(fetch(eq("country == %@", "Canada")).size(), 3);

    // Sorting applies to the merged result, not just to what came from the file.
    EXPECT_EQ(denominations(fetch({}, {{"denomination", false}})),
              QStringList({"50 Cents", "25 Cents", "10 Cents"}));
    EXPECT_EQ(denominations(fetch()), QStringList({"25 Cents", "10 Cents", "50 Cents"}));

    ASSERT_TRUE(ctx().save().ok());
    EXPECT_EQ(a->managedObjectContext(), nullptr);
    reopen();
    EXPECT_EQ(denominations(fetch({}, {{"year", true}})),
              QStringList({"25 Cents", "10 Cents", "50 Cents"}));
    EXPECT_EQ(fetch(eq("denomination == %@", "1 Cent")).size(), 0); // never comes back
}

TEST_F(StoreTest, OneObjectPerRowAndPicturesOnFirstAccess) {
    auto a = coin("Peru", "1 Sol", 1935);
    const QByteArray front(3000, 'F');
    a->setFrontImage(front);
    a->setBackImage(QByteArray("")); // empty is a value, unlike absent
    ASSERT_TRUE(ctx().save().ok());
    reopen();
    auto first = fetch();
    auto second = fetch(eq("country == %@", "Peru"));
    ASSERT_EQ(first.size(), 1);
    EXPECT_EQ(first[0].get(), second[0].get()); // same object, shared by both arrays
    first[0]->setNotes(QStringLiteral("edited"));
    EXPECT_EQ(second[0]->notes(), "edited");
    EXPECT_EQ(first[0]->frontImage(), front);
    EXPECT_TRUE(first[0]->hasValue(Coins::Attr::backImage));
    EXPECT_TRUE(first[0]->backImage().isEmpty());

    // Changing one picture keeps the other.
    first[0]->setBackImage(QByteArray("B"));
    ASSERT_TRUE(ctx().save().ok());
    first.clear();
    second.clear();
    reopen();
    auto again = fetch();
    EXPECT_EQ(again[0]->frontImage(), front);
    EXPECT_EQ(again[0]->backImage(), QByteArray("B"));
    EXPECT_EQ(again[0]->notes(), "edited");
    EXPECT_EQ(again[0]->value("country").toString(), "Peru");
    // Absent scalars read as 0 and absent texts as null.
    EXPECT_EQ(again[0]->diameter(), 0.0);
    EXPECT_TRUE(again[0]->designer().isNull());
}

TEST_F(StoreTest, FailedSaveRollsBackAndKeepsChangesPending) {
    coin("Chile", "1 Peso", 1990);
    ASSERT_TRUE(ctx().save().ok());
    // Another writer of the same file refuses one value, as a broken disk would refuse all.
    ASSERT_EQ(OtherConnection(path("Pelvane.sqlite"))
                  .exec("CREATE TRIGGER refuse BEFORE INSERT ON Coins WHEN "
                        "NEW.country = 'FAIL' BEGIN SELECT RAISE(ABORT, 'refused'); END;"),
              SQLITE_OK);
    auto good = coin("Chile", "5 Pesos", 1991);
    auto bad = coin("FAIL", "10 Pesos", 1992);
    fetch().first()->setYear(1999);
    const Result<void> saved = ctx().save();
    ASSERT_FALSE(saved.ok());
    EXPECT_TRUE(saved.error().message.contains("refused"));
    EXPECT_TRUE(ctx().hasChanges());
    EXPECT_EQ(good->objectID(), 0);
    EXPECT_EQ(fetch().size(), 3); // still seen through the context

    // Nothing of the failed transaction reached the file.
    {
        PersistentContainer other(QStringLiteral("Pelvane"));
        other.loadPersistentStores({});
        FetchRequest r(QStringLiteral("Coins"));
        auto stored = other.viewContext()->fetch<Coins>(r);
        ASSERT_EQ(stored.size(), 1);
        EXPECT_EQ(stored[0]->year(), 1990);
    }
    ctx().deleteObject(bad);
    ASSERT_TRUE(ctx().save().ok());
    reopen();
    EXPECT_EQ(denominations(fetch({}, {{"year", true}})), QStringList({"5 Pesos", "1 Peso"}));
}

// Reads share one transaction until the event loop turns or the context saves: another
// writer's coin is seen from then on, and saving in the middle of a batch works.
TEST_F(StoreTest, ReadsBetweenTurnsOfTheEventLoopShareOneTransaction) {
    coin("Chile", "1 Peso", 1990);
    ASSERT_TRUE(ctx().save().ok());
    ASSERT_EQ(fetch().size(), 1);
    auto other = std::make_unique<OtherConnection>(path("Pelvane.sqlite"));
    ASSERT_EQ(other->exec("INSERT INTO Coins (country, denomination, year) VALUES "
                          "('Peru', '1 Sol', 1994)"),
              SQLITE_OK);
    EXPECT_EQ(fetch().size(), 1); // the batch still reads what it began with
    QCoreApplication::processEvents();
    EXPECT_EQ(fetch().size(), 2);

    // The other writer changes the file while a batch is open: the save, which would write
    // in that batch, writes in a fresh transaction instead.
    ASSERT_EQ(other->exec("UPDATE Coins SET year = 1995 WHERE country = 'Peru'"), SQLITE_OK);
    coin("Chile", "5 Pesos", 1991);
    ASSERT_TRUE(ctx().save().ok());
    EXPECT_EQ(fetch().size(), 3);
    EXPECT_EQ(fetch(eq("year == %@", "1995")).size(), 1);
    // The other writer is not kept waiting by a batch that has ended.
    QCoreApplication::processEvents();
    EXPECT_EQ(other->exec("DELETE FROM Coins WHERE country = 'Peru'"), SQLITE_OK);
    EXPECT_EQ(sqlite3_wal_checkpoint_v2(other->handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE,
                                        nullptr, nullptr),
              SQLITE_OK);
    other.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(fetch().size(), 2);
}

TEST_F(StoreTest, StoreFromANewerVersionIsRefusedAndLeftAlone) {
    container.reset();
    OtherConnection(path("Pelvane.sqlite")).exec("PRAGMA user_version=99");
    const QByteArray before = readFile(path("Pelvane.sqlite"));
    PersistentContainer c(QStringLiteral("Pelvane"));
    std::optional<Error> failure;
    c.loadPersistentStores([&](const StoreDescription&, const auto& e) { failure = e; });
    ASSERT_TRUE(failure.has_value());
    EXPECT_TRUE(failure->message.contains("written by a newer Pelvane (store version 99"))
        << failure->message.toStdString();
    EXPECT_EQ(c.viewContext(), nullptr);
    EXPECT_EQ(readFile(path("Pelvane.sqlite")), before);
}

TEST(PredicateDeathTest, UnknownFormatIsFatal) {
    EXPECT_DEATH(Predicate::format(QStringLiteral("year > %@"), QVariant(1)), "Fatal error");
    EXPECT_DEATH(Predicate::format(QStringLiteral("year == %@"), QVariantList{}), "Fatal error");
}

// With a long list in memory, fetches read row ids first; the answers must be the same as
// from whole rows, pending changes included, and rows not yet in memory still arrive.
TEST_F(StoreTest, FetchesWithManyObjectsInMemoryAgreeWithAFreshStore) {
    const int n = int(ManagedObjectContext::kKeysFirstThreshold) + 200;
    for (int i = 0; i < n; ++i)
        coin(i % 3 ? "Canada" : "Peru", QStringLiteral("D%1").arg(i % 17), 1900 + i % 50, "P",
             i % 4, float(i % 23));
    ASSERT_TRUE(ctx().save().ok());
    const auto byValue = [&](const Predicate& p) {
        return fetch(p, {{"value", false}, {"year", true}});
    };
    const QList<CoinPtr> expected = byValue(eq("country == %@", "Peru")); // from whole rows
    QStringList expectedKeys;
    for (const auto& c : expected)
        expectedKeys
            << QStringLiteral("%1/%2/%3").arg(c->value()).arg(c->year()).arg(c->denomination());

    reopen();
    QList<CoinPtr> held = fetch(); // every coin in memory but a few
    ASSERT_EQ(held.size(), n);
    held.erase(held.begin(), held.begin() + 30);
    const QList<CoinPtr> again = byValue(eq("country == %@", "Peru"));
    QStringList keys;
    for (const auto& c : again)
        keys << QStringLiteral("%1/%2/%3").arg(c->value()).arg(c->year()).arg(c->denomination());
    EXPECT_EQ(keys, expectedKeys);
    EXPECT_EQ(again.first(), fetch(eq("country == %@", "Peru"), {{"value", false}, {"year", true}})
                                 .first()); // the same objects

    // Pending changes: an update moves a coin, an insert joins, a deletion leaves.
    CoinPtr top = again.first();
    top->setValue(-1);
    auto extra = coin("Peru", "New", 2000, "P", 1, 99);
    ctx().deleteObject(again.at(1));
    const QList<CoinPtr> merged = byValue(eq("country == %@", "Peru"));
    EXPECT_EQ(merged.size(), again.size());
    EXPECT_EQ(merged.first(), extra);
    EXPECT_EQ(merged.last(), top);
    EXPECT_FALSE(merged.contains(again.at(1)));
    EXPECT_EQ(fetch(eq("value == %@", "-1")).size(), 1);
}

// Many unsaved coins are looked up through an index of their texts; it must answer as
// reading each would, through later changes, deletions, absent and empty values, and in the
// order the coins were made.
TEST_F(StoreTest, FetchesAmongManyUnsavedCoinsFollowTheirChanges) {
    QList<CoinPtr> made;
    for (int i = 0; i < 200; ++i)
        made << coin(QStringLiteral("C%1").arg(i % 10), QStringLiteral("D%1").arg(i % 7), 1900);
    made[0]->setValue(Coins::Attr::country, QVariant()); // absent
    made[10]->setCountry(QString(""));                   // empty
    auto count = [&](const char* country) { return fetch(eq("country == %@", country)).size(); };
    EXPECT_EQ(count("C3"), 20);
    const QList<CoinPtr> threes = fetch(eq("country == %@", "C3"));
    EXPECT_TRUE(std::is_sorted(threes.begin(), threes.end(), [&](const auto& a, const auto& b) {
        return made.indexOf(a) < made.indexOf(b);
    }));
    made[3]->setCountry("C4"); // after the index was made
    EXPECT_EQ(count("C3"), 19);
    EXPECT_EQ(count("C4"), 21);
    ctx().deleteObject(made[4]);
    EXPECT_EQ(count("C4"), 20);
    EXPECT_EQ(count(""), 1);
    EXPECT_EQ(count("C0"), 18);
    EXPECT_EQ(
        fetch(Predicate::andPredicate({eq("country == %@", "C5"), eq("denomination = %@", "D1")}))
            .size(),
        3);
    auto late = coin("C3", "D9", 2000); // made after the index
    EXPECT_EQ(count("C3"), 20);
    EXPECT_EQ(fetch(eq("country == %@", "C3")).last(), late);

    ASSERT_TRUE(ctx().save().ok());
    reopen();
    EXPECT_EQ(count("C3"), 20);
    EXPECT_EQ(count("C4"), 20);
    EXPECT_EQ(count(""), 1);
    EXPECT_EQ(count("C0"), 18);
}
