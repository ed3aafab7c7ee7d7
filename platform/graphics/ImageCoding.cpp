#include "platform/graphics/ImageCoding.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <QColorSpace>

#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>
#include <vector>

namespace ImageCoding {

bool saneSize(qint64 width, qint64 height) {
    return width > 0 && height > 0 && width <= MaxSide && height <= MaxSide &&
           width * height <= MaxPixels;
}

QImage decode(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.isValid() && !saneSize(size.width(), size.height()))
        return {};
    // One limit: what our size check lets through, the image reader never refuses for size.
    reader.setAllocationLimit(int(MaxPixels * 4 / (1024 * 1024)) + 1);
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

// Density in dots per metre as the image plugin reads it from a JPEG header; 0 where it leaves
// the image's default.
int dotsPerMeter(UINT8 unit, UINT16 density) {
    if (unit == 1)
        return int(100. * density / 2.54);
    if (unit == 2)
        return int(100. * density);
    return 0;
}

// libjpeg's errors jump back to the caller, and its warnings say nothing.
jpeg_error_mgr* quietErrors(JpegError& error) {
    jpeg_error_mgr* manager = jpeg_std_error(&error.manager);
    manager->error_exit = jumpOnError;
    manager->output_message = ignoreMessage;
    return manager;
}

// The export re-encodes tens of thousands of pictures: one decoder and one encoder per thread,
// kept for the next picture, and pixels handed from one to the other as plain RGB rows.
class Recoder {
public:
    Recoder() {
        in_.err = quietErrors(inError_);
        startDecompressor();
        out_.err = quietErrors(outError_);
        jpeg_create_compress(&out_);
    }
    ~Recoder() {
        jpeg_destroy_decompress(&in_);
        jpeg_destroy_compress(&out_);
    }
    Recoder(const Recoder&) = delete;
    Recoder& operator=(const Recoder&) = delete;

    // False when the quick way does not apply; `encoded` is then left empty.
    bool recode(const QByteArray& bytes, int quality, QByteArray& encoded) {
        int dpmX = 0, dpmY = 0;
        if (!decode(bytes, dpmX, dpmY))
            return false;
        if (dpmX <= 0 || dpmY <= 0) {
            const QImage blank(1, 1, QImage::Format_RGB32); // the default resolution
            dpmX = dpmX > 0 ? dpmX : blank.dotsPerMeterX();
            dpmY = dpmY > 0 ? dpmY : blank.dotsPerMeterY();
        }
        return encode(quality, dpmX, dpmY, encoded);
    }

private:
    void startDecompressor() {
        jpeg_create_decompress(&in_);
        // Comments, Exif and colour profiles change what the ordinary decoder hands back
        // (texts, orientation, colour space): such pictures go the ordinary way.
        jpeg_save_markers(&in_, JPEG_COM, 1);
        jpeg_save_markers(&in_, JPEG_APP0 + 1, 1);
        jpeg_save_markers(&in_, JPEG_APP0 + 2, 1);
    }

    bool decode(const QByteArray& bytes, int& dpmX, int& dpmY) {
        // The tables a picture defines stay in a decompressor for the next picture (libjpeg's
        // abbreviated streams): one without tables of its own would be read with another's,
        // where the ordinary decoder refuses it. Each picture starts from a new one.
        jpeg_destroy_decompress(&in_);
        startDecompressor();
        if (setjmp(inError_.jump)) {
            jpeg_abort_decompress(&in_);
            return false;
        }
        jpeg_mem_src(&in_, reinterpret_cast<const unsigned char*>(bytes.constData()),
                     static_cast<unsigned long>(bytes.size()));
        if (jpeg_read_header(&in_, TRUE) != JPEG_HEADER_OK || in_.num_components != 3 ||
            in_.jpeg_color_space != JCS_YCbCr || in_.saw_Adobe_marker || in_.marker_list ||
            !saneSize(in_.image_width, in_.image_height)) {
            jpeg_abort_decompress(&in_);
            return false;
        }
        in_.out_color_space = JCS_RGB;
        jpeg_start_decompress(&in_);
        width_ = in_.output_width;
        height_ = in_.output_height;
        pixels_.resize(std::size_t(width_) * height_ * 3);
        rows_.resize(height_);
        for (JDIMENSION y = 0; y < height_; ++y)
            rows_[y] = pixels_.data() + std::size_t(y) * width_ * 3;
        while (in_.output_scanline < height_)
            jpeg_read_scanlines(&in_, rows_.data() + in_.output_scanline,
                                height_ - in_.output_scanline);
        jpeg_finish_decompress(&in_);
        dpmX = dotsPerMeter(in_.density_unit, in_.X_density);
        dpmY = dotsPerMeter(in_.density_unit, in_.Y_density);
        return true;
    }

    // The settings the image plugin writes an RGB picture with, texts and profile aside.
    bool encode(int quality, int dpmX, int dpmY, QByteArray& encoded) {
        unsigned char* buffer = nullptr;
        unsigned long size = 0;
        if (setjmp(outError_.jump)) {
            jpeg_abort_compress(&out_);
            std::free(buffer);
            return false;
        }
        jpeg_mem_dest(&out_, &buffer, &size);
        out_.image_width = width_;
        out_.image_height = height_;
        out_.input_components = 3;
        out_.in_color_space = JCS_RGB;
        jpeg_set_defaults(&out_);
        const double x = dpmX, y = dpmY;
        const double diffInch = std::abs(x * 2.54 / 100. - qRound(x * 2.54 / 100.)) +
                                std::abs(y * 2.54 / 100. - qRound(y * 2.54 / 100.));
        const double diffCm =
            (std::abs(x / 100. - qRound(x / 100.)) + std::abs(y / 100. - qRound(y / 100.))) * 2.54;
        if (diffInch < diffCm) {
            out_.density_unit = 1;
            out_.X_density = UINT16(qRound(x * 2.54 / 100.));
            out_.Y_density = UINT16(qRound(y * 2.54 / 100.));
        } else {
            out_.density_unit = 2;
            out_.X_density = UINT16((dpmX + 50) / 100);
            out_.Y_density = UINT16((dpmY + 50) / 100);
        }
        jpeg_set_quality(&out_, quality, TRUE);
        jpeg_start_compress(&out_, TRUE);
        while (out_.next_scanline < height_)
            jpeg_write_scanlines(&out_, rows_.data() + out_.next_scanline,
                                 height_ - out_.next_scanline);
        jpeg_finish_compress(&out_);
        encoded = QByteArray(reinterpret_cast<const char*>(buffer), qsizetype(size));
        std::free(buffer);
        return true;
    }

    jpeg_decompress_struct in_;
    jpeg_compress_struct out_;
    JpegError inError_, outError_;
    std::vector<unsigned char> pixels_;
    std::vector<JSAMPROW> rows_;
    JDIMENSION width_ = 0, height_ = 0;
};
} // namespace

namespace {
// Whether libjpeg reads a JPEG through to its end: the header, the size check and every block's
// coefficients, drawn at an eighth of the size since only the reading can fail.
class JpegChecker {
public:
    JpegChecker() {
        in_.err = quietErrors(error_);
        jpeg_create_decompress(&in_);
    }
    ~JpegChecker() { jpeg_destroy_decompress(&in_); }
    JpegChecker(const JpegChecker&) = delete;
    JpegChecker& operator=(const JpegChecker&) = delete;

    // `size` is set to the picture's size where the header alone tells what decode() would
    // give: no Exif block, which may turn the picture. `plain` asks for more: the size is set
    // only for a sequential, Huffman-coded colour JPEG read without a single warning and with
    // no colour profile or Adobe block, one that any PDF reader draws from its own bytes as the
    // image plugin would.
    bool reads(const QByteArray& bytes, QSize* size = nullptr, bool plain = false) {
        // As in the recoder: no tables left from the picture before.
        jpeg_destroy_decompress(&in_);
        jpeg_create_decompress(&in_);
        if (size)
            jpeg_save_markers(&in_, JPEG_APP0 + 1, 0);
        // A limit of 0 skips a block unseen; a byte of each is kept to know it is there.
        if (plain) {
            jpeg_save_markers(&in_, JPEG_APP0 + 1, 1);
            jpeg_save_markers(&in_, JPEG_APP0 + 2, 1);
        }
        error_.manager.num_warnings = 0;
        if (setjmp(error_.jump)) {
            jpeg_abort_decompress(&in_);
            return false;
        }
        jpeg_mem_src(&in_, reinterpret_cast<const unsigned char*>(bytes.constData()),
                     static_cast<unsigned long>(bytes.size()));
        if (jpeg_read_header(&in_, TRUE) != JPEG_HEADER_OK ||
            !saneSize(in_.image_width, in_.image_height)) {
            jpeg_abort_decompress(&in_);
            return false;
        }
        in_.scale_num = 1;
        in_.scale_denom = 8;
        jpeg_start_decompress(&in_);
        row_.resize(std::size_t(in_.output_width) * std::size_t(in_.output_components));
        JSAMPROW row = row_.data();
        while (in_.output_scanline < in_.output_height)
            jpeg_read_scanlines(&in_, &row, 1);
        const bool sized = !in_.marker_list; // gone once the reading is finished
        const bool isPlain = in_.num_components == 3 && in_.jpeg_color_space == JCS_YCbCr &&
                             in_.data_precision == 8 && !in_.progressive_mode && !in_.arith_code &&
                             !in_.saw_Adobe_marker;
        jpeg_finish_decompress(&in_);
        if (size && sized && (!plain || (isPlain && error_.manager.num_warnings == 0)))
            *size = QSize(int(in_.image_width), int(in_.image_height));
        return true;
    }

private:
    jpeg_decompress_struct in_;
    JpegError error_;
    std::vector<unsigned char> row_;
};
} // namespace

bool readable(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xD8")) {
        thread_local JpegChecker checker;
        if (checker.reads(bytes))
            return true;
    }
    return !decode(bytes).isNull();
}

std::optional<QSize> decodedSize(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xD8")) {
        thread_local JpegChecker checker;
        QSize size;
        if (checker.reads(bytes, &size) && size.isValid())
            return size;
    }
    const QImage image = decode(bytes);
    if (image.isNull())
        return std::nullopt;
    return image.size();
}

std::optional<QSize> shownSize(const QByteArray& bytes) {
    QByteArray shared = bytes; // QBuffer wants an array it may write; this one is only read
    QBuffer buffer(&shared);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    QSize size = reader.size();
    if (!size.isValid())
        return std::nullopt;
    if (reader.transformation() & QImageIOHandler::TransformationRotate90)
        size.transpose();
    return size;
}

QImage decodeToFit(const QByteArray& bytes, const QSize& most) {
    if (!most.isValid() || most.isEmpty())
        return decodeToFit(bytes, QSize(MaxSide, MaxSide));
    QByteArray shared = bytes;
    QBuffer buffer(&shared);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize stored = reader.size();
    if (!stored.isValid() || !saneSize(stored.width(), stored.height()))
        return {};
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize shown = turned ? stored.transposed() : stored;
    const QSize wanted = shown.scaled(most, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    // The scaled size is the file's own, before its turn.
    if (wanted.width() < shown.width() && wanted.height() < shown.height())
        reader.setScaledSize(turned ? wanted.transposed() : wanted);
    // Smooth scaling from the reduced decode to the exact size.
    reader.setQuality(90);
    reader.setAllocationLimit(int(MaxPixels * 4 / (1024 * 1024)) + 1);
    return reader.read();
}

std::optional<QSize> plainJpegSize(const QByteArray& bytes) {
    if (!bytes.startsWith("\xFF\xD8"))
        return std::nullopt;
    thread_local JpegChecker checker;
    QSize size;
    if (checker.reads(bytes, &size, true) && size.isValid())
        return size;
    return std::nullopt;
}

QByteArray reencodeJpeg(const QByteArray& bytes, double quality) {
    if (bytes.startsWith("\xFF\xD8")) {
        thread_local Recoder recoder;
        QByteArray encoded;
        if (recoder.recode(bytes, qRound(quality * 100), encoded))
            return encoded;
    }
    return jpeg(decode(bytes), quality);
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
    // Not QByteArray::fromBase64Encoding: even with AbortOnBase64DecodingErrors it takes a text
    // whose padding is left out, so a back picture with the record number written after it
    // ("...TWFu7") would decode where this refuses it. Checked and decoded in one pass: the
    // import decodes two pictures a coin.
    static constexpr std::array<signed char, 256> kValue = [] {
        std::array<signed char, 256> table{};
        table.fill(-1);
        const char* alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
        for (int i = 0; i < 64; ++i)
            table[std::size_t(static_cast<unsigned char>(alphabet[i]))] =
                static_cast<signed char>(i);
        return table;
    }();
    const qsizetype size = text.size();
    if (size % 4 != 0)
        return std::nullopt;
    qsizetype padding = 0;
    if (size > 0 && text[size - 1] == '=')
        padding = size > 1 && text[size - 2] == '=' ? 2 : 1;
    QByteArray out(size / 4 * 3 - padding, Qt::Uninitialized);
    char* write = out.data();
    quint32 bitsIn = 0;
    int count = 0;
    for (qsizetype i = 0; i < size - padding; ++i) {
        const int value = kValue[std::size_t(static_cast<unsigned char>(text[i]))];
        if (value < 0)
            return std::nullopt; // outside the alphabet, or padding before the end
        bitsIn = bitsIn << 6 | quint32(value);
        count += 6;
        if (count >= 8) {
            count -= 8;
            *write++ = char(bitsIn >> count);
        }
    }
    return out;
}

} // namespace ImageCoding
