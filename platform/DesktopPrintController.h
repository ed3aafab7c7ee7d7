#pragma once
#include "platform/PrintController.h"

// The system's print dialog, opened without a nested event loop; printing to a PDF file is one
// of its printers.
class DesktopPrintController : public PrintController {
public:
    void present(QTextDocument& document, const PrintInfo& info, bool showsNumberOfCopies,
                 QWidget* parent,
                 std::function<void(bool completed, const QString& error)> completion) override;
};
