#pragma once
// Symbol images: small SVGs of our own in the resources, named after the symbol they stand for
// ("arrow.up.arrow.down", "printer", ...), drawn in the text colour of a palette.
#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QString>

namespace Symbols {
bool exists(const QString& name);
// The symbol in the palette's button text colour, greyed when disabled; a null icon for an
// unknown name.
QIcon icon(const QString& name, const QPalette& palette);
// The symbol at `size` pixels in one colour (the application's button text colour when not
// given).
QIcon icon(const QString& name, int size = 22, const QColor& colour = QColor());
} // namespace Symbols
