#pragma once
// The opened coin's pictures, large; pinch to scale and drag to move, without limits.
#include "platform/kit/ViewController.h"

#include <QTransform>

// One picture in the zoom list.
class ZoomCollectionViewCell : public QWidget {
    Q_OBJECT
public:
    explicit ZoomCollectionViewCell(QWidget* parent = nullptr);
    QImage ZoomImage;

protected:
    void paintEvent(QPaintEvent*) override;
};

class ZoomViewController : public ViewController {
    Q_OBJECT
public:
    explicit ZoomViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;

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
    void layoutCells();
    QWidget* ZoomCollectionView;
    QTransform transform_;
    QPointF last_;
};
