#pragma once
// Decoded front pictures of the rows drawn lately, by their stored bytes: pictures are decoded
// only for rows being drawn, and a search or a scroll draws the same rows again and again.
#include "model/Records.h"

#include <QCache>
#include <QImage>

class RowPictures {
public:
    // The coin's front picture, or a null image when it has none.
    QImage front(const Coins& coin);

private:
    QCache<QByteArray, QImage> decoded_{64};
};
