// The report as a PDF: every page drawn into a PDF writer, then finished by hand where the
// engine cannot be told, with the JPEGs put in as they are and the exact page box.
#include "platform/graphics/PageRenderer.h"

#include "platform/graphics/PageRendererDevice.h"
#include "platform/graphics/PageRendererPictures.h"

#include <QPainter>
#include <QScopeGuard>

namespace {
// Qt writes the page box in whole points; the paper is written as it is. The numbers keep
// their length, so the cross-reference table stays right.
void writeExactPageBox(QByteArray& pdf, const QRectF& paper) {
    const auto number = [](qreal v) { return QByteArray::number(v, 'f'); };
    const QSize rounded = paper.size().toSize();
    const QByteArray written = number(rounded.width()) + ' ' + number(rounded.height()) + ']';
    const QByteArray exact = number(paper.width()) + ' ' + number(paper.height()) + ']';
    if (written.size() == exact.size() && written != exact)
        pdf.replace("/MediaBox [0 0 " + written, "/MediaBox [0 0 " + exact);
}
} // namespace

QByteArray PageRenderer::pdf(const std::function<void(int, int)>& progress) const {
    QByteArray bytes = drawPdf(true, progress);
    // Never seen: a stand-in the PDF does not hold once, as drawn. The pictures are then drawn
    // the engine's own way.
    if (!m_pictures->putJpegsIn(bytes))
        bytes = drawPdf(false, {});
    writeExactPageBox(bytes, m_paper);
    return bytes;
}

QByteArray PageRenderer::drawPdf(bool jpegsAsTheyAre,
                                 const std::function<void(int, int)>& progress) const {
    PointDevice device(m_paper);
    const int pages = numberOfPages();
    m_pictures->decodeAhead(m_document, jpegsAsTheyAre);
    const auto stop = qScopeGuard([this] { m_pictures->stopDecoding(); });
    QPainter painter(&device.writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            device.writer.newPage();
        drawPage(painter, page, QRectF(QPointF(0, 0), m_paper.size()));
        if (progress)
            progress(page + 1, pages);
    }
    painter.end();
    return device.buffer.data();
}
