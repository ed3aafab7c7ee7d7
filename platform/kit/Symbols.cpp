#include "platform/kit/Symbols.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

static void loadSymbolResources() {
    // The kit is a static library: its resources register only when asked to.
    static const bool loaded = [] {
        Q_INIT_RESOURCE(Symbols);
        return true;
    }();
    Q_UNUSED(loaded);
}

namespace {
QString pathOf(const QString& name) {
    return QStringLiteral(":/symbols/%1.svg").arg(name);
}

QPixmap draw(const QByteArray& svg, const QColor& colour, int side) {
    QByteArray tinted = svg;
    tinted.replace("#000000", colour.name().toLatin1());
    QSvgRenderer renderer(tinted);
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}
} // namespace

namespace Symbols {

bool exists(const QString& name) {
    loadSymbolResources();
    return QFile::exists(pathOf(name));
}

static QByteArray source(const QString& name) {
    loadSymbolResources();
    QFile file(pathOf(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QIcon icon(const QString& name, int size, const QColor& colour) {
    const QByteArray svg = source(name);
    if (svg.isEmpty())
        return {};
    return QIcon(
        draw(svg, colour.isValid() ? colour : QApplication::palette().color(QPalette::ButtonText),
             size));
}

QIcon icon(const QString& name, const QPalette& palette) {
    const QByteArray svg = source(name);
    if (svg.isEmpty())
        return {};
    QIcon icon;
    for (int side : {22, 44}) {
        icon.addPixmap(draw(svg, palette.color(QPalette::Active, QPalette::ButtonText), side));
        icon.addPixmap(draw(svg, palette.color(QPalette::Disabled, QPalette::ButtonText), side),
                       QIcon::Disabled);
    }
    return icon;
}

} // namespace Symbols
