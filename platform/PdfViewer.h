#pragma once
// A PDF shown page under page. It fits the page width, also as the window resizes, until the
// reader zooms (pinch, a trackpad's zoom or Ctrl + wheel); zooming back to the width fits again.
// It scrolls by wheel, scroll bars and touch flicks.
#include <QPdfView>

class QPdfDocument;

class PdfViewer : public QPdfView {
    Q_OBJECT
public:
    explicit PdfViewer(QWidget* parent = nullptr);
    ~PdfViewer() override;

    // Opens a PDF file or resource (":/name.pdf"); false when it cannot be read as one.
    bool open(const QString& path);
    int pageCount() const;
    // The page at the upper part of the view.
    int currentPage() const;

    // Fit the page width (the starting state); a zoom turns it off.
    void setAutoScales(bool on);
    bool autoScales() const { return zoomMode() == ZoomMode::FitToWidth; }
    // Pixels per point of the pages as they are shown.
    qreal scale() const;
    // Zooms by `factor`, keeping the point under `anchor` (viewport coordinates) in place;
    // between half and six times the fitted width.
    void zoomBy(qreal factor, QPointF anchor = {});

signals:
    void currentPageChanged(int page);

protected:
    void wheelEvent(QWheelEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    qreal fittedScale() const;
    QPdfDocument* pdf_;
};
