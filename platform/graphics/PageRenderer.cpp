// Laying a document out on pages and drawing them one by one. The pictures are drawn by
// PageRendererPictures, the PDF is finished in PageRendererPdf.cpp, and long unbreakable runs
// are broken in LongRuns.cpp.
#include "platform/graphics/PageRenderer.h"

#include "platform/graphics/LongRuns.h"
#include "platform/graphics/PageRendererDevice.h"
#include "platform/graphics/PageRendererPictures.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QScopeGuard>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

PageRenderer::PageRenderer(QTextDocument& document, const QRectF& paperRect,
                           const QRectF& printableRect)
    : m_layoutDevice(std::make_unique<PointDevice>(paperRect))
    , m_document(document)
    , m_paper(paperRect)
    , m_printable(printableRect) {
    m_document.documentLayout()->setPaintDevice(&m_layoutDevice->writer);
    m_pictures = std::make_unique<Pictures>(m_document);
    // A document of no size is not laid out: the margin and the broken runs then cost no
    // layout of their own, and the page size below lays it out once.
    m_document.setPageSize(QSizeF(0, 0));
    m_document.setDocumentMargin(0);
    LongRuns::breakLongRuns(m_document, &m_layoutDevice->writer, m_printable.width());
    // Each block keeps the glyphs it is laid out with, so that drawing it does not shape its
    // text a second time.
    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next())
        block.layout()->setCacheEnabled(true);
    m_document.setPageSize(m_printable.size());
}

PageRenderer::~PageRenderer() {
    m_pictures.reset();
    m_document.documentLayout()->setPaintDevice(nullptr);
}

int PageRenderer::numberOfPages() const {
    return m_document.pageCount();
}

void PageRenderer::drawPage(QPainter& painter, int index, const QRectF& bounds) const {
    const qreal height = m_printable.height();
    painter.save();
    painter.translate(bounds.topLeft());
    if (bounds.width() > 0)
        painter.scale(bounds.width() / m_paper.width(), bounds.width() / m_paper.width());
    painter.translate(m_printable.topLeft() - m_paper.topLeft());
    painter.setClipRect(QRectF(0, 0, m_printable.width(), height));
    painter.translate(0, -index * height);
    QAbstractTextDocumentLayout::PaintContext context;
    // A line that only touches the page's edge belongs to the page beside it: drawn here too, it
    // would be hidden by the clip but still be in the page's text.
    context.clip = QRectF(0, index * height + 0.5, m_printable.width(), height - 1);
    context.palette.setColor(QPalette::Text, Qt::black);
    m_document.documentLayout()->draw(&painter, context);
    painter.restore();
}

void PageRenderer::drawPages(QPainter& painter, const QRectF& bounds,
                             const std::function<void(int)>& before) const {
    m_pictures->decodeAhead(m_document, false);
    const auto stop = qScopeGuard([this] { m_pictures->stopDecoding(); });
    for (int page = 0; page < numberOfPages(); ++page) {
        if (before)
            before(page);
        drawPage(painter, page, bounds);
    }
}
