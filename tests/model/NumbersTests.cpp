#include "model/Numbers.h"

#include <gtest/gtest.h>

TEST(Numbers, StrictParsing) {
    EXPECT_EQ(Numbers::parseInt16(u"1965"), 1965);
    EXPECT_EQ(Numbers::parseInt16(u"-32768"), -32768);
    EXPECT_EQ(Numbers::parseInt16(u"+7"), 7);
    for (auto bad : {u"32768", u"", u"-", u" 1", u"1 ", u"1.0", u"1e3", u"0x10"})
        EXPECT_FALSE(Numbers::parseInt16(bad)) << QString::fromUtf16(bad).toStdString();

    EXPECT_EQ(Numbers::parseDouble(u"12.5"), 12.5);
    EXPECT_EQ(Numbers::parseDouble(u".5"), 0.5);
    EXPECT_EQ(Numbers::parseDouble(u"5."), 5.0);
    EXPECT_EQ(Numbers::parseDouble(u"1e-05"), 1e-05);
    EXPECT_EQ(Numbers::parseDouble(u"-2.5E+3"), -2500.0);
    for (auto bad : {u"1.2.3", u"", u".", u" 1", u"1,5", u"abc", u"1e", u"e5", u"--1"})
        EXPECT_FALSE(Numbers::parseDouble(bad)) << QString::fromUtf16(bad).toStdString();
    // Floats are rounded once, from the text, not via double.
    EXPECT_EQ(Numbers::parseFloat(u"0.1"), 0.1f);
}

TEST(Numbers, ShortestTextsReadBack) {
    EXPECT_EQ(Numbers::formatDouble(0), "0.0");
    EXPECT_EQ(Numbers::formatDouble(12.5), "12.5");
    EXPECT_EQ(Numbers::formatDouble(100000), "100000.0");
    EXPECT_EQ(Numbers::formatDouble(1e-05), "1e-05");
    EXPECT_EQ(Numbers::formatFloat(0.1f), "0.1");
    EXPECT_EQ(Numbers::formatFloat(-3.0f), "-3.0");
    EXPECT_EQ(Numbers::formatDouble(0.0001), "0.0001");
    EXPECT_EQ(Numbers::formatDouble(1e16), "1e+16");
    EXPECT_EQ(Numbers::formatFloat(16777216.0f), "1.6777216e+07");
    for (double d : {1e-300, 123456789.123, 1.0 / 3, 6.02e23})
        EXPECT_EQ(Numbers::parseDouble(Numbers::formatDouble(d)), d);
    for (float f : {1e-20f, 3.14159f, 16777217.0f, 0.3f})
        EXPECT_EQ(Numbers::parseFloat(Numbers::formatFloat(f)), f);
}
