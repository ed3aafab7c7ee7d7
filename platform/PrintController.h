#pragma once
// The print dialog: prints a styled document on the printer the user picks (or into a PDF
// file), with the number of copies offered. Never blocks: the answer comes to `completion`.
#include "platform/core/Error.h"

#include <QString>
#include <functional>

class QPrinter;
class QTextDocument;
class QWidget;

struct PrintInfo {
    enum OutputType { General = 0, Photo = 1, Grayscale = 2 };
    OutputType outputType = General;
    QString jobName; // empty: none set
};

class PrintController {
public:
    virtual ~PrintController() = default;
    // `completion(completed, error)`: completed is false when the user cancelled or printing
    // failed, and error says why in the latter case. The document must outlive the dialog.
    virtual void present(QTextDocument& document, const PrintInfo& info, bool showsNumberOfCopies,
                         QWidget* parent,
                         std::function<void(bool completed, const QString& error)> completion) = 0;

    // Lays a copy of the document out on the printer's paper, inside its printable area, and
    // prints every page, as many times as the printer was asked for copies it cannot make
    // itself; or why the printer failed.
    static Result<void> print(const QTextDocument& document, QPrinter& printer);
};
