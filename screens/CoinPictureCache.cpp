#include "screens/CoinPictureCache.h"

#include "platform/graphics/ImageCoding.h"

QImage CoinPictureCache::front(const Coins& coin) {
    if (!coin.hasValue(Coins::Attr::frontImage))
        return {};
    const QByteArray bytes = coin.frontImage();
    if (const QImage* known = pictures_.object(bytes))
        return *known;
    const QImage picture = ImageCoding::decode(bytes);
    pictures_.insert(bytes, new QImage(picture));
    return picture;
}
