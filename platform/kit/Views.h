#pragma once
// Small views: a picture that scales to fit, a spinning activity indicator, a progress bar.
#include <QImage>
#include <QProgressBar>
#include <QTimer>
#include <QWidget>

class ImageView : public QWidget {
    Q_OBJECT
public:
    explicit ImageView(QWidget* parent = nullptr);
    QImage image() const { return image_; }
    void setImage(const QImage& image);
    bool hasImage() const { return !image_.isNull(); }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QImage image_;
};

class ActivityIndicator : public QWidget {
    Q_OBJECT
public:
    explicit ActivityIndicator(QWidget* parent = nullptr);
    void startAnimating();
    void stopAnimating();
    bool isAnimating() const { return timer_.isActive(); }
    bool hidesWhenStopped = true;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QTimer timer_;
    int step_ = 0;
};

class ProgressView : public QProgressBar {
    Q_OBJECT
public:
    explicit ProgressView(QWidget* parent = nullptr);
    float progress() const { return float(value()) / 1000.0f; }
    void setProgress(float fraction, bool animated = false);
};
