// SPDX-License-Identifier: MIT
#include "shell/drawing/LayerLook.h"

#include "ovctrls/LinePatterns.h"

#include <OrvaneShellLib/IShellServices.h>

#include <QImage>

namespace Orvane {

namespace {

constexpr int SolidFill = 0;
constexpr int HollowFill = 15;
constexpr int FillPatternKind = 7;
constexpr int FillPatternCount = 32;
constexpr QRgb OwnSymbolColour = 0xff4a4a4a;

QColor OpaqueFromBgr(qint32 bgr)
{
    return QColor(bgr & 0xff, (bgr >> 8) & 0xff, (bgr >> 16) & 0xff);
}

double PenWidth(int thickness, double pixelsPerMillimetre)
{
    if (thickness < 0)
        return -thickness;
    return thickness == 0 ? 1 : thickness * pixelsPerMillimetre;
}

QPen OutlineOf(const DrawingValues& values, double pixelsPerMillimetre)
{
    QPen pen(
        OpaqueFromBgr(values.color), PenWidth(values.lineThickness, pixelsPerMillimetre), Qt::SolidLine,
        Qt::RoundCap, Qt::RoundJoin);
    SetLinePattern(pen, values.outlineStyle);
    if (pen.style() != Qt::SolidLine)
        pen.setCapStyle(Qt::FlatCap); // round ones would close the gaps
    return pen;
}

// An image and not a bitmap: painting threads may not touch pixmaps.
QBrush PatternBrush(const MonochromeBitmap& pattern, const QColor& fore, const QColor& back)
{
    QImage image(pattern.width, pattern.height, QImage::Format_ARGB32_Premultiplied);
    const int stride = (pattern.width + 7) / 8;
    for (int y = 0; y < pattern.height; ++y) {
        for (int x = 0; x < pattern.width; ++x) {
            const bool set = (pattern.rows.at(y * stride + x / 8) << (x % 8)) & 0x80;
            image.setPixelColor(x, y, set ? fore : back);
        }
    }
    QBrush brush(image);
    brush.setColor(fore);
    return brush;
}

QBrush FillOf(const DrawingValues& values, const IShellServices& services)
{
    std::optional<QColor> fore = ColourFromBgr(values.fillForeColor);
    const std::optional<QColor> back = ColourFromBgr(values.fillBackColor);
    if (!fore && !back)
        fore = OpaqueFromBgr(values.color); // as the fill picker previews it
    if (values.fillStyle == HollowFill)
        return back ? QBrush(*back) : QBrush(Qt::NoBrush);
    if (values.fillStyle == SolidFill)
        return fore ? QBrush(*fore) : QBrush(Qt::NoBrush);
    if (values.fillStyle < 0 || values.fillStyle >= FillPatternCount)
        return QBrush(Qt::NoBrush);
    const MonochromeBitmap pattern = services.FillPattern(FillPatternKind, values.fillStyle);
    return PatternBrush(pattern, fore.value_or(Qt::transparent), back.value_or(Qt::transparent));
}

} // namespace

std::optional<QColor> ColourFromBgr(qint32 bgr)
{
    if ((quint32(bgr) & 0xff000000u) != 0)
        return std::nullopt;
    return OpaqueFromBgr(bgr);
}

LayerLook LookOf(const DrawingValues& values, const IShellServices& services, double pixelsPerMillimetre)
{
    LayerLook look;
    look.outline = OutlineOf(values, pixelsPerMillimetre);
    look.fill = FillOf(values, services);
    look.symbol = ColourFromBgr(values.color).value_or(QColor::fromRgb(OwnSymbolColour));
    look.symbolRadius = 2 + PenWidth(values.lineThickness, pixelsPerMillimetre) / 2;
    return look;
}

} // namespace Orvane
