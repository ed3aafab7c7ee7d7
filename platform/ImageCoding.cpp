#include "platform/ImageCoding.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>

namespace ImageCoding {

QImage decode(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return reader.read();
}

namespace {
struct JpegError {
    jpeg_error_mgr manager;
    std::jmp_buf jump;
};
void jumpOnError(j_common_ptr info) {
    std::longjmp(reinterpret_cast<JpegError*>(info->err)->jump, 1);
}
void ignoreMessage(j_common_ptr) {}

QImage quickDecode(const QByteArray& bytes) {
    jpeg_decompress_struct info;
    JpegError error;
    info.err = jpeg_std_error(&error.manager);
    error.manager.error_exit = jumpOnError;
    error.manager.output_message = ignoreMessage;
    QImage image;
    if (setjmp(error.jump)) {
        jpeg_destroy_decompress(&info);
        return {};
    }
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, reinterpret_cast<const unsigned char*>(bytes.constData()),
                 static_cast<unsigned long>(bytes.size()));
    if (jpeg_read_header(&info, TRUE) != JPEG_HEADER_OK || info.num_components != 3 ||
        info.jpeg_color_space != JCS_YCbCr || info.saw_Adobe_marker) {
        jpeg_destroy_decompress(&info);
        return {};
    }
    info.out_color_space = JCS_EXT_BGRX; // the byte order of QImage::Format_RGB32
    jpeg_start_decompress(&info);
    image = QImage(int(info.output_width), int(info.output_height), QImage::Format_RGB32);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = image.scanLine(int(info.output_scanline));
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    return image;
}
} // namespace

QImage decodeJpegQuickly(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xD8") && QSysInfo::ByteOrder == QSysInfo::LittleEndian)
        if (QImage image = quickDecode(bytes); !image.isNull())
            return image;
    return decode(bytes);
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
