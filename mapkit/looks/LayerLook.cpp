// SPDX-License-Identifier: MIT
#include "mapkit/looks/LayerLook.h"

#include "mapkit/looks/ColourRamps.h"
#include "mapkit/looks/LayerRendering.h"
#include "mapkit/looks/RendererStyles.h"
#include "ovctrls/LinePatterns.h"

#include <OrvaneShellLib/IShellServices.h>
#include <OrvaneShellLib/LayerValues.h>

#include <QImage>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr int FillPatternCount = 32;
constexpr QRgb OwnSymbolColour = 0xff4a4a4a;
constexpr QRgb UnclassedColour = 0xffd9d9d9;
constexpr float PaleEnd = 0.92f; // lightness
constexpr float StrongEnd = 0.3f; // lightness of a colour that is too pale to differ from the pale end
constexpr float PaleColour = 0.6f; // lightness from which a colour is too pale for that
constexpr float StrongSaturation = 0.5f;
constexpr double ThinnestCased = 4; // pixels
constexpr double EdgePart = 0.15; // of a cased line's width, on each side

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
        pen.setCapStyle(Qt::FlatCap); // round caps would close the gaps
    return pen;
}

// Uses an image instead of a bitmap, because painting threads may not use pixmaps.
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
    if (values.fillStyle == HollowFill)
        return back ? QBrush(*back) : QBrush(Qt::NoBrush);
    if (values.fillStyle == SolidFill)
        return fore ? QBrush(*fore) : QBrush(Qt::NoBrush);
    if (values.fillStyle < 0 || values.fillStyle >= FillPatternCount)
        return QBrush(Qt::NoBrush);
    if (!fore && !back)
        fore = OpaqueFromBgr(values.color); // as in the preview of the fill picker
    const MonochromeBitmap pattern = services.FillPattern(FillPatternKind, values.fillStyle);
    return PatternBrush(pattern, fore.value_or(Qt::transparent), back.value_or(Qt::transparent));
}

// Leaves edges of at least one pixel on each side, and a core between them.
CasedLine CasedLineOf(const DrawingValues& values, const QPen& outline)
{
    const double width = std::max(outline.widthF(), ThinnestCased);
    CasedLine cased{outline, outline};
    if (outline.style() != Qt::NoPen)
        cased.casing = QPen(outline.color(), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    cased.core.setColor(ColourFromBgr(values.fillForeColor).value_or(Qt::white));
    cased.core.setWidthF(width - 2 * std::max(1.0, width * EdgePart));
    if (cased.core.style() == Qt::NoPen)
        cased.core.setStyle(Qt::SolidLine);
    return cased;
}

QColor Tone(const QColor& colour, float lightness, float leastSaturation = 0)
{
    const bool isGrey = colour.hslHueF() < 0;
    const float saturation = isGrey ? 0 : std::max(float(colour.hslSaturationF()), leastSaturation);
    return QColor::fromHslF(std::max(0.f, float(colour.hslHueF())), saturation, lightness);
}

QColor StrongTone(const QColor& colour)
{
    return colour.lightnessF() > PaleColour ? Tone(colour, StrongEnd, StrongSaturation) : colour;
}

std::pair<QColor, QColor> RampOf(const DrawingValues& values)
{
    const std::optional<QColor> fore = ColourFromBgr(values.fillForeColor);
    const std::optional<QColor> back = ColourFromBgr(values.fillBackColor);
    const QColor strong = fore ? *fore : back.value_or(OpaqueFromBgr(values.color));
    if (fore && back && *fore != *back)
        return {*back, *fore};
    return {Tone(strong, PaleEnd), StrongTone(strong)};
}

std::vector<QColor> ClassColours(const DrawingValues& values, const LayerRendering& rendering, int count)
{
    if (ColourRamps::Has(rendering.ramp))
        return ColourRamps::ColoursOf(rendering.ramp, count, rendering.isRampReversed);
    const auto [low, high] = RampOf(values);
    return rendering.isRampReversed ? ColourRamps::ColoursBetween(high, low, count)
                                    : ColourRamps::ColoursBetween(low, high, count);
}

qint32 BgrOf(const QColor& colour)
{
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

} // namespace

double LayerLook::Reach() const
{
    const double pen = cased ? std::max(outline.widthF(), cased->casing.widthF()) : outline.widthF();
    return std::ceil(pen + 2 * symbolRadius) + 2;
}

std::vector<ClassLook> ClassLooksOf(
    const DrawingValues& values, const LayerRendering& rendering, const IShellServices& services, int count)
{
    const std::vector<QColor> colours = ClassColours(values, rendering, count);
    std::vector<ClassLook> looks;
    looks.reserve(colours.size());
    for (const QColor& colour : colours) {
        DrawingValues own = values;
        own.fillForeColor = BgrOf(colour);
        looks.push_back({FillOf(own, services), colour});
    }
    return looks;
}

ClassLook UnclassedLook(const DrawingValues& values)
{
    const QColor grey = QColor::fromRgb(UnclassedColour);
    return {values.fillStyle == HollowFill ? QBrush(Qt::NoBrush) : QBrush(grey), grey};
}

DrawingValues ValuesWithoutInk()
{
    DrawingValues values;
    values.outlineStyle = NoLinePattern;
    values.fillStyle = HollowFill;
    values.fillBackColor = TransparentColour;
    return values;
}

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
    look.text = OpaqueFromBgr(values.color);
    if (RendererStyles::Has(values.style, RendererStyles::Cased))
        look.cased = CasedLineOf(values, look.outline);
    look.symbolRadius = 2 + PenWidth(values.lineThickness, pixelsPerMillimetre) / 2;
    return look;
}

} // namespace Orvane
