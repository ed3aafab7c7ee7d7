#include "AppFixture.h"
#include "screens/list/MainListSorting.h"

#include <QLocale>

namespace {
QStringList years(const QList<CoinPtr>& coins) {
    QStringList out;
    for (const auto& c : coins)
        out << QString::number(c->year());
    return out;
}
} // namespace

class MainListSortingTest : public AppTest {
protected:
    CoinPtr add(const QString& denomination, int year, float value, int quantity = 1,
                const QString& country = QStringLiteral("Canada")) {
        auto c = ctx().insert<Coins>();
        c->setDenomination(denomination);
        c->setYear(qint16(year));
        c->setValue(value);
        c->setQuantity(qint16(quantity));
        c->setCountry(country);
        list.append(c);
        return c;
    }
    QList<CoinPtr> list;
};

TEST_F(MainListSortingTest, SearchFollowsTheSortKey) {
    for (int y : {1959, 1960, 1964, 1969, 1970, 1196})
        add("Cent", y, 1);
    EXPECT_EQ(years(MainListSorting::filter(list, "Year", "196")),
              QStringList({"1960", "1964", "1969", "1196"}));
    EXPECT_EQ(MainListSorting::filter(list, "Year", "").size(), list.size());
    // No sort chosen yet: the search has no key and every coin stays shown.
    EXPECT_EQ(MainListSorting::filter(list, "", "196").size(), list.size());

    list.clear();
    add("Half Dollar", 1, 12.5f);
    add("Quarter", 2, 2.55f);
    add("Dime", 3, 2.0f);
    add("dollar", 4, 10.0f, 7);
    EXPECT_EQ(years(MainListSorting::filter(list, "Value", "2.5")), QStringList({"1", "2"}));
    EXPECT_EQ(years(MainListSorting::filter(list, "Value", "10.0")), QStringList({"4"}));
    EXPECT_EQ(years(MainListSorting::filter(list, "Name", "DOLLAR")), QStringList({"1", "4"}));
    EXPECT_EQ(years(MainListSorting::filter(list, "Qty", "7")), QStringList({"4"}));

    list.clear();
    add("Peso", 1, 1, 1, "Mexico");
    add("Peso", 2, 1, 1, ""); // empty country: never a match
    add("Sol", 3, 1, 1, "Peru");
    EXPECT_EQ(years(MainListSorting::filter(list, "Country", "e")), QStringList({"1", "3"}));
    add("Real", 4, 1, 1, QString());
    EXPECT_DEATH(MainListSorting::filter(list, "Country", "e"), "Fatal error");
}

TEST_F(MainListSortingTest, RowTextsCountAZeroQuantityAsOneCoin) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    auto c = add("1 Cent", 1965, 0.5f, 0);
    c->setMintMark("P");
    EXPECT_EQ(MainListSorting::yearLine(*c), "Year: 1965  Mint Mark: P");
    EXPECT_EQ(MainListSorting::quantityLine(*c), "Qty: 1");
    EXPECT_EQ(MainListSorting::valueLine(*c), "Value: $0.50  Total Value: $0.50");
    c->setQuantity(3);
    c->setMintMark(QString());
    EXPECT_EQ(MainListSorting::yearLine(*c), "Year: 1965  Mint Mark: ");
    EXPECT_EQ(MainListSorting::valueLine(*c), "Value: $0.50  Total Value: $1.50");
    QLocale::setDefault(QLocale::c());
}
