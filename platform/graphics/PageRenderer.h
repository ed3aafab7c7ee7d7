#pragma once
// Lays a styled document out on pages of paper and draws them, one page at a time, into a PDF
// or onto a printer. All sizes are in points. Used by the reports, the print screen and the
// tool that makes the packaged overview document, so all three look alike.
#include "platform/core/Error.h"

#include <QByteArray>
#include <QMetaType>
#include <QRectF>
#include <QTextFormat>

#include <functional>
#include <memory>

class QPainter;
class QTextDocument;

// The photo a document's picture was made from, drawn on paper in its place with the detail the
// paper holds. A picture's format names it by PageRenderer::OriginalProperty, and the document
// holds it as a resource of that name: a copy of the document carries it along.
struct PageOriginal {
    QString label; // says which photo on the console, when it cannot be drawn
    QSize size;    // in pixels, as shown
    // Its bytes, or why there are none; called on other threads.
    std::function<Result<QByteArray>()> read;
};
Q_DECLARE_METATYPE(PageOriginal)

class PageRenderer {
public:
    // The property of a picture's format that names its original's resource (a string).
    static constexpr int OriginalProperty = QTextFormat::UserProperty + 0x0C01;
    // The detail of an original on paper: its pixels for each inch of the picture's box.
    static constexpr qreal OriginalDpi = 300;
    // The pixels an original of `size` gets in a box of `box` points: fitted inside it, keeping
    // its shape, at OriginalDpi or its own size, whichever is smaller.
    static QSize originalPixels(const QSize& size, const QSizeF& box);

    // The report's paper: A4 in points, printed edge to edge.
    static constexpr QRectF a4() { return {0, 0, 595.2, 841.8}; }

    // Lays `document` out in place: the text runs inside `printableRect` on pages of
    // `paperRect`. The document's own margin is set to 0; the printable rectangle is the margin.
    PageRenderer(QTextDocument& document, const QRectF& paperRect, const QRectF& printableRect);
    // The document goes back to laying itself out for the screen.
    ~PageRenderer();
    PageRenderer(const PageRenderer&) = delete;
    PageRenderer& operator=(const PageRenderer&) = delete;

    int numberOfPages() const;
    // Draws page `index` with the paper's top left at `bounds`' top left, scaled to its width.
    void drawPage(QPainter& painter, int index, const QRectF& bounds) const;
    // Draws every page in turn as drawPage() does, each after `before(page)`, with the pictures
    // decoded ahead of the pages: on a printer.
    void drawPages(QPainter& painter, const QRectF& bounds,
                   const std::function<void(int)>& before) const;

    // Every page as a PDF of the paper's size, fonts embedded. `progress` is told after each
    // page (pages drawn, pages in all); the PDF is the same with or without it.
    QByteArray pdf(const std::function<void(int, int)>& progress = {}) const;

    QRectF paperRect() const { return m_paper; }

private:
    // Every page drawn into a PDF; with `jpegsAsTheyAre`, plain JPEGs as stand-ins.
    QByteArray drawPdf(bool jpegsAsTheyAre, const std::function<void(int, int)>& progress) const;

    struct PointDevice;
    class Pictures;
    std::unique_ptr<PointDevice> m_layoutDevice;
    std::unique_ptr<Pictures> m_pictures;
    QTextDocument& m_document;
    QRectF m_paper;
    QRectF m_printable;
};
