#pragma once
// The main list's sort choices, its search per sort key and its row texts: what the list
// screen shows, kept apart from the widgets so it can be checked on its own.
#include "model/Records.h"

#include <QList>
#include <QString>

struct SortChoice {
    QString menuTitle;   // "By Name"
    QString consoleLine; // "Option 1 selected"
    QString sortName;    // "Name"
    QString key;         // the attribute sorted and searched
    QString placeholder; // the search field's placeholder
};

namespace MainListSorting {
// The five choices of the "Sort by" menu, in menu order.
const QList<SortChoice>& choices();
// A choice's menu title or placeholder as the user reads it, in the user's language.
QString shown(const QString& text);
// nullptr for an absent or unknown sort name.
const SortChoice* choiceFor(const QString& sortName);
// The coins of `all` (in order) whose key text for the sort contains `text`. Text keys compare
// case-insensitively, numeric keys on the number's text. No sort name: nothing is filtered,
// every coin stays.
// A coin without a country is a fatal error when searching by country.
QList<CoinPtr> filter(const QList<CoinPtr>& all, const QString& sortName, const QString& text);

// The key texts of a list for one sort, worked out once so that each keystroke of a search
// only compares texts: lower-cased for the text keys, null for a coin the search skips.
struct SearchIndex {
    bool sorted = false; // a sort name was chosen
    bool textKey = false;
    bool missingCountry = false; // a coin has no country: searching by country is fatal
    QStringList keys;            // one per coin of the list, in order
};
SearchIndex searchIndex(const QList<CoinPtr>& all, const QString& sortName);
QList<CoinPtr> filter(const QList<CoinPtr>& all, const SearchIndex& index, const QString& text);

// Row texts of the list cell.
QString yearLine(const Coins& coin);     // "Year: 1965  Mint Mark: P"
qint16 shownQuantity(const Coins& coin); // a quantity of 0 counts as one coin
QString quantityLine(const Coins& coin); // "Qty: 2"
QString valueLine(const Coins& coin);    // "Value: $0.50  Total Value: $1.00"
} // namespace MainListSorting
