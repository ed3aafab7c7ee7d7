#pragma once
// Decoded front pictures of the coins a list drew lately, by their stored bytes: a scroll or a
// search draws the same rows again and again, and only drawn rows are ever decoded.
#include "model/Records.h"

#include <QCache>
#include <QImage>

class CoinPictureCache {
public:
    explicit CoinPictureCache(int pictures = 64)
        : pictures_(pictures) {}
    // Null when the coin has no front picture.
    QImage front(const Coins& coin);

private:
    QCache<QByteArray, QImage> pictures_;
};
