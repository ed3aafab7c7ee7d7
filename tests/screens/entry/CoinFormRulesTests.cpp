#include "AppFixture.h"
#include "screens/entry/CoinFormRules.h"

using namespace CoinFormRules;

TEST_F(AppTest, AddFormRules) {
    CoinFormTexts t;
    EXPECT_FALSE(hasRequiredFields(t));
    t.denomination = " Dime\t";
    EXPECT_FALSE(hasRequiredFields(t));
    t.year = "1964";
    ASSERT_TRUE(hasRequiredFields(t));
    auto coin = ctx().insert<Coins>();
    applyAddForm(*coin, t, 0);
    EXPECT_EQ(coin->denomination(), "Dime");
    EXPECT_EQ(coin->year(), 1964);
    EXPECT_EQ(coin->mintMark(), "None");
    EXPECT_EQ(coin->id(), 0);
    EXPECT_FALSE(coin->hasValue(Coins::Attr::country)); // skipped, not empty
    EXPECT_FALSE(coin->hasValue(Coins::Attr::frontImage));
    EXPECT_FALSE(coin->hasValue(Coins::Attr::notes));

    t.gradeNumber = " MS/PF-65 "; // picked values are kept as they stand
    t.mintMark = " D ";
    t.value = "12.5";
    t.diameter = ".5";
    t.notes = "never stored here";
    auto second = ctx().insert<Coins>();
    applyAddForm(*second, t, 0);
    EXPECT_EQ(second->gradeNumber(), " MS/PF-65 ");
    EXPECT_EQ(second->mintMark(), "D");
    EXPECT_EQ(second->value(), 12.5f);
    EXPECT_EQ(second->diameter(), 0.5);
    EXPECT_FALSE(second->hasValue(Coins::Attr::notes));
    EXPECT_EQ(second->totalValue(), 0.0f);

    CoinFormTexts bad = t;
    bad.weight = "1.2.3";
    EXPECT_DEATH(applyAddForm(*ctx().insert<Coins>(), bad, 0), "AddViewController.*Fatal error");
    bad = t;
    bad.year = "40000";
    EXPECT_DEATH(applyAddForm(*ctx().insert<Coins>(), bad, 0), "Fatal error");
    bad = t;
    bad.value = ".";
    EXPECT_DEATH(applyAddForm(*ctx().insert<Coins>(), bad, 0), "Fatal error");
}

TEST_F(AppTest, EditFormRulesDifferFromTheAddForm) {
    auto coin = ctx().insert<Coins>();
    coin->setDenomination("Lincoln Cent");
    coin->setYear(1909);
    coin->setQuantity(2);
    coin->setValue(3.5f);
    coin->setDiameter(19.05);
    coin->setMintMark("S");
    coin->setGradeNumber("VF-20");
    coin->setTotalValue(7.0f);

    CoinFormTexts t = textsFor(*coin);
    EXPECT_EQ(t.value, "3.50");
    EXPECT_EQ(t.diameter, "19.05");
    EXPECT_EQ(t.weight, "0.0");
    EXPECT_EQ(t.year, "1909");

    t.diameter = "";
    t.weight = "1.2.3";
    t.mintMark = "";
    t.gradeNumber = " VF-30 ";
    t.notes = "two\nlines";
    applyEditForm(*coin, t);
    EXPECT_EQ(coin->diameter(), 0.0);
    EXPECT_TRUE(coin->hasValue(Coins::Attr::diameter));
    EXPECT_EQ(coin->weight(), 0.0); // cleared
    EXPECT_EQ(coin->mintMark(), "None");
    EXPECT_EQ(coin->gradeNumber(), "VF-30");
    EXPECT_EQ(coin->notes(), "two\nlines");
    EXPECT_EQ(coin->totalValue(), 7.0f); // never written by the forms
    EXPECT_EQ(coin->value(), 3.5f);

    t.value = "abc";
    applyEditForm(*coin, t);
    EXPECT_EQ(coin->value(), 0.0f);

    CoinFormTexts bad = t;
    bad.quantity = "";
    EXPECT_DEATH(applyEditForm(*coin, bad), "EditViewController.*Fatal error");
    bad = t;
    bad.year = "19O9";
    EXPECT_DEATH(applyEditForm(*coin, bad), "Fatal error");
}
