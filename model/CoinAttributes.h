#pragma once
// The coin's attributes, declared once. The entity, the Coins::Attr constants, the accessors,
// the index the import matches by, and the exchange file's field order and rules are all made
// from this table; nothing else lists the attributes.
//
// X(name, Name, type, file, key, rule)
//   name, Name  the attribute and the accessors' names (name(), setName())
//   type        its AttributeType; the rows stand in the model's (alphabetical) order
//   file        the field that holds it in an exchange line; the record number (21) is written
//               straight after the back picture, and read only from a line that has a 22nd field
//   key         its place among the four keys an import matches a coin by (-1: not a key); the
//               store's index on those keys has its columns in that order
//   rule        how the exchange file writes and reads it (ExchangeRule)
#define PELVANE_COIN_ATTRIBUTES(X)                                                                 \
    X(backImage, BackImage, Data, 20, -1, Picture)                                                 \
    X(country, Country, Text, 0, 0, Plain)                                                         \
    X(denomination, Denomination, Text, 1, 1, Plain)                                               \
    X(descrip, Descrip, Text, 2, -1, Description)                                                  \
    X(designer, Designer, Text, 3, -1, Plain)                                                      \
    X(diameter, Diameter, Double, 4, -1, Plain)                                                    \
    X(edge, Edge, Text, 5, -1, Plain)                                                              \
    X(frontImage, FrontImage, Data, 19, -1, Picture)                                               \
    X(gradeNumber, GradeNumber, Text, 6, -1, Plain)                                                \
    X(id, Id, Int16, 21, -1, RecordNumber)                                                         \
    X(mintLocation, MintLocation, Text, 7, -1, Plain)                                              \
    X(mintMark, MintMark, Text, 8, 2, Plain)                                                       \
    X(notes, Notes, Text, 9, -1, Notes)                                                            \
    X(period, Period, Text, 10, -1, Plain)                                                         \
    X(quantity, Quantity, Int16, 11, -1, Plain)                                                    \
    X(serialNumber, SerialNumber, Text, 12, -1, Plain)                                             \
    X(strikeCharacter, StrikeCharacter, Text, 13, -1, Plain)                                       \
    X(thickness, Thickness, Double, 14, -1, Plain)                                                 \
    X(totalValue, TotalValue, Float, 15, -1, Plain)                                                \
    X(value, Value, Float, 16, -1, Plain)                                                          \
    X(weight, Weight, Double, 17, -1, Plain)                                                       \
    X(year, Year, Int16, 18, 3, Plain)

// How the exchange file carries an attribute.
enum class ExchangeRule {
    Plain,        // a text as it is, a number in its shortest exact form
    Description,  // a text whose carets the writer drops
    Notes,        // carets dropped; a line break written as "~" and "~" read as a line break
    Picture,      // base64 of the picture re-encoded as JPEG
    RecordNumber, // the id: glued to the back picture by the writer
};

struct CoinAttribute {
    const char* name;
    int index;        // position in the model
    int filePosition; // field of an exchange line
    int importKey;    // -1: not one of the import's keys
    ExchangeRule rule;
};

namespace CoinAttributes {
// Every attribute in the model's order.
const CoinAttribute* all();
constexpr int count = 0
#define PELVANE_COUNT_ATTRIBUTE(name, Name, type, file, key, rule) +1
    PELVANE_COIN_ATTRIBUTES(PELVANE_COUNT_ATTRIBUTE);
#undef PELVANE_COUNT_ATTRIBUTE
// The attribute an exchange line holds at `position` (0 to count - 1).
const CoinAttribute& atFilePosition(int position);
// The import's keys, in the order of their index.
const CoinAttribute& importKey(int key);
constexpr int importKeyCount = 4;
} // namespace CoinAttributes
