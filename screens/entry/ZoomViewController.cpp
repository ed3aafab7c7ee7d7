#include "screens/entry/ZoomViewController.h"

#include "platform/Platform.h"
#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "screens/ProcessState.h"
#include "screens/TextMessageAlert.h"
#include "screens/entry/OriginalPictures.h"

#include <QGestureEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPinchGesture>
#include <QWheelEvent>

ZoomCollectionViewCell::ZoomCollectionViewCell(QWidget* parent)
    : QWidget(parent) {
    Styling::round(this, 10, 2, Qt::black);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ZoomCollectionViewCell::setOriginal(const QList<QImage>& sizes) {
    original_ = sizes;
    update();
}

QSize ZoomCollectionViewCell::pictureSize() const {
    return original_.isEmpty() ? ZoomImage.size() : original_.first().size();
}

void ZoomCollectionViewCell::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.setRenderHint(QPainter::Antialiasing);
    const QRect inner = rect().adjusted(2, 2, -2, -2);
    QPainterPath clip;
    clip.addRoundedRect(inner, 10, 10);
    p.setClipPath(clip);
    if (original_.isEmpty()) {
        p.drawImage(inner, ZoomImage);
    } else {
        // In its own proportions, centred in the square.
        const QSizeF fitted =
            QSizeF(original_.first().size()).scaled(inner.size(), Qt::KeepAspectRatio);
        const QRectF target(inner.x() + (inner.width() - fitted.width()) / 2,
                            inner.y() + (inner.height() - fitted.height()) / 2, fitted.width(),
                            fitted.height());
        // The smallest size with at least the screen's pixels, and of it only the part on
        // screen: a pan or zoom step costs about one screenful of drawing however large the
        // photo is or how far it is zoomed in.
        const qreal needed = target.width() * devicePixelRatioF();
        const QImage* picture = &original_.first();
        for (const QImage& size : original_)
            if (size.width() >= needed)
                picture = &size;
        const QRectF part = target.intersected(QRectF(event->rect()));
        if (!part.isEmpty()) {
            const qreal sx = picture->width() / target.width();
            const qreal sy = picture->height() / target.height();
            p.drawImage(part, *picture,
                        QRectF((part.x() - target.x()) * sx, (part.y() - target.y()) * sy,
                               part.width() * sx, part.height() * sy));
        }
    }
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
    setTitle(tr("Zoom"));
    ManagedObjectContext* context = coin_ ? coin_->managedObjectContext() : nullptr;
    if (!context) {
        sides_[0].stored = ShareFrontImageData;
        sides_[1].stored = ShareBackImageData;
        for (const QImage& image : ZoomImages) {
            auto* cell = new ZoomCollectionViewCell(ZoomCollectionView);
            cell->ZoomImage = image;
            cells.append(cell);
        }
    } else {
        // The coin's sides, each only if it has a picture, front first.
        const std::pair<int, QByteArray> pictures[] = {
            {Coins::Attr::frontImage, coin_->frontImage()},
            {Coins::Attr::backImage, coin_->backImage()}};
        for (int i = 0; i < 2; ++i) {
            sides_[i].stored = pictures[i].second;
            if (!coin_->hasValue(pictures[i].first))
                continue;
            auto* cell = new ZoomCollectionViewCell(ZoomCollectionView);
            cell->setAccessibleName(i == 0 ? tr("Front picture") : tr("Back picture"));
            cell->ZoomImage = ImageCoding::decode(pictures[i].second);
            cells.append(cell);
            if (!pictures[i].second.isEmpty())
                sides_[i].original = Originals::of(*context, pictures[i].second);
            if (sides_[i].original)
                pending_.append({cell, *sides_[i].original});
        }
    }
    navigationItem().rightItems = {
        {tr("Share"), [this] { shareButtonClicked(); }, nullptr, QStringLiteral("ShareButton")}};
    updateNavigationBar();
    layoutCells();
}

int ZoomViewController::numberOfItems() const {
    return int(cells.size());
}

void ZoomViewController::loadOriginal(ZoomCollectionViewCell* cell,
                                      const Originals::Original& original) {
    // First the photo fitted to its place on screen, quickly (libjpeg's scaled decode), then
    // at full resolution with its halvings down to that place's size, for the zoom.
    const QSize fit = (QSizeF(cell->size() - QSize(4, 4)) * devicePixelRatioF()).toSize();
    OriginalPictures::load(
        cell, original, {fit, QSize()},
        [cell](int index, const QList<QImage>& sizes) {
            if (index == 1 || !cell->showsOriginal())
                cell->setOriginal(sizes);
        },
        [fit](int index, const QImage& picture) {
            return index == 0 ? QList<QImage>{picture} : OriginalPictures::halvings(picture, fit);
        });
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
    // The originals are decoded for the size they are shown at, known once the screen is laid
    // out in its window.
    if (parentWidget() && !pending_.isEmpty()) {
        for (const auto& [cell, original] : std::as_const(pending_))
            loadOriginal(cell, original);
        pending_.clear();
    }
}

void ZoomViewController::shareButtonClicked() {
    if (!Platform::messages().canSendText()) {
        TextMessageAlert::presentLater(this);
        return;
    }
    // The original photo's file where a side has one, else the stored picture.
    QList<ShareItem> items;
    for (const Side& side : sides_) {
        ShareItem item;
        item.data = side.stored;
        if (side.original) {
            const Result<QByteArray> bytes = Originals::read(*side.original);
            if (bytes.ok()) {
                item.data = bytes.value();
                item.url = QUrl::fromLocalFile(side.original->path);
            } else {
                Console::log(bytes.error().description());
            }
        }
        items << item;
    }
    Platform::shareSheet().present(items, {}, this);
}
