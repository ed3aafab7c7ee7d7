#pragma once
// The lines of an exchange file and what their fields give a coin: the reading half of the
// import, shared by the merge.
#include "exchange/ExchangeReader.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QVarLengthArray>

#include <functional>

class Coins;

namespace Exchange {

// The file's coin lines, after the text is normalised (carriage returns to line feeds,
// apostrophes dropped, commas to semicolons): every line that is neither empty nor the marker,
// as views of the normalised text.
struct Lines {
    QList<QByteArrayView> lines;
    QList<qsizetype> numbers;     // of each line in the file, from 1
    bool wrongFile = false;       // no "[PELVANE]" line
    bool lastLineUnended = false; // the text does not end with a line end
};
// Normalises `text` in place and splits it; the views point into `text`.
Lines readLines(QByteArray& text);

// The fields of one line as views of its bytes; "^" is ASCII, so no character is ever cut.
using Fields = QVarLengthArray<QByteArrayView, 24>;
Fields splitFields(QByteArrayView line);

// A key field's text; a field the line does not have is the empty text, which matches only a
// stored empty text, never an absent one.
QString fieldText(const Fields& fields, qsizetype position);

// The two picture fields of a line worked out, so that this can be done on other cores.
PreparedLine preparePictures(QByteArrayView line);

// Writes a line's fields into `coin`, a new one or the one the line matched. A number that
// does not parse stops a new coin's import (after `beforeStop`) and clears it on a match.
void apply(Coins& coin, const Fields& fields, bool isNew, const PreparedLine& pictures,
           const std::function<void()>& beforeStop);

} // namespace Exchange
