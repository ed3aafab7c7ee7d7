#pragma once
// The original photos behind a coin's pictures, read and decoded off the UI thread for the
// screens that show them larger than the 100 x 100 they store.
#include "model/Originals.h"

#include <QImage>
#include <QList>
#include <QSize>

#include <functional>

class QObject;

namespace OriginalPictures {

// Reads the original (checked against its hash) and decodes it at each box of `boxes` in turn,
// on the thread pool: ImageCoding::decodeToFit, an invalid box for the full size. Each picture
// goes to `shown(index, picture)` on the UI thread as soon as it is drawn, for as long as
// `receiver` lives. A missing or damaged file is one line on the console and nothing shown.
// `extra`, when given, is run on the pool on each picture to make whatever else it needs
// (for example smaller copies) before it is handed over.
void load(QObject* receiver, const Originals::Original& original, const QList<QSize>& boxes,
          std::function<void(int index, const QList<QImage>& pictures)> shown,
          std::function<QList<QImage>(int index, const QImage& picture)> extra = {});

// The picture and its halvings down to the first that fits `smallest` in both sides: drawing a
// large photo small from the nearest of them is quick and keeps its detail.
QList<QImage> halvings(const QImage& picture, const QSize& smallest);

} // namespace OriginalPictures
