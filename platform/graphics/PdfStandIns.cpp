#include "platform/graphics/PdfStandIns.h"

#include <algorithm>

namespace {
// How the engine begins the object of a stand-in.
const QByteArray kStandInHead = QByteArrayLiteral("<<\n/Type /XObject\n/Subtype /Image\n"
                                                  "/Width 1\n/Height 1\n/BitsPerComponent 1\n"
                                                  "/ColorSpace /DeviceGray\n");

// The image object of a JPEG, its bytes as they are.
QByteArray jpegObject(const QByteArray& jpeg, QSize size) {
    return "<<\n/Type /XObject\n/Subtype /Image\n/Width " + QByteArray::number(size.width()) +
           "\n/Height " + QByteArray::number(size.height()) +
           "\n/BitsPerComponent 8\n/ColorSpace /DeviceRGB\n/Length " +
           QByteArray::number(jpeg.size()) + "\n/Filter /DCTDecode\n>>\nstream\n" + jpeg +
           "\nendstream\n";
}
} // namespace

namespace PdfStandIns {

QImage image() {
    QImage image(1, 1, QImage::Format_Mono);
    image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    image.fill(1);
    return image;
}

// Replaces the stand-ins' objects, in the order they are written, by the JPEGs and moves every
// later object's entry in the cross-reference table. The stand-ins' images fill the unit square
// as any image does, so each JPEG is drawn where its stand-in was.
bool swap(QByteArray& pdf, const std::vector<QSize>& sizes, const std::vector<QByteArray>& jpegs) {
    struct Swap {
        qsizetype from, to; // the object's body, from its "<<" to its "endobj"
        QByteArray with;
    };
    std::vector<Swap> swaps;
    for (qsizetype at = pdf.indexOf(kStandInHead); at >= 0; at = pdf.indexOf(kStandInHead, at)) {
        const qsizetype end = pdf.indexOf("endobj\n", at);
        if (end < 0 || swaps.size() == jpegs.size())
            return false;
        swaps.push_back({at, end, jpegObject(jpegs[swaps.size()], sizes[swaps.size()])});
        at = end;
    }
    if (swaps.size() != jpegs.size())
        return false;
    if (swaps.empty())
        return true;

    // The table: "xref", "0 COUNT", then twenty bytes an object, its offset first.
    const qsizetype startxref = pdf.lastIndexOf("startxref\n");
    if (startxref < 0)
        return false;
    bool ok = false;
    const qsizetype xref =
        pdf.mid(startxref + 10, pdf.indexOf('\n', startxref + 10) - startxref - 10)
            .trimmed()
            .toLongLong(&ok);
    if (!ok || xref < swaps.back().to || !pdf.mid(xref).startsWith("xref\n0 "))
        return false;
    const qsizetype countEnd = pdf.indexOf('\n', xref + 7);
    const int count = pdf.mid(xref + 7, countEnd - xref - 7).trimmed().toInt(&ok);
    const qsizetype entries = countEnd + 1;
    if (!ok || count < 1 || entries + qsizetype(count) * 20 > startxref)
        return false;

    // Where a byte of the old PDF lands in the new one: moved by the growth of every swap
    // before it.
    std::vector<qsizetype> grownBefore(1, 0);
    for (const Swap& swap : swaps)
        grownBefore.push_back(grownBefore.back() + swap.with.size() - (swap.to - swap.from));
    const auto moved = [&](qsizetype offset) {
        const auto after = std::lower_bound(swaps.begin(), swaps.end(), offset,
                                            [](const Swap& s, qsizetype o) { return s.from < o; });
        return offset + grownBefore[std::size_t(after - swaps.begin())];
    };
    QByteArray out;
    out.reserve(pdf.size() + grownBefore.back());
    qsizetype copied = 0;
    for (const Swap& swap : swaps) {
        out.append(pdf.constData() + copied, swap.from - copied);
        out.append(swap.with);
        copied = swap.to;
    }
    out.append(pdf.constData() + copied, entries - copied);
    for (int i = 0; i < count; ++i) {
        const QByteArrayView entry(pdf.constData() + entries + qsizetype(i) * 20, 20);
        if (entry[17] != 'n') {
            out.append(entry);
            continue;
        }
        const qsizetype offset = entry.first(10).toLongLong(&ok);
        if (!ok)
            return false;
        out.append(QByteArray::number(moved(offset)).rightJustified(10, '0'));
        out.append(entry.sliced(10));
    }
    const qsizetype tableEnd = entries + qsizetype(count) * 20;
    out.append(pdf.constData() + tableEnd, startxref - tableEnd);
    out.append("startxref\n" + QByteArray::number(moved(xref)) + " \n%%EOF\n");
    pdf = std::move(out);
    return true;
}

} // namespace PdfStandIns
