#pragma once
// Symbol images: small SVGs of our own in the resources, named after the symbol they stand for
// ("plus", "arrow.up.arrow.down"), drawn in the button text colour of the current appearance.
#include <QColor>
#include <QIcon>
#include <QString>

namespace Symbols {
// True when the resources hold the named symbol.
bool exists(const QString& name);
// The named symbol at `size` points in `colour` (the button text colour when not given); a null
// icon for a name the resources do not hold.
QIcon icon(const QString& name, int size = 22, const QColor& colour = QColor());
} // namespace Symbols
