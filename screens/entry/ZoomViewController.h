#pragma once
// The opened coin's pictures, large; pinch to scale and drag to move, without limits.
#include "model/Originals.h"
#include "platform/kit/ViewController.h"
#include "screens/DetailReceiver.h"

#include <QTransform>

#include <optional>

// One picture in the zoom list: the stored 100 x 100, or the original photo in its own
// proportions once decoded.
class ZoomCollectionViewCell : public QWidget {
    Q_OBJECT
public:
    explicit ZoomCollectionViewCell(QWidget* parent = nullptr);
    QImage ZoomImage;
    // The original drawn at sizes from the largest down: each paint draws the visible part from
    // the smallest that still has the pixels the screen shows.
    void setOriginal(const QList<QImage>& sizes);
    bool showsOriginal() const { return !original_.isEmpty(); }
    // The size of the largest picture the cell holds.
    QSize pictureSize() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QList<QImage> original_;
};

class ZoomViewController : public ViewController, public DetailReceiver {
    Q_OBJECT
public:
    explicit ZoomViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;
    // The coin whose pictures (and their originals) are shown; without one, the current coin's
    // pictures as the list copied them.
    void setDetailItem(const CoinPtr& coin) override { coin_ = coin; }

    // The gestures' effect on the pictures: scale multiplies, translation moves.
    void pinchedView(qreal scale);
    void draggedView(QPointF translation);
    void shareButtonClicked();
    int numberOfItems() const;
    QTransform transform() const { return transform_; }
    QList<ZoomCollectionViewCell*> cells;

protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // The coin's two sides: the stored picture's bytes and its original, where one is linked.
    struct Side {
        QByteArray stored;
        std::optional<Originals::Original> original;
    };
    Side sides_[2];
    CoinPtr coin_;
    // Originals to decode once the cells have their size on screen.
    QList<std::pair<ZoomCollectionViewCell*, Originals::Original>> pending_;
    void loadOriginal(ZoomCollectionViewCell* cell, const Originals::Original& original);
    void layoutCells();
    QWidget* ZoomCollectionView;
    QTransform transform_;
    QPointF last_;
};
