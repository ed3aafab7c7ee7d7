#include "platform/ImageCoding.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

namespace ImageCoding {

QImage decode(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return reader.read();
}

QImage redrawnForStorage(const QImage& image) {
    QImage canvas(100, 100, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter p(&canvas);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(QRect(0, 0, 100, 100), image);
    return canvas;
}

QByteArray jpeg(const QImage& image, double quality) {
    if (image.isNull())
        return {};
    QByteArray out;
    QBuffer buffer(&out);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(qRound(quality * 100));
    if (!writer.write(image))
        return {};
    return out;
}

QByteArray coinPictureData(const QImage& image) {
    return jpeg(redrawnForStorage(image), 0.5);
}

QByteArray base64(const QByteArray& bytes) {
    return bytes.toBase64();
}

std::optional<QByteArray> strictBase64Decode(QByteArrayView text) {
    if (text.size() % 4 != 0)
        return std::nullopt;
    qsizetype padding = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool alphabet = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                              (c >= '0' && c <= '9') || c == '+' || c == '/';
        if (c == '=') {
            if (i < text.size() - 2)
                return std::nullopt;
            ++padding;
        } else if (!alphabet || padding) {
            return std::nullopt;
        }
    }
    auto result =
        QByteArray::fromBase64Encoding(text.toByteArray(), QByteArray::AbortOnBase64DecodingErrors);
    if (!result)
        return std::nullopt;
    return *result;
}

} // namespace ImageCoding
