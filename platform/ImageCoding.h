#pragma once
// Picture bytes: decoding, the stored coin picture (100 x 100 JPEG) and strict base64.
#include <QByteArray>
#include <QImage>
#include <optional>

namespace ImageCoding {
// A null image when the bytes are no picture.
QImage decode(const QByteArray& bytes);
// The same pixels as decode() for a colour JPEG, read straight through libjpeg without the
// image-plugin machinery (the export decodes tens of thousands of pictures); anything else
// goes the ordinary way.
QImage decodeJpegQuickly(const QByteArray& bytes);
// The picture drawn onto a 100 x 100 canvas, stretched to the whole square whatever its shape.
QImage redrawnForStorage(const QImage& image);
// JPEG at a quality from 0 to 1; empty when encoding fails.
QByteArray jpeg(const QImage& image, double quality);
// The same bytes as jpeg(), written straight through libjpeg for the pictures decodeJpegQuickly
// hands back; anything else goes the ordinary way.
QByteArray jpegQuickly(const QImage& image, double quality);
// What a coin stores for a picture: redrawn to 100 x 100, JPEG at quality 0.5.
QByteArray coinPictureData(const QImage& image);
// Standard alphabet with "=" padding, no line breaks.
QByteArray base64(const QByteArray& bytes);
// Any character outside the alphabet, misplaced padding or a length that is not a multiple of
// four makes the text invalid.
std::optional<QByteArray> strictBase64Decode(QByteArrayView text);
} // namespace ImageCoding
