#include "screens/RowPictures.h"

#include "platform/ImageCoding.h"

QImage RowPictures::front(const Coins& coin) {
    if (!coin.hasValue(Coins::Attr::frontImage))
        return {};
    const QByteArray bytes = coin.frontImage();
    if (const QImage* known = decoded_.object(bytes))
        return *known;
    const QImage picture = ImageCoding::decode(bytes);
    decoded_.insert(bytes, new QImage(picture));
    return picture;
}
