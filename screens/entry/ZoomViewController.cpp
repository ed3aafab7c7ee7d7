#include "screens/entry/ZoomViewController.h"

#include "platform/Platform.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "screens/ProcessState.h"
#include "screens/TextMessageAlert.h"

#include <QGestureEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPinchGesture>
#include <QWheelEvent>

ZoomCollectionViewCell::ZoomCollectionViewCell(QWidget* parent)
    : QWidget(parent) {
    Styling::round(this, 10, 2, Qt::black);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ZoomCollectionViewCell::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath clip;
    clip.addRoundedRect(rect().adjusted(2, 2, -2, -2), 10, 10);
    p.setClipPath(clip);
    p.drawImage(rect().adjusted(2, 2, -2, -2), ZoomImage);
    p.setClipping(false);
    p.setPen(QPen(Styling::visibleBorder(Qt::black), 2));
    p.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 10, 10);
}

ZoomViewController::ZoomViewController(QWidget* parent)
    : ViewController(parent)
    , ZoomCollectionView(new QWidget(this)) {
    grabGesture(Qt::PinchGesture);
}

void ZoomViewController::viewDidLoad() {
    setTitle(QStringLiteral("Zoom"));
    for (const QImage& image : ZoomImages) {
        auto* cell = new ZoomCollectionViewCell(ZoomCollectionView);
        cell->ZoomImage = image;
        cells.append(cell);
    }
    navigationItem().rightItems = {{QStringLiteral("Share"), [this] { shareButtonClicked(); },
                                    nullptr, QStringLiteral("ShareButton")}};
    updateNavigationBar();
    layoutCells();
}

int ZoomViewController::numberOfItems() const {
    return int(ZoomImages.size());
}

void ZoomViewController::layoutCells() {
    // Square items of side (width - 20) / 1.1, one under the other.
    const int side = int((width() - 20.0) / 1.1);
    // The list covers the whole screen, so a grown or moved picture is clipped by the screen
    // only.
    ZoomCollectionView->setGeometry(rect());
    for (int i = 0; i < cells.size(); ++i)
        cells[i]->setGeometry((width() - side) / 2, 10 + i * (side + 10), side, side);
    // The gestures' transform acts on the whole list.
    for (auto* cell : cells)
        cell->setGeometry(transform_.mapRect(QRectF(cell->geometry())).toRect());
}

void ZoomViewController::pinchedView(qreal scale) {
    ZoomCollectionView->raise();
    transform_ = transform_ * QTransform::fromScale(scale, scale);
    layoutCells();
}

void ZoomViewController::draggedView(QPointF translation) {
    ZoomCollectionView->raise();
    transform_ = transform_ * QTransform::fromTranslate(translation.x(), translation.y());
    layoutCells();
}

bool ZoomViewController::event(QEvent* event) {
    if (event->type() == QEvent::Gesture) {
        auto* g = static_cast<QGestureEvent*>(event);
        if (auto* pinch = static_cast<QPinchGesture*>(g->gesture(Qt::PinchGesture))) {
            pinchedView(pinch->scaleFactor());
            return true;
        }
    }
    return ViewController::event(event);
}

void ZoomViewController::wheelEvent(QWheelEvent* event) {
    // A trackpad pinch or Ctrl+wheel on the desktop.
    pinchedView(event->angleDelta().y() > 0 ? 1.1 : 1 / 1.1);
}

void ZoomViewController::mousePressEvent(QMouseEvent* event) {
    last_ = event->position();
}

void ZoomViewController::mouseMoveEvent(QMouseEvent* event) {
    draggedView(event->position() - last_);
    last_ = event->position();
}

void ZoomViewController::resizeEvent(QResizeEvent* event) {
    ViewController::resizeEvent(event);
    layoutCells();
}

void ZoomViewController::shareButtonClicked() {
    if (!Platform::messages().canSendText()) {
        TextMessageAlert::presentLater(this);
        return;
    }
    ShareItem front, back;
    front.data = ShareFrontImageData;
    back.data = ShareBackImageData;
    Platform::shareSheet().present({front, back}, {}, this);
}
