#pragma once
// Picture bytes: decoding, the stored coin picture (100 x 100 JPEG) and strict base64.
#include <QByteArray>
#include <QImage>
#include <optional>

namespace ImageCoding {
// The largest picture decoded: far beyond any camera, far below what a forged header can claim.
inline constexpr qint64 MaxPixels = 64LL * 1000 * 1000;
inline constexpr int MaxSide = 32768;
bool saneSize(qint64 width, qint64 height);
// A null image when the bytes are no picture, or one larger than MaxPixels (refused from its
// header, before anything is allocated). The one test of a picture: the import keeps what
// decodes, and the export writes whatever decodes.
QImage decode(const QByteArray& bytes);
// Whether decode() gives a picture, found without drawing one where the bytes are a JPEG
// that libjpeg reads through (the import checks every picture this way).
bool readable(const QByteArray& bytes);
// The size of decode()'s picture, or nothing when it gives none; a plain JPEG is measured
// without being drawn.
std::optional<QSize> decodedSize(const QByteArray& bytes);
// The size of a JPEG that can go into a PDF as it is and look there as decode() draws it: a
// plain colour JPEG read through without a warning, nothing in it that decode() would act on
// (Exif turn, colour profile). Nothing for any other bytes.
std::optional<QSize> plainJpegSize(const QByteArray& bytes);
// The size a photo is shown at (after its Exif turn), read from its header alone; nothing when
// the bytes are no picture.
std::optional<QSize> shownSize(const QByteArray& bytes);
// The picture as shown (after its Exif turn), no larger than `most` and keeping its shape, never
// enlarged; a JPEG is decoded at 1/2, 1/4 or 1/8 of its size where that is enough, so a large
// photo costs a fraction of a full decode. An invalid or empty `most` gives the full size. A null
// image as decode() gives one.
QImage decodeToFit(const QByteArray& bytes, const QSize& most);
// The picture drawn onto a 100 x 100 canvas, stretched to the whole square whatever its shape.
QImage redrawnForStorage(const QImage& image);
// JPEG at a quality from 0 to 1; empty when encoding fails.
QByteArray jpeg(const QImage& image, double quality);
// The bytes of jpeg(decode(bytes), quality), for the export: a plain colour JPEG goes straight
// through libjpeg with the image plugin's settings, anything else the ordinary way. Empty when
// the bytes are no picture.
QByteArray reencodeJpeg(const QByteArray& bytes, double quality);
// What a coin stores for a picture: redrawn to 100 x 100, JPEG at quality 0.5.
QByteArray coinPictureData(const QImage& image);
// Standard alphabet with "=" padding, no line breaks.
QByteArray base64(const QByteArray& bytes);
// Any character outside the alphabet, misplaced padding or a length that is not a multiple of
// four makes the text invalid.
std::optional<QByteArray> strictBase64Decode(QByteArrayView text);
} // namespace ImageCoding
