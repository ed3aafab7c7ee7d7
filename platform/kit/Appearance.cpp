#include "platform/kit/Appearance.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

namespace Appearance {

bool isDark() {
    return QApplication::palette().color(QPalette::Window).lightness() < 128;
}

void setDark(bool dark) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette p = QApplication::style()->standardPalette();
    if (dark) {
        p.setColor(QPalette::Window, QColor(28, 28, 30));
        p.setColor(QPalette::WindowText, Qt::white);
        p.setColor(QPalette::Base, QColor(44, 44, 46));
        p.setColor(QPalette::AlternateBase, QColor(58, 58, 60));
        p.setColor(QPalette::Text, Qt::white);
        p.setColor(QPalette::Button, QColor(58, 58, 60));
        p.setColor(QPalette::ButtonText, Qt::white);
        p.setColor(QPalette::PlaceholderText, QColor(150, 150, 155));
        p.setColor(QPalette::Highlight, QColor(10, 132, 255));
        p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(120, 120, 120));
        p.setColor(QPalette::Disabled, QPalette::WindowText, QColor(120, 120, 120));
    }
    QApplication::setPalette(p);
}

} // namespace Appearance

namespace Styling {

QColor rowColor() {
    return QColor::fromHsvF(0.5f, 0.06f, 0.96f, 1.0f);
}

QColor visibleBorder(const QColor& border) {
    // A black border vanishes into a dark window; a mid grey shows on the window and on the
    // pale rows alike.
    if (Appearance::isDark() && border.lightness() < 80)
        return QColor(142, 142, 147);
    return border;
}

void round(QWidget* widget, int radius, int borderWidth, const QColor& border,
           const QColor& background) {
    if (widget->objectName().isEmpty())
        widget->setObjectName(QStringLiteral("styled%1").arg(quintptr(widget)));
    QString css = QStringLiteral("#%1 { border: %2px solid %3; border-radius: %4px; padding: 4px;")
                      .arg(widget->objectName())
                      .arg(borderWidth)
                      .arg(visibleBorder(border).name())
                      .arg(radius);
    if (background.isValid())
        css += QStringLiteral(" background-color: %1;").arg(background.name());
    // The focus shows once, as the border in the highlight colour, not as a second dotted
    // frame inside it.
    css += QStringLiteral(" outline: none; } #%1:focus { border-color: %2; }")
               .arg(widget->objectName(), widget->palette().color(QPalette::Highlight).name());
    css += QStringLiteral(" #%1:disabled { color: gray; }").arg(widget->objectName());
    widget->setAttribute(Qt::WA_StyledBackground, true);
    widget->setStyleSheet(css);
}

} // namespace Styling
