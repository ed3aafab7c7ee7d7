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
    // The picture the view holds (and a form saves). Setting it drops the shown original.
    QImage image() const { return image_; }
    void setImage(const QImage& image);
    bool hasImage() const { return !image_.isNull(); }
    // A larger picture shown in place of image(), in its own proportions, until the next
    // setImage(): the photo the held picture was made from.
    void setShownOriginal(const QImage& original);
    QImage shownOriginal() const { return shown_; }
    // Counts the setImage() calls, so that a picture decoded late can tell whether it still
    // belongs to what the view holds.
    int generation() const { return generation_; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QImage image_, shown_;
    int generation_ = 0;
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
