// Draws the program's icon at the sizes the desktop's icon theme keeps:
// render_icon ICON.svg OUT_DIR SIZE... writes OUT_DIR/SIZExSIZE/NAME.png.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: render_icon ICON.svg OUT_DIR SIZE...\n");
        return 2;
    }
    QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
    if (!svg.isValid()) {
        std::fprintf(stderr, "render_icon: cannot read %s\n", argv[1]);
        return 1;
    }
    const QString name = QFileInfo(QString::fromLocal8Bit(argv[1])).completeBaseName();
    for (int i = 3; i < argc; ++i) {
        const int size = std::atoi(argv[i]);
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        svg.render(&painter);
        painter.end();
        const QString dir =
            QStringLiteral("%1/%2x%2").arg(QString::fromLocal8Bit(argv[2])).arg(size);
        QDir().mkpath(dir);
        if (!image.save(dir + QLatin1Char('/') + name + QStringLiteral(".png"))) {
            std::fprintf(stderr, "render_icon: cannot write %s\n", qPrintable(dir));
            return 1;
        }
    }
    return 0;
}
