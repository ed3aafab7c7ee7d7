#include "platform/ImageCoding.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <QColorSpace>

#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>
#include <vector>

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
    // Comments, Exif and colour profiles change what the ordinary decoder hands back (texts,
    // orientation, colour space): such pictures go the ordinary way.
    jpeg_save_markers(&info, JPEG_COM, 1);
    jpeg_save_markers(&info, JPEG_APP0 + 1, 1);
    jpeg_save_markers(&info, JPEG_APP0 + 2, 1);
    if (jpeg_read_header(&info, TRUE) != JPEG_HEADER_OK || info.num_components != 3 ||
        info.jpeg_color_space != JCS_YCbCr || info.saw_Adobe_marker || info.marker_list) {
        jpeg_destroy_decompress(&info);
        return {};
    }
    info.out_color_space = JCS_EXT_BGRX; // the byte order of QImage::Format_RGB32
    jpeg_start_decompress(&info);
    image = QImage(int(info.output_width), int(info.output_height), QImage::Format_RGB32);
    std::vector<JSAMPROW> rows(info.output_height);
    for (int y = 0; y < image.height(); ++y)
        rows[std::size_t(y)] = image.scanLine(y);
    while (info.output_scanline < info.output_height)
        jpeg_read_scanlines(&info, rows.data() + info.output_scanline,
                            info.output_height - info.output_scanline);
    jpeg_finish_decompress(&info);
    // The resolution as the ordinary decoder reads it; the encoder writes it back.
    if (info.density_unit == 1) {
        image.setDotsPerMeterX(int(100. * info.X_density / 2.54));
        image.setDotsPerMeterY(int(100. * info.Y_density / 2.54));
    } else if (info.density_unit == 2) {
        image.setDotsPerMeterX(int(100. * info.X_density));
        image.setDotsPerMeterY(int(100. * info.Y_density));
    }
    jpeg_destroy_decompress(&info);
    return image;
}

// The JPEG the image plugin writes for an RGB32 picture with no texts and no colour space:
// the same settings, without the plugin machinery around them.
QByteArray quickEncode(const QImage& image, int quality) {
    jpeg_compress_struct info;
    JpegError error;
    info.err = jpeg_std_error(&error.manager);
    error.manager.error_exit = jumpOnError;
    error.manager.output_message = ignoreMessage;
    unsigned char* buffer = nullptr;
    unsigned long size = 0;
    if (setjmp(error.jump)) {
        jpeg_destroy_compress(&info);
        std::free(buffer);
        return {};
    }
    jpeg_create_compress(&info);
    jpeg_mem_dest(&info, &buffer, &size);
    info.image_width = JDIMENSION(image.width());
    info.image_height = JDIMENSION(image.height());
    // Fed the pixels as they lie in memory; the colour conversion is the same as from RGB.
    info.input_components = 4;
    info.in_color_space = JCS_EXT_BGRX;
    jpeg_set_defaults(&info);
    const double dpmX = image.dotsPerMeterX(), dpmY = image.dotsPerMeterY();
    const double diffInch = std::abs(dpmX * 2.54 / 100. - qRound(dpmX * 2.54 / 100.)) +
                            std::abs(dpmY * 2.54 / 100. - qRound(dpmY * 2.54 / 100.));
    const double diffCm = (std::abs(dpmX / 100. - qRound(dpmX / 100.)) +
                           std::abs(dpmY / 100. - qRound(dpmY / 100.))) *
                          2.54;
    if (diffInch < diffCm) {
        info.density_unit = 1;
        info.X_density = UINT16(qRound(dpmX * 2.54 / 100.));
        info.Y_density = UINT16(qRound(dpmY * 2.54 / 100.));
    } else {
        info.density_unit = 2;
        info.X_density = UINT16((image.dotsPerMeterX() + 50) / 100);
        info.Y_density = UINT16((image.dotsPerMeterY() + 50) / 100);
    }
    jpeg_set_quality(&info, quality, TRUE);
    jpeg_start_compress(&info, TRUE);
    std::vector<JSAMPROW> rows(std::size_t(image.height()));
    for (int y = 0; y < image.height(); ++y)
        rows[std::size_t(y)] = const_cast<JSAMPROW>(image.constScanLine(y));
    while (info.next_scanline < info.image_height)
        jpeg_write_scanlines(&info, rows.data() + info.next_scanline,
                             info.image_height - info.next_scanline);
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    QByteArray out(reinterpret_cast<const char*>(buffer), qsizetype(size));
    std::free(buffer);
    return out;
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

QByteArray jpegQuickly(const QImage& image, double quality) {
    if (image.format() == QImage::Format_RGB32 && image.textKeys().isEmpty() &&
        !image.colorSpace().isValid() && !image.isNull())
        if (QByteArray bytes = quickEncode(image, qRound(quality * 100)); !bytes.isEmpty())
            return bytes;
    return jpeg(image, quality);
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
