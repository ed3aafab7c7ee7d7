#pragma once
// Light or dark appearance: read from the palette, or forced (--dark, screenshots, tests).
#include <QColor>

namespace Appearance {
bool isDark();
// Forces the appearance for the whole program (Fusion style with a light or dark palette).
void setDark(bool dark);
} // namespace Appearance

class QWidget;

namespace Styling {
// Rows: hue 0.5, saturation 0.06, brightness 0.96.
QColor rowColor();
// The border colour as drawn: black turns grey in dark mode, where it would not show.
QColor visibleBorder(const QColor& border);
// Corner radius, border width and colour (and optionally a background) for a button, label,
// image view or text input.
void round(QWidget* widget, int radius, int borderWidth, const QColor& border,
           const QColor& background = QColor());
} // namespace Styling
