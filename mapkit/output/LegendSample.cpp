// SPDX-License-Identifier: MIT
#include "mapkit/output/LegendSample.h"

#include "mapkit/drawing/FeaturePainter.h"
#include "mapkit/drawing/RasterPainter.h"
#include "mapkit/drawing/Sheets.h"
#include "mapkit/output/PageFonts.h"
#include "mapkit/output/PageSettings.h"
#include "mapkit/output/PatternPictures.h"
#include "ovctrls/StyleStringRenderer.h"
#include "samples/BgrColour.h"
#include "samples/FillSample.h"
#include "samples/StyleStrings.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr qint32 White = 0xFFFFFF;
constexpr int SampleResolution = 288; // dots per inch: three dots per pattern bit
constexpr double WidestOutline = 0.25; // of the sample's height

qint16 Whole(double number)
{
    return qint16(std::clamp(std::round(number), 1.0, 32000.0));
}

// The size of one unit of the line's drawing commands, in page pixels. The commands support only widths in
// whole units, and patterns only with width 1.
double UnitOf(const DrawingValues& values, const LayerLook& look)
{
    if (values.outlineStyle != 0)
        return std::max(look.outline.widthF(), 1.0);
    return values.lineThickness > 0 ? PagePixelsPerMillimetre : 1;
}

void PaintLine(QPainter& painter, const QRect& area, const DrawingValues& values, const LayerLook& look)
{
    if (values.outlineStyle == NoLineStyle)
        return;
    const double unit = UnitOf(values, look);
    const QRect inUnits(0, 0, Whole(area.width() / unit), Whole(area.height() / unit));
    const LineExtent extent{
        qint16(inUnits.height() + 2), qint16(inUnits.width()), qint16(inUnits.height() / 2)};
    const LineItem line{qint16(values.outlineStyle), Whole(std::abs(values.lineThickness))};
    const LineItem shown{
        line.style, values.lineThickness > 0 ? line.thickness : qint16(values.lineThickness)};
    // The text before the tab is the width in words.
    const QString commands = StyleStrings({}, {}).LineItemText(shown, extent).section(QLatin1Char('\t'), -1);
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.translate(area.topLeft());
    painter.scale(unit, unit);
    StyleStringRenderer().Paint(painter, inUnits, commands, {PageFonts::Text(), look.outline.color(), 0});
    painter.restore();
}

// Paints a solid line that is as wide as the pen.
void PaintStroke(QPainter& painter, const QRect& area, const QPen& pen)
{
    DrawingValues values;
    values.lineThickness = -int(Whole(pen.widthF()));
    LayerLook look;
    look.outline = pen;
    PaintLine(painter, area, values, look);
}

void PaintCasedLine(QPainter& painter, const QRect& area, const CasedLine& cased)
{
    PaintStroke(painter, area, cased.casing);
    PaintStroke(painter, area, cased.core);
}

void PaintFill(QPainter& painter, const QRect& area, const LegendRow& row)
{
    if (row.look.fill.style() == Qt::NoBrush)
        return; // the sample of a list would show its line colour
    const DrawingValues& values = row.values;
    const FillColours colours{values.color, values.fillForeColor, values.fillBackColor};
    const FillSample sample{values.fillStyle, row.fillPattern, colours, White};
    const auto paint = [&](QPainter& onto) { PaintFillSample(onto, area, sample); };
    if (KnowsPatterns(painter))
        paint(painter);
    else
        PaintAsPicture(painter, area, SampleResolution, paint);
}

void PaintArea(QPainter& painter, const QRect& area, const LegendRow& row)
{
    PaintFill(painter, area, row);
    QPen outline = row.look.outline;
    outline.setWidthF(std::min(outline.widthF(), area.height() * WidestOutline));
    outline.setJoinStyle(Qt::MiterJoin);
    const double half = outline.style() == Qt::NoPen ? 0 : outline.widthF() / 2;
    painter.setPen(outline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(area).adjusted(half, half, -half, -half));
}

void PaintPoint(QPainter& painter, const QRect& area, const LayerLook& look)
{
    FeatureSet point;
    point.BeginFeature(FeatureKind::Point);
    point.AddPart(std::vector<QPointF>{{0, 0}});
    const std::atomic<bool> cancelled = false;
    painter.setClipRect(area, Qt::IntersectClip);
    painter.translate(area.topLeft());
    FeaturePainter(painter, MapView({0, 0}, 1, area.size()), look).Paint(point, cancelled);
}

// The middle of the raster, as large as fits. One that cannot be read is told by the map.
void PaintPartOfRaster(QPainter& painter, const QRect& area, const MapRaster& raster)
{
    const Box& extent = raster.Extent();
    const QPointF middle((extent.minX + extent.maxX) / 2, (extent.minY + extent.maxY) / 2);
    const double unitsPerPixel = std::min(extent.Width() / area.width(), extent.Height() / area.height());
    if (!(unitsPerPixel > 0))
        return;
    const std::atomic<bool> cancelled = false;
    painter.translate(area.topLeft());
    try {
        PaintRaster(painter, raster, MapView(middle, unitsPerPixel, area.size()), cancelled);
    } catch (const RunTimeError&) {
    }
}

void PaintFeature(QPainter& painter, const QRect& area, const LegendRow& row)
{
    switch (row.kind) {
    case FeatureKind::Point:
        PaintPoint(painter, area, row.look);
        break;
    case FeatureKind::Line:
        if (row.look.cased)
            PaintCasedLine(painter, area, *row.look.cased);
        else
            PaintLine(painter, area, row.values, row.look);
        break;
    case FeatureKind::Area:
        PaintArea(painter, area, row);
        break;
    }
}

} // namespace

void PaintLegendSample(QPainter& painter, const QRect& area, const LegendRow& row)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(row.backdrop ? BackdropOpacity : 1);
    if (row.raster)
        PaintPartOfRaster(painter, area, *row.raster);
    else
        PaintFeature(painter, area, row);
    painter.restore();
}

} // namespace Orvane
