#include "platform/PdfViewer.h"

#include <QGestureEvent>
#include <QGuiApplication>
#include <QNativeGestureEvent>
#include <QPdfDocument>
#include <QPdfPageNavigator>
#include <QPinchGesture>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace {
constexpr qreal kSmallest = 0.5; // of the fitted scale
constexpr qreal kLargest = 6.0;
// A zoom that ends this close to the fitted width fits the width again.
constexpr qreal kSnap = 0.04;
constexpr qreal kWheelStep = 1.15; // per notch
} // namespace

PdfViewer::PdfViewer(QWidget* parent)
    : QPdfView(parent)
    , pdf_(new QPdfDocument(this)) {
    setPageMode(PageMode::MultiPage);
    setZoomMode(ZoomMode::FitToWidth);
    setPageSpacing(8);
    setAccessibleName(tr("Document"));
    setDocumentMargins(QMargins(6, 6, 6, 6));
    setDocument(pdf_);
    viewport()->grabGesture(Qt::PinchGesture);
    connect(pageNavigator(), &QPdfPageNavigator::currentPageChanged, this,
            &PdfViewer::currentPageChanged);
}

PdfViewer::~PdfViewer() {
    // The document closes as it goes and tells the view, which must not be half gone by then;
    // nor must the screen that holds this view, which is already being taken apart when its
    // children go, so the page change that closing sets off is not passed on.
    blockSignals(true);
    setDocument(nullptr);
}

bool PdfViewer::open(const QString& path) {
    return pdf_->load(path) == QPdfDocument::Error::None;
}

int PdfViewer::pageCount() const {
    return pdf_->pageCount();
}

int PdfViewer::currentPage() const {
    return pageNavigator()->currentPage();
}

void PdfViewer::setAutoScales(bool on) {
    if (on) {
        setZoomMode(ZoomMode::FitToWidth);
        return;
    }
    const qreal shown = scale();
    setZoomMode(ZoomMode::Custom);
    // The view multiplies the zoom factor by the screen's points-to-pixels ratio.
    const qreal screen = QGuiApplication::primaryScreen()->logicalDotsPerInch() / 72.0;
    setZoomFactor(shown / screen);
}

qreal PdfViewer::fittedScale() const {
    if (pdf_->pageCount() == 0)
        return 1;
    const QMargins margins = documentMargins();
    const qreal width = viewport()->width() - margins.left() - margins.right();
    return qMax<qreal>(width, 1) / pdf_->pagePointSize(0).width();
}

qreal PdfViewer::scale() const {
    if (autoScales())
        return fittedScale();
    return zoomFactor() * QGuiApplication::primaryScreen()->logicalDotsPerInch() / 72.0;
}

void PdfViewer::zoomBy(qreal factor, QPointF anchor) {
    if (pdf_->pageCount() == 0 || factor <= 0)
        return;
    const qreal fitted = fittedScale();
    const qreal before = scale();
    const qreal after = qBound(kSmallest * fitted, before * factor, kLargest * fitted);
    // The document point under the anchor, before and after.
    const QPointF point =
        (anchor + QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value())) / before;
    if (qAbs(after - fitted) < kSnap * fitted) {
        setAutoScales(true);
    } else {
        setAutoScales(false);
        setZoomFactor(zoomFactor() * after / before);
    }
    const qreal shown = scale();
    horizontalScrollBar()->setValue(qRound(point.x() * shown - anchor.x()));
    verticalScrollBar()->setValue(qRound(point.y() * shown - anchor.y()));
}

void PdfViewer::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QPdfView::wheelEvent(event);
        return;
    }
    const int notches = event->angleDelta().y() / 120;
    if (notches != 0)
        zoomBy(std::pow(kWheelStep, notches), event->position());
    event->accept();
}

bool PdfViewer::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Gesture) {
        auto* gestures = static_cast<QGestureEvent*>(event);
        if (auto* pinch = static_cast<QPinchGesture*>(gestures->gesture(Qt::PinchGesture))) {
            if (pinch->changeFlags() & QPinchGesture::ScaleFactorChanged)
                zoomBy(pinch->scaleFactor(), viewport()->mapFromGlobal(pinch->centerPoint()));
            gestures->accept(pinch);
            return true;
        }
    }
    if (event->type() == QEvent::NativeGesture) {
        auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            zoomBy(1 + gesture->value(), gesture->position());
            return true;
        }
    }
    return QPdfView::viewportEvent(event);
}
