#pragma once
// Texts too long for their place end with an ellipsis after the last whole word that fits.
#include <QList>
#include <QPair>
#include <QPointer>
#include <QString>

class QFontMetrics;
class QLabel;
class QWidget;

namespace Elide {

// The text as it fits in `width`: whole, or cut after a word with "…"; a first word too long
// on its own is the only thing ever cut inside a word.
QString atWord(const QString& text, const QFontMetrics& metrics, int width);

// The single-line labels inside `widget` may be narrower than their text, so a layout can give
// them the width there is instead of pushing the rest out of sight.
void letLabelsShrink(QWidget* widget);

// While alive, the single-line labels inside `widget` that are too narrow for their text show
// it cut at a word; their own texts come back afterwards (a table draws its rows this way).
class FittedLabels {
public:
    explicit FittedLabels(QWidget* widget);
    ~FittedLabels();
    FittedLabels(const FittedLabels&) = delete;
    FittedLabels& operator=(const FittedLabels&) = delete;

private:
    QList<QPair<QPointer<QLabel>, QString>> shortened_;
};

} // namespace Elide
