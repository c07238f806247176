// SPDX-License-Identifier: MIT
#include "samples/FillSample.h"

#include "samples/BgrColour.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QBrush>
#include <QImage>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr int sampleInset = 2; // pixels
constexpr FillColours blackOnWhite{0, 0x000000, 0xFFFFFF};
constexpr int largestPicture = 1024; // pixels; limits the memory that a host's error can use

// A bit that is missing because the rows are too short is background.
bool IsSet(const MonochromeBitmap& picture, int x, int y)
{
    const qsizetype byte = qsizetype(y) * ((picture.width + 7) / 8) + x / 8;
    return byte < picture.rows.size() && (quint8(picture.rows.at(byte)) & (0x80 >> (x % 8))) != 0;
}

QImage PatternTile(const MonochromeBitmap& picture, const FillColours& colours)
{
    const int width = std::clamp(picture.width, 0, largestPicture);
    const int height = std::clamp(picture.height, 0, largestPicture);
    QImage tile(width, height, QImage::Format_RGB32);
    const QRgb fore = QColorFromBgr(colours.fore).rgb();
    const QRgb back = QColorFromBgr(colours.back).rgb();
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            tile.setPixel(x, y, IsSet(picture, x, y) ? fore : back);
    }
    return tile;
}

// Each bit covers whole pixels of the screen, even if a logical pixel is one and a half of them.
QTransform WholePixels(const QPaintDevice& device)
{
    const qreal ratio = device.devicePixelRatioF();
    const qreal scale = std::max(1.0, std::round(ratio)) / ratio;
    return QTransform::fromScale(scale, scale);
}

void PaintPattern(QPainter& painter, const QRect& area, const QImage& tile)
{
    QBrush brush(tile);
    brush.setTransform(WholePixels(*painter.device()));
    painter.setBrushOrigin(area.topLeft());
    painter.fillRect(area, brush);
    painter.setBrushOrigin(0, 0);
}

void PaintSample(
    QPainter& painter, const QRect& area, const FillSample& sample, const FillColours& colours,
    const FillColours& patternColours)
{
    const QImage tile = PatternTile(sample.picture, patternColours);
    if (sample.style == SolidFill)
        painter.fillRect(area, QColorFromBgr(colours.fore));
    else if (sample.style == HollowFill || tile.isNull())
        painter.fillRect(area, QColorFromBgr(colours.back));
    else
        PaintPattern(painter, area, tile);
}

// Half of the right edge, not the middle: the part grows with the distance from the left of the list.
QRect BlackOnWhitePart(const QRect& sample)
{
    const int right = sample.x() + sample.width();
    const int edge = int(RoundHalfToEven(sample.x() + right / 2.0));
    return QRect(QPoint(sample.x(), sample.y()), QPoint(edge - 1, sample.bottom())) & sample;
}

} // namespace

FillColours ShownColours(const FillColours& colours, qint32 listBack)
{
    FillColours shown = colours;
    if (IsTransparent(colours.fore & colours.back)) {
        shown.fore = colours.line;
        shown.back = listBack;
        return shown;
    }
    if (IsTransparent(colours.fore))
        shown.fore = listBack;
    if (IsTransparent(colours.back))
        shown.back = listBack;
    return shown;
}

void PaintFillSample(QPainter& painter, const QRect& area, const FillSample& sample)
{
    const FillColours colours = ShownColours(sample.colours, sample.listBack);
    PaintSample(painter, area, sample, colours, colours);
}

void PaintFillItem(QPainter& painter, const QRect& item, const FillSample& sample)
{
    painter.fillRect(item, QColorFromBgr(sample.listBack));
    const QRect inner = item.adjusted(sampleInset, sampleInset, -sampleInset, -sampleInset);
    if (inner.isEmpty())
        return;
    PaintFillSample(painter, inner, sample);
    const FillColours colours = ShownColours(sample.colours, sample.listBack);
    PaintSample(painter, BlackOnWhitePart(inner), sample, colours, blackOnWhite);
}

} // namespace Orvane
