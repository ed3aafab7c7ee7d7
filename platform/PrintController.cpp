#include "platform/PrintController.h"

#include "platform/PageRenderer.h"

#include <QPainter>
#include <QPrinter>
#include <QTextDocument>

bool PrintController::print(const QTextDocument& document, QPrinter& printer, QString* error) {
    // A copy: the shown document keeps its own layout.
    std::unique_ptr<QTextDocument> copy(document.clone());
    printer.setFullPage(true);
    const QRectF paper = printer.paperRect(QPrinter::Point);
    const QRectF printable = printer.pageRect(QPrinter::Point);
    PageRenderer renderer(*copy, QRectF(QPointF(0, 0), paper.size()),
                          printable.translated(-paper.topLeft()));
    const int pages = renderer.numberOfPages();
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    QPainter painter;
    if (!painter.begin(&printer)) {
        if (error)
            *error = QStringLiteral("The printer cannot be opened.");
        return false;
    }
    const QRectF bounds(QPointF(0, 0), printer.paperRect(QPrinter::DevicePixel).size());
    for (int copy = 0; copy < copies; ++copy)
        for (int page = 0; page < pages; ++page) {
            if (copy > 0 || page > 0)
                printer.newPage();
            renderer.drawPage(painter, page, bounds);
        }
    if (!painter.end() || printer.printerState() == QPrinter::Error) {
        if (error)
            *error = QStringLiteral("The printer reported an error.");
        return false;
    }
    return true;
}
