#pragma once
// A JPEG going into a PDF as its own bytes: drawn as a stand-in that Qt's PDF engine writes
// without coding anything, then swapped for the JPEG once the PDF is whole. The engine would
// otherwise decode the picture and code it again.
#include <QByteArray>
#include <QImage>
#include <QSize>

#include <vector>

namespace PdfStandIns {

// One pixel in two colours, which the engine writes as a tiny one-bit image, and which no
// picture of a document looks like on its own. One per picture: the engine writes an image
// once per cache key.
QImage image();

// Replaces the stand-ins' objects, in the order they are written, by the JPEGs of those
// sizes, and moves the cross-reference table's entries to match; false, with `pdf` as it was,
// when the PDF does not hold exactly one stand-in for each JPEG.
bool swap(QByteArray& pdf, const std::vector<QSize>& sizes, const std::vector<QByteArray>& jpegs);

} // namespace PdfStandIns
