#include "platform/kit/Symbols.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// The resources live in a static library: nothing would pull their registration in otherwise.
static void registerSymbols() {
    static const bool once = [] {
        Q_INIT_RESOURCE(symbols);
        return true;
    }();
    Q_UNUSED(once);
}

namespace Symbols {

namespace {
QString pathOf(const QString& name) {
    return QStringLiteral(":/symbols/%1.svg").arg(name);
}
} // namespace

bool exists(const QString& name) {
    if (name.isEmpty())
        return false;
    registerSymbols();
    return QFile::exists(pathOf(name));
}

QIcon icon(const QString& name, int size, const QColor& colour) {
    if (!exists(name))
        return {};
    QSvgRenderer renderer(pathOf(name));
    // Drawn at twice the size so that it stays sharp on dense screens.
    const qreal ratio = 2.0;
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter, QRectF(0, 0, size, size));
    // The drawing keeps its shape and takes the text colour, so it reads in both appearances.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(0, 0, size, size),
                     colour.isValid() ? colour
                                      : QApplication::palette().color(QPalette::ButtonText));
    painter.end();
    return QIcon(pixmap);
}

} // namespace Symbols
