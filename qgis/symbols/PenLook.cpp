// SPDX-License-Identifier: MIT
#include "qgis/symbols/PenLook.h"

#include "ovctrls/LinePatterns.h"
#include "samples/BgrColour.h"

#include <QPen>
#include <qgsfillsymbollayer.h>
#include <qgslinesymbollayer.h>
#include <qgsmarkersymbollayer.h>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

using Unit = QgsUnitTypes::RenderUnit;

constexpr int LastPlainStyle = 4;
constexpr double PixelsPerInch = 96;
constexpr double MillimetresPerInch = 25.4;
constexpr double PointsPerInch = 72;
constexpr double WidthSlack = 1e-6;
constexpr double LargestThickness = 32767;

struct PenWidth {
    double width;
    Unit unit;
};

// What a symbol layer says about its line.
struct PenSource {
    QColor colour;
    std::optional<qint32> style;
    PenWidth width;
    const QgsPropertyCollection& fromData;
};

PenWidth WidthOf(qint32 thickness)
{
    if (thickness > 0)
        return {double(thickness), QgsUnitTypes::RenderMillimeters};
    return {-double(thickness), QgsUnitTypes::RenderPixels};
}

std::optional<double> PixelsPer(Unit unit)
{
    switch (unit) {
    case QgsUnitTypes::RenderPixels:
        return 1;
    case QgsUnitTypes::RenderMillimeters:
        return PixelsPerInch / MillimetresPerInch;
    case QgsUnitTypes::RenderPoints:
        return PixelsPerInch / PointsPerInch;
    case QgsUnitTypes::RenderInches:
        return PixelsPerInch;
    default:
        return std::nullopt;
    }
}

std::optional<qint32> ThicknessOf(const PenWidth& pen)
{
    const std::optional<double> factor = PixelsPer(pen.unit);
    if (!factor || !(pen.width >= 0 && pen.width <= LargestThickness))
        return std::nullopt;
    if (pen.width == 0)
        return 0;
    const double whole = std::round(pen.width);
    if (pen.unit == QgsUnitTypes::RenderMillimeters && whole >= 1 && std::abs(pen.width - whole) < WidthSlack)
        return qint32(whole);
    return -qint32(std::clamp(std::round(pen.width * *factor), 1.0, LargestThickness));
}

Qt::PenStyle PlainStyle(qint32 style)
{
    QPen pen;
    SetLinePattern(pen, style);
    return pen.style();
}

std::optional<qint32> StyleOf(Qt::PenStyle penStyle)
{
    for (qint32 style = 0; style <= LastPlainStyle; ++style) {
        if (PlainStyle(style) == penStyle)
            return style;
    }
    return penStyle == Qt::NoPen ? std::optional<qint32>(NoLinePattern) : std::nullopt;
}

QVector<qreal> Dashes(qint32 style)
{
    QPen pen;
    SetLinePattern(pen, style);
    return pen.dashPattern();
}

bool IsMultiple(const QVector<qreal>& dashes, const QVector<qreal>& pattern)
{
    if (dashes.size() != pattern.size() || dashes.isEmpty())
        return false;
    const double factor = dashes.first() / pattern.first();
    const auto alike
        = [factor](double one, double other) { return std::abs(one - factor * other) < WidthSlack; };
    return factor > 0 && std::equal(dashes.begin(), dashes.end(), pattern.begin(), alike);
}

std::optional<qint32> StyleOf(const QVector<qreal>& dashes)
{
    for (qint32 style = LastPlainStyle + 1; style < NoLinePattern; ++style) {
        if (IsMultiple(dashes, Dashes(style)))
            return style;
    }
    return std::nullopt;
}

std::optional<qint32> StyleOf(const QgsSimpleLineSymbolLayer& line)
{
    if (line.penStyle() != Qt::NoPen && line.useCustomDashPattern())
        return StyleOf(line.customDashVector());
    return StyleOf(line.penStyle());
}

SymbolLook LookOfPen(const PenSource& pen)
{
    SymbolLook look;
    if (!pen.fromData.isActive(QgsSymbolLayer::PropertyStrokeColor))
        look[LookColumn::Color] = BgrFromQColor(pen.colour);
    if (!pen.fromData.isActive(QgsSymbolLayer::PropertyStrokeStyle)
        && !pen.fromData.isActive(QgsSymbolLayer::PropertyCustomDash))
        look[LookColumn::OutlineStyle] = pen.style;
    if (!pen.fromData.isActive(QgsSymbolLayer::PropertyStrokeWidth))
        look[LookColumn::LineThickness] = ThicknessOf(pen.width);
    return look;
}

template <typename Outline> SymbolLook LookOfOutline(const Outline& outline)
{
    return LookOfPen(
        {outline.strokeColor(),
         StyleOf(outline.strokeStyle()),
         {outline.strokeWidth(), outline.strokeWidthUnit()},
         outline.dataDefinedProperties()});
}

// Keeps how much shines through, unless the line was invisible.
QColor Recoloured(const QColor& old, qint32 colour)
{
    QColor result = QColorFromBgr(colour);
    result.setAlpha(old.alpha() > 0 ? old.alpha() : 255);
    return result;
}

// Dashes are lengths in QGIS, but multiples of the width here.
void ScaleDashes(QgsSimpleLineSymbolLayer& line, qint32 style)
{
    const bool hairline = line.width() == 0;
    QVector<qreal> dashes = Dashes(style);
    for (qreal& dash : dashes)
        dash *= hairline ? 1 : line.width();
    line.setCustomDashVector(dashes);
    line.setCustomDashPatternUnit(hairline ? QgsUnitTypes::RenderPixels : line.widthUnit());
    line.setCustomDashPatternMapUnitScale(line.widthMapUnitScale());
}

void SetStyle(QgsSimpleLineSymbolLayer& line, qint32 style)
{
    const bool dashed = NeedsDashes(style);
    line.setUseCustomDashPattern(dashed);
    line.setPenStyle(dashed ? Qt::SolidLine : PlainStyle(style));
}

template <typename Outline> TakenColumns ChangeOutline(Outline& outline, const SymbolLook& changes)
{
    TakenColumns taken;
    if (const auto colour = changes[LookColumn::Color]) {
        outline.setStrokeColor(Recoloured(outline.strokeColor(), *colour));
        taken.Add(LookColumn::Color);
    }
    if (const auto style = changes[LookColumn::OutlineStyle]; style && !NeedsDashes(style)) {
        outline.setStrokeStyle(PlainStyle(*style));
        taken.Add(LookColumn::OutlineStyle);
    }
    if (const auto thickness = changes[LookColumn::LineThickness]) {
        outline.setStrokeWidth(WidthOf(*thickness).width);
        outline.setStrokeWidthUnit(WidthOf(*thickness).unit);
        taken.Add(LookColumn::LineThickness);
    }
    return taken;
}

} // namespace

SymbolLook ReadPen(const QgsSimpleLineSymbolLayer& line)
{
    return LookOfPen(
        {line.color(), StyleOf(line), {line.width(), line.widthUnit()}, line.dataDefinedProperties()});
}

SymbolLook ReadPen(const QgsSimpleFillSymbolLayer& outline)
{
    return LookOfOutline(outline);
}

SymbolLook ReadPen(const QgsSimpleMarkerSymbolLayer& outline)
{
    return LookOfOutline(outline);
}

TakenColumns ChangePen(QgsSimpleLineSymbolLayer& line, const SymbolLook& changes)
{
    TakenColumns taken;
    const std::optional<qint32> oldStyle = StyleOf(line);
    if (const auto colour = changes[LookColumn::Color]) {
        line.setColor(Recoloured(line.color(), *colour));
        taken.Add(LookColumn::Color);
    }
    if (const auto thickness = changes[LookColumn::LineThickness]) {
        line.setWidth(WidthOf(*thickness).width);
        line.setWidthUnit(WidthOf(*thickness).unit);
        taken.Add(LookColumn::LineThickness);
    }
    if (const auto style = changes[LookColumn::OutlineStyle]) {
        SetStyle(line, *style);
        taken.Add(LookColumn::OutlineStyle);
    }
    const std::optional<qint32> style
        = changes[LookColumn::OutlineStyle] ? changes[LookColumn::OutlineStyle] : oldStyle;
    if (NeedsDashes(style))
        ScaleDashes(line, *style);
    return taken;
}

TakenColumns ChangePen(QgsSimpleFillSymbolLayer& outline, const SymbolLook& changes)
{
    return ChangeOutline(outline, changes);
}

TakenColumns ChangePen(QgsSimpleMarkerSymbolLayer& outline, const SymbolLook& changes)
{
    return ChangeOutline(outline, changes);
}

bool NeedsDashes(const std::optional<qint32>& lineStyle)
{
    return lineStyle && *lineStyle > LastPlainStyle && *lineStyle < NoLinePattern;
}

} // namespace Orvane
