#pragma once
// Long runs of text with nowhere to break (a pasted line of a million characters) broken where
// the layout would break them, in linear time.
#include <QtGlobal>

class QPaintDevice;
class QTextDocument;

namespace LongRuns {
// Ends each line of every long run of unbreakable text with a line separator, exactly where
// the layout of `width` on `device` would end it: the pages are the same.
void breakLongRuns(QTextDocument& document, QPaintDevice* device, qreal width);
} // namespace LongRuns
