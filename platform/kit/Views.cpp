#include "platform/kit/Views.h"

#include <QPainter>
#include <QtMath>

ImageView::ImageView(QWidget* parent)
    : QWidget(parent) {
    setMinimumSize(60, 60);
}

void ImageView::setImage(const QImage& image) {
    image_ = image;
    shown_ = QImage();
    ++generation_;
    update();
}

void ImageView::setShownOriginal(const QImage& original) {
    shown_ = original;
    update();
}

void ImageView::paintEvent(QPaintEvent*) {
    const QImage& picture = shown_.isNull() ? image_ : shown_;
    if (picture.isNull())
        return;
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize s = picture.size().scaled(size() - QSize(6, 6), Qt::KeepAspectRatio);
    const QRect target(QPoint((width() - s.width()) / 2, (height() - s.height()) / 2), s);
    p.drawImage(target, picture);
}

ActivityIndicator::ActivityIndicator(QWidget* parent)
    : QWidget(parent) {
    setFixedSize(40, 40);
    timer_.setInterval(80);
    connect(&timer_, &QTimer::timeout, this, [this] {
        step_ = (step_ + 1) % 12;
        update();
    });
    hide();
}

void ActivityIndicator::startAnimating() {
    timer_.start();
    show();
    raise();
}

void ActivityIndicator::stopAnimating() {
    timer_.stop();
    if (hidesWhenStopped)
        hide();
}

void ActivityIndicator::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(width() / 2.0, height() / 2.0);
    for (int i = 0; i < 12; ++i) {
        QColor c = palette().color(QPalette::WindowText);
        c.setAlphaF(float(((i + 12 - step_) % 12) + 1) / 12.0f);
        p.setPen(QPen(c, 3, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(0, 8), QPointF(0, 16));
        p.rotate(30);
    }
}

ProgressView::ProgressView(QWidget* parent)
    : QProgressBar(parent) {
    setRange(0, 1000);
    setValue(0);
    setTextVisible(false);
    setMaximumHeight(8);
    setAccessibleName(tr("Progress"));
}

void ProgressView::setProgress(float fraction, bool) {
    setValue(qBound(0, qRound(fraction * 1000.0f), 1000));
}
