#include "platform/kit/Symbols.h"

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

QIcon icon(const QString& name, const QPalette& palette) {
    loadSymbolResources();
    QFile file(pathOf(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray svg = file.readAll();
    QIcon icon;
    for (int side : {22, 44}) {
        icon.addPixmap(draw(svg, palette.color(QPalette::Active, QPalette::ButtonText), side));
        icon.addPixmap(draw(svg, palette.color(QPalette::Disabled, QPalette::ButtonText), side),
                       QIcon::Disabled);
    }
    return icon;
}

} // namespace Symbols
