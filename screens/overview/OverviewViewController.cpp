#include "screens/overview/OverviewViewController.h"

#include "platform/PdfViewer.h"
#include "platform/kit/Appearance.h"

#include <QLabel>
#include <QVBoxLayout>

// Outside any namespace, as the resource system requires.
static void loadOverviewResource() {
    Q_INIT_RESOURCE(overview);
}

const QString OverviewViewController::DocumentPath = QStringLiteral(":/overview.pdf");

OverviewViewController::OverviewViewController(QWidget* parent)
    : ViewController(parent) {}

void OverviewViewController::viewDidLoad() {
    setTitle(tr("Pelvane Overview"));
    pdfView = new PdfViewer(this);
    pdfView->setObjectName(QStringLiteral("OverviewPdfView"));
    pdfView->setAccessibleName(tr("Pelvane overview guide"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(pdfView);

    PageLabel = new QLabel(this);
    PageLabel->setObjectName(QStringLiteral("PageLabel"));
    PageLabel->setAlignment(Qt::AlignCenter);
    PageLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    const bool dark = Appearance::isDark();
    const QColor border = dark ? Qt::white : Qt::black;
    Styling::round(pdfView, 5, 1, border);
    Styling::round(PageLabel, 5, 1, border, dark ? QColor(44, 44, 46) : QColor(Qt::white));

    loadOverviewResource();
    // The guide is built into the program; there is nothing to show in its place.
    pdfView->open(DocumentPath);
    connect(pdfView, &PdfViewer::currentPageChanged, this, &OverviewViewController::showPage);
    showPage(pdfView->currentPage());
}

void OverviewViewController::showPage(int page) {
    PageLabel->setText(tr("%1 of %2").arg(page + 1).arg(pdfView->pageCount()));
    PageLabel->setVisible(pdfView->pageCount() > 0);
    placePageLabel();
}

void OverviewViewController::placePageLabel() {
    if (!PageLabel)
        return;
    PageLabel->adjustSize();
    const QSize size = PageLabel->size() + QSize(16, 2);
    PageLabel->setGeometry((width() - size.width()) / 2, height() - size.height() - 14,
                           size.width(), size.height());
    PageLabel->raise();
}

void OverviewViewController::resizeEvent(QResizeEvent* event) {
    ViewController::resizeEvent(event);
    placePageLabel();
}
