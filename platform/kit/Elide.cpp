#include "platform/kit/Elide.h"

#include <QFontMetrics>
#include <QLabel>

namespace Elide {

namespace {
const QString kEllipsis = QStringLiteral("\u2026");

bool isPlainLine(const QLabel* label) {
    return !label->wordWrap() && !label->text().isEmpty() && label->textFormat() != Qt::RichText &&
           !(label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
}

// The width a label can show text in: its own, less what lies beyond its widget's edge.
int roomFor(const QLabel* label, const QWidget* within) {
    const QRect inside = label->contentsRect();
    const int right = label->mapTo(within, inside.topRight()).x();
    const int beyond = std::max(0, right - within->contentsRect().right());
    return inside.width() - label->margin() * 2 - std::max(0, label->indent()) - beyond;
}
} // namespace

QString atWord(const QString& text, const QFontMetrics& metrics, int width) {
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    for (qsizetype blank = text.lastIndexOf(u' '); blank > 0;
         blank = text.lastIndexOf(u' ', blank - 1)) {
        const QString head = text.left(blank).trimmed();
        if (!head.isEmpty() && metrics.horizontalAdvance(head + kEllipsis) <= width)
            return head + kEllipsis;
    }
    return metrics.elidedText(text, Qt::ElideRight, width);
}

void letLabelsShrink(QWidget* widget) {
    for (QLabel* label : widget->findChildren<QLabel*>())
        if (!label->wordWrap() && label->minimumWidth() == 0)
            label->setMinimumWidth(1);
}

FittedLabels::FittedLabels(QWidget* widget) {
    for (QLabel* label : widget->findChildren<QLabel*>()) {
        if (label->isHidden() || !isPlainLine(label))
            continue;
        const QString text = label->text();
        const QString fitted = atWord(text, label->fontMetrics(), roomFor(label, widget));
        if (fitted == text)
            continue;
        shortened_.append({label, text});
        label->setText(fitted);
    }
}

FittedLabels::~FittedLabels() {
    for (const auto& [label, text] : std::as_const(shortened_))
        if (label)
            label->setText(text);
}

} // namespace Elide
