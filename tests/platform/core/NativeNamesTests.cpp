#include "platform/core/NativeNames.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace {
QString escaped(std::initializer_list<uchar> bytes) {
    QString out;
    for (uchar b : bytes)
        out += QChar(char16_t(0xDC00 + b));
    return out;
}
} // namespace

// Valid UTF-8 is read as the text it is; every byte of anything else (Latin-1, sequences cut
// short, overlong forms, surrogates written as UTF-8, code points past U+10FFFF) is kept alone,
// and each name gives back exactly its bytes.
TEST(NativeNames, DecodeUtf8AndKeepEveryOtherByte) {
    using Files::fromNativeName;
    EXPECT_EQ(fromNativeName("Pelvane.csv"), "Pelvane.csv");
    EXPECT_EQ(fromNativeName("caf\xc3\xa9 \xe2\x82\xac \xf0\x9d\x84\x9e"),
              QStringLiteral(u"café € \U0001D11E"));
    EXPECT_EQ(fromNativeName("\xef\xbf\xbd"), QStringLiteral(u"\uFFFD"));

    const struct {
        QByteArray bytes;
        QString text;
    } cases[] = {
        {"caf\xe9.csv", "caf" + escaped({0xe9}) + ".csv"},
        {"\x80\xbf\xfe\xff", escaped({0x80, 0xbf, 0xfe, 0xff})},
        // Cut short, at the end and before another character.
        {"a\xe2\x82", "a" + escaped({0xe2, 0x82})},
        {"\xe2\x82z", escaped({0xe2, 0x82}) + "z"},
        {"\xf0\x9d\x84", escaped({0xf0, 0x9d, 0x84})},
        {"\xc3\xc3\xa9", escaped({0xc3}) + QStringLiteral(u"é")},
        // Overlong: "/" and "." in two and three bytes are not a slash and a dot.
        {"\xc0\xaf", escaped({0xc0, 0xaf})},
        {"\xc1\xae", escaped({0xc1, 0xae})},
        {"\xe0\x80\xaf", escaped({0xe0, 0x80, 0xaf})},
        {"\xf0\x82\x82\xac", escaped({0xf0, 0x82, 0x82, 0xac})},
        // Surrogates written as UTF-8: not the escapes themselves, which would make
        // "\xed\xb3\xa9" and "\xe9" one name.
        {"\xed\xa0\x80", escaped({0xed, 0xa0, 0x80})},
        {"\xed\xb3\xa9", escaped({0xed, 0xb3, 0xa9})},
        {"\xed\xa0\xb4\xed\xb4\x9e", escaped({0xed, 0xa0, 0xb4, 0xed, 0xb4, 0x9e})},
        // Past U+10FFFF.
        {"\xf4\x90\x80\x80", escaped({0xf4, 0x90, 0x80, 0x80})},
        {"\xf5\x80\x80\x80", escaped({0xf5, 0x80, 0x80, 0x80})},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fromNativeName(c.bytes), c.text) << c.bytes.toHex().constData();
        EXPECT_EQ(Files::nativeName(c.text), c.bytes) << c.bytes.toHex().constData();
    }
    EXPECT_NE(fromNativeName("a\xe9"), fromNativeName("a\xe8"));
    EXPECT_FALSE(fromNativeName("a\xe9").contains(QChar::ReplacementCharacter));

    // Every name of one and two bytes, and many longer ones made mostly of bytes that begin,
    // continue or break sequences.
    for (int a = 0; a < 256; ++a)
        for (int b = 0; b < 256; ++b) {
            const QByteArray bytes{char(a), char(b)};
            ASSERT_EQ(Files::nativeName(fromNativeName(bytes)), bytes) << bytes.toHex().constData();
        }
    const char interesting[] = "a/.\x80\x8f\x9f\xa0\xbf\xc0\xc2\xdf\xe0\xed\xef\xf0\xf4\xf5\xff";
    QRandomGenerator random(7);
    for (int n = 0; n < 20000; ++n) {
        QByteArray bytes;
        for (int i = random.bounded(1, 12); i > 0; --i)
            bytes += random.bounded(4) == 0
                         ? char(random.bounded(256))
                         : interesting[random.bounded(int(sizeof interesting - 1))];
        ASSERT_EQ(Files::nativeName(fromNativeName(bytes)), bytes) << bytes.toHex().constData();
    }
}

// Text that came from anywhere else is written as UTF-8.
TEST(NativeNames, EncodeTextAsUtf8) {
    const QString text = QStringLiteral(u"Zürich € \U0001D11E \uFFFD");
    EXPECT_EQ(Files::nativeName(text), text.toUtf8());
    // A lone surrogate outside the escapes still gives a name of its own.
    EXPECT_EQ(Files::nativeName(QString(QChar(char16_t(0xD800)))), QByteArray("\xed\xa0\x80"));
    EXPECT_NE(Files::nativeName(QString(QChar(char16_t(0xDC10)))),
              Files::nativeName(QString(QChar(char16_t(0xDC11)))));
}
