// SPDX-License-Identifier: MIT
#include "mapkit/output/PatternPictures.h"

#include "mapkit/output/PageSettings.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>

namespace Orvane {

bool KnowsPatterns(const QPainter& painter)
{
    return painter.paintEngine()->type() != QPaintEngine::SVG;
}

void PaintAsPicture(
    QPainter& painter, const QRectF& area, int resolution, const std::function<void(QPainter&)>& paint)
{
    const double scale = resolution / PagePixelsPerInch;
    QImage picture((area.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return;
    picture.fill(Qt::transparent);
    QPainter inside(&picture);
    inside.scale(scale, scale);
    inside.translate(-area.topLeft());
    paint(inside);
    inside.end();
    painter.drawImage(area, picture);
}

} // namespace Orvane
