#pragma once
#include "platform/graphics/PageRenderer.h"

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>

// A PDF device in points: the layout measures fonts against it, so a page holds the same
// lines whatever screen the program runs on.
struct PageRenderer::PointDevice {
    QBuffer buffer;
    QPdfWriter writer{&buffer};

    explicit PointDevice(const QRectF& paper) {
        buffer.open(QIODevice::WriteOnly);
        writer.setResolution(72);
        writer.setPageSize(
            QPageSize(paper.size(), QPageSize::Point, QString(), QPageSize::ExactMatch));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setCreator(QStringLiteral("Pelvane"));
    }
};
