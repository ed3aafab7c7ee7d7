#pragma once
// Lays a styled document out on pages of paper and draws them, one page at a time, into a PDF
// or onto a printer. All sizes are in points. Used by the reports, the print screen and the
// tool that makes the packaged overview document, so all three look alike.
#include <QByteArray>
#include <QRectF>

#include <functional>
#include <memory>

class QPainter;
class QTextDocument;

class PageRenderer {
public:
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
