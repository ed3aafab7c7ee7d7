#include "platform/graphics/PageRenderer.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>

// A PDF device in points: the layout measures fonts against it, so a page holds the same
// lines whatever screen the program runs on.
struct PageRenderer::PointDevice {
    QBuffer buffer;
    QPdfWriter writer{&buffer};

    explicit PointDevice(const QRectF& paper) {
        buffer.open(QIODevice::WriteOnly);
        writer.setResolution(72);
        writer.setPageSize(
            QPageSize(paper.size(), QPageSize::Point, QString(), QPageSize::ExactMatch));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setCreator(QStringLiteral("Pelvane"));
    }
};

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

PageRenderer::PageRenderer(QTextDocument& document, const QRectF& paperRect,
                           const QRectF& printableRect)
    : m_layoutDevice(std::make_unique<PointDevice>(paperRect))
    , m_document(document)
    , m_paper(paperRect)
    , m_printable(printableRect) {
    m_document.documentLayout()->setPaintDevice(&m_layoutDevice->writer);
    m_document.setDocumentMargin(0);
    m_document.setPageSize(m_printable.size());
}

PageRenderer::~PageRenderer() {
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

QByteArray PageRenderer::pdf(const std::function<void(int, int)>& progress) const {
    PointDevice device(m_paper);
    const int pages = numberOfPages();
    QPainter painter(&device.writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            device.writer.newPage();
        drawPage(painter, page, QRectF(QPointF(0, 0), m_paper.size()));
        if (progress)
            progress(page + 1, pages);
    }
    painter.end();
    QByteArray bytes = device.buffer.data();
    writeExactPageBox(bytes, m_paper);
    return bytes;
}
