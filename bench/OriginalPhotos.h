#pragma once
// Camera-sized photos kept as the originals of coin pictures, for the benchmarks and grabs.
#include "model/ManagedObjectContext.h"
#include "model/Originals.h"
#include "platform/graphics/ImageCoding.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QRandomGenerator>

#include <algorithm>
#include <cstdlib>

namespace OriginalPhotos {

// A photo-like picture: soft shapes over a gradient, with a little sensor noise, at quality 90
// (about as many bytes per pixel as a camera's JPEG).
inline QByteArray photo(const QSize& size, quint32 seed) {
    QImage image(size, QImage::Format_RGB32);
    QRandomGenerator rng(seed);
    QPainter p(&image);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor(70, 110, 160));
    sky.setColorAt(1, QColor(190, 170, 120));
    p.fillRect(image.rect(), sky);
    p.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 300; ++i) {
        p.setPen(QPen(QColor::fromRgb(rng.generate()), 1 + rng.bounded(12)));
        p.setBrush(QColor::fromRgba((rng.generate() & 0x00ffffff) | 0x60000000));
        const int w = 40 + rng.bounded(size.width() / 4), h = 40 + rng.bounded(size.height() / 4);
        p.drawEllipse(rng.bounded(size.width()), rng.bounded(size.height()), w, h);
    }
    p.end();
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int n = int(rng.bounded(13)) - 6;
            const QRgb c = line[x];
            line[x] = qRgb(std::clamp(qRed(c) + n, 0, 255), std::clamp(qGreen(c) + n, 0, 255),
                           std::clamp(qBlue(c) + n, 0, 255));
        }
    }
    return ImageCoding::jpeg(image, 0.9);
}

// Keeps the photo as the original of a new stored picture; the stored picture's bytes.
inline QByteArray kept(ManagedObjectContext& ctx, const QByteArray& bytes) {
    const auto original = Originals::keep(ctx, bytes, *ImageCoding::shownSize(bytes));
    const QByteArray stored = ImageCoding::coinPictureData(ImageCoding::decode(bytes));
    if (!original.ok() || !Originals::link(ctx, stored, original.value()).ok())
        std::exit(1);
    return stored;
}

} // namespace OriginalPhotos
