#pragma once
// The packaged guide to the program, "overview.pdf", shown page under page to read, scroll and
// zoom. It has no actions of its own besides going back.
#include "platform/kit/ViewController.h"

class PdfViewer;
class QLabel;

class OverviewViewController : public ViewController {
    Q_OBJECT
public:
    explicit OverviewViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;

    // The resource the screen shows.
    static const QString DocumentPath;

    PdfViewer* pdfView = nullptr;
    // Which page is in view ("2 of 7"), over the foot of the document.
    QLabel* PageLabel = nullptr;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showPage(int page);
    void placePageLabel();
};
