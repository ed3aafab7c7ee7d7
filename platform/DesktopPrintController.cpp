#include "platform/DesktopPrintController.h"

#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

void DesktopPrintController::present(
    QTextDocument& document, const PrintInfo& info, bool showsNumberOfCopies, QWidget* parent,
    std::function<void(bool completed, const QString& error)> completion) {
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    if (!info.jobName.isEmpty())
        printer->setDocName(info.jobName);
    if (info.outputType == PrintInfo::Grayscale)
        printer->setColorMode(QPrinter::GrayScale);
    auto* dialog = new QPrintDialog(printer.get(), parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QAbstractPrintDialog::PrintToFile, true);
    dialog->setOption(QAbstractPrintDialog::PrintCollateCopies, showsNumberOfCopies);
    if (!showsNumberOfCopies)
        dialog->setMinMax(1, 1);
    QPointer<QTextDocument> shown(&document);
    QObject::connect(dialog, &QDialog::finished, dialog,
                     [printer, shown, completion = std::move(completion)](int result) {
                         if (result != QDialog::Accepted || !shown) {
                             if (completion)
                                 completion(false, QString());
                             return;
                         }
                         const Result<void> printed = PrintController::print(*shown, *printer);
                         if (completion)
                             completion(printed.ok(),
                                        printed.ok() ? QString() : printed.error().message);
                     });
    dialog->open();
}
