#include "platform/PrintController.h"

#include "platform/core/Files.h"

#include "platform/graphics/PageRenderer.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextImageFormat>

namespace {
// The view's pictures are sized in pixels of the screen, its text in points. The paper keeps
// what the view shows: a pixel of the view is a point of the page, as the text's points are,
// and the page's layout counts 72 points where Qt counts 96 pixels to the inch.
void picturesInPoints(QTextDocument& document) {
    constexpr qreal kPixelsPerPoint = 96.0 / 72.0;
    // Gathered first: a change of format may join or split the fragments being walked.
    QList<std::pair<int, QTextImageFormat>> pictures;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it)
            if (const QTextImageFormat image = it.fragment().charFormat().toImageFormat();
                image.isValid())
                for (int i = 0; i < it.fragment().length(); ++i)
                    pictures.append({it.fragment().position() + i, image});
    QTextCursor cursor(&document);
    for (auto& [position, image] : pictures) {
        if (image.hasProperty(QTextFormat::ImageWidth))
            image.setWidth(image.width() * kPixelsPerPoint);
        if (image.hasProperty(QTextFormat::ImageHeight))
            image.setHeight(image.height() * kPixelsPerPoint);
        cursor.setPosition(position);
        cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
        cursor.setCharFormat(image);
    }
}
} // namespace

Result<void> PrintController::print(const QTextDocument& document, QPrinter& printer) {
    // Printing to a file is a file the program writes like any other.
    if (!printer.outputFileName().isEmpty())
        if (const Result<void> allowed = Files::isWritableTarget(printer.outputFileName());
            !allowed.ok())
            return allowed;
    // A copy: the shown document keeps its own layout.
    std::unique_ptr<QTextDocument> copy(document.clone());
    picturesInPoints(*copy);
    printer.setFullPage(true);
    const QRectF paper = printer.paperRect(QPrinter::Point);
    const QRectF printable = printer.pageRect(QPrinter::Point);
    PageRenderer renderer(*copy, QRectF(QPointF(0, 0), paper.size()),
                          printable.translated(-paper.topLeft()));
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    QPainter painter;
    if (!painter.begin(&printer)) {
        return Error::because(
            ErrorCode::CantOpen,
            QCoreApplication::translate("PrintController", "The printer cannot be opened."),
            QStringLiteral("printing"));
    }
    const QRectF bounds(QPointF(0, 0), printer.paperRect(QPrinter::DevicePixel).size());
    for (int copy = 0; copy < copies; ++copy)
        renderer.drawPages(painter, bounds, [&](int page) {
            if (copy > 0 || page > 0)
                printer.newPage();
        });
    if (!painter.end() || printer.printerState() == QPrinter::Error) {
        return Error::because(
            ErrorCode::CantOpen,
            QCoreApplication::translate("PrintController", "The printer reported an error."),
            QStringLiteral("printing"));
    }
    return {};
}
