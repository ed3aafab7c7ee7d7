#include "StoreFixture.h"

namespace {
// The groups a fetch of every record would make, counted one by one.
QHash<QString, qint64> fetchedGroups(const QList<CoinPtr>& coins, const char* key) {
    QHash<QString, qint64> out;
    for (const auto& c : coins) {
        const int attr = c->entity().indexOf(QString::fromLatin1(key));
        if (!c->hasValue(attr))
            continue;
        const QVariant v = c->value(attr);
        ++out[v.typeId() == QMetaType::QString ? v.toString() : QString::number(v.toInt())];
    }
    return out;
}
} // namespace

TEST_F(StoreTest, CountsAgreeWithFetchesThroughUnsavedChanges) {
    auto a = coin("Canada", "1 Cent", 1965);
    auto b = coin("Canada", "1 Cent", 1966);
    auto c = coin("USA", "Dime", 1965);
    coin("", "", 1999);
    coin(QString(), "Dime", 1999); // no country: in no country group
    ASSERT_TRUE(ctx().save().ok());
    reopen();
    const auto stored = fetch({}, {{"year", true}});
    a = stored[0]; // 1 Cent 1965 Canada
    c = stored[1]; // Dime 1965 USA
    b = stored[2]; // 1 Cent 1966 Canada

    auto check = [&](const char* step) {
        SCOPED_TRACE(step);
        for (const char* key : {"denomination", "country", "year"})
            EXPECT_EQ(ctx().countBy(FetchRequest("Coins"), key).value(),
                      fetchedGroups(fetch(), key))
                << key;
        const Predicate oneCent = eq("denomination = %@", "1 Cent");
        EXPECT_EQ(ctx().count(FetchRequest("Coins")).value(), fetch().size());
        FetchRequest r("Coins");
        r.predicate = oneCent;
        EXPECT_EQ(ctx().count(r).value(), fetch(oneCent).size());
        r.predicate = eq("year == %@", "1965");
        EXPECT_EQ(ctx().count(r).value(), fetch(r.predicate).size());
        EXPECT_EQ(ctx().countBy(r, "denomination").value(),
                  fetchedGroups(fetch(r.predicate), "denomination"));
    };
    check("stored");
    EXPECT_EQ(ctx().countBy(FetchRequest("Coins"), "country").value().value(""), 1);
    EXPECT_FALSE(ctx().countBy(FetchRequest("Coins"), "country").value().contains("Peru"));

    const quint64 before = ctx().changeCount();
    b->setDenomination("Dime");            // moves between groups, unsaved
    c->setYear(1970);                      // leaves the 1965 predicate
    ctx().deleteObject(a);                 // unsaved delete
    auto d = coin("Peru", "1 Cent", 1965); // unsaved insert
    EXPECT_GT(ctx().changeCount(), before);
    check("pending");
    EXPECT_EQ(ctx().countBy(FetchRequest("Coins"), "denomination").value().value("Dime"), 3);

    // A record changed and then deleted counts as neither its old nor its new value.
    d->setCountry("Chile");
    ctx().deleteObject(c);
    check("changed then deleted");

    const quint64 unsaved = ctx().changeCount();
    ASSERT_TRUE(ctx().save().ok());
    EXPECT_NE(ctx().changeCount(), unsaved);
    check("saved");
    reopen();
    check("reopened");
}
