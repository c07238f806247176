// SPDX-License-Identifier: MIT
#include "mapkit/output/MapPage.h"

#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/GroundScale.h"
#include "mapkit/drawing/MapPainter.h"
#include "mapkit/drawing/MapView.h"
#include "mapkit/drawing/PainterState.h"
#include "mapkit/drawing/ScaleText.h"
#include "mapkit/drawing/Sheets.h"
#include "mapkit/output/PageFonts.h"
#include "mapkit/output/PatternPictures.h"
#include "mapkit/output/ScaleBar.h"

#include <OrvaneShellLib/ILayerDatabase.h>

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr double LongestScaleBar = 180;
constexpr double ScaleBarPart = 0.4; // of the map's width
constexpr double ScaleBarGap = 8;
constexpr double FrameWidth = 0.75;
constexpr double HonestWithin = 0.02; // 1:n is shown only if ground and map differ by no more

// The layers that the view shows, bottom first.
std::vector<MapLayer>
DrawnLayers(const std::vector<MapLayer>& layers, const MapView& view, double denominator)
{
    std::vector<MapLayer> drawn;
    for (const Sheet& sheet : PlanSheets(layers, view, denominator)) {
        if (!sheet.labels)
            drawn.insert(drawn.end(), sheet.layers.begin(), sheet.layers.end());
    }
    return drawn;
}

bool HasPatterns(const MapLayer& layer)
{
    if (layer.raster)
        return false;
    const auto isPattern = [](const QBrush& fill) { return fill.style() == Qt::TexturePattern; };
    return isPattern(layer.look.fill)
        || std::any_of(layer.classLooks.begin(), layer.classLooks.end(), [&](const ClassLook& look) {
               return isPattern(look.fill);
           });
}

void RemoveFills(MapLayer& layer)
{
    layer.look.fill = Qt::NoBrush;
    for (ClassLook& look : layer.classLooks)
        look.fill = QBrush(Qt::transparent); // with no brush, the outline would get the class's colour
}

// For devices that cannot clip: covers everything that was painted outside the map.
void CoverMargins(QPainter& painter, const QRectF& map, const QSizeF& page)
{
    QPainterPath around;
    around.setFillRule(Qt::OddEvenFill);
    around.addRect(QRectF({0, 0}, page));
    around.addRect(map);
    painter.fillPath(around, Qt::white);
}

} // namespace

MapPage::MapPage(
    ILayerDatabase& database, const IShellServices& services, PageContents contents,
    const PageSettings& settings)
    : m_contents(std::move(contents)), m_settings(settings), m_metresPerUnit(MetresPerUnit(m_contents.system))
{
    for (MapLayer& layer : m_contents.layers)
        layer.look = LookOf(layer.values, services, PagePixelsPerMillimetre);
    // The legend takes room from the map, and the map decides what the legend lists.
    for (int round = 0; round < 2; ++round) {
        m_layout = LayOutPage(m_settings, m_legend);
        m_view = ViewFor(m_layout);
        if (m_settings.legend)
            m_legend
                = LegendOf(database, services, DrawnLayers(m_contents.layers, m_view, ScaleDenominator()));
    }
    m_layout = LayOutPage(m_settings, m_legend);
    m_view = ViewFor(m_layout);
    m_groundMetresPerUnit = GroundMetresPerUnit(m_contents.system, m_view.Centre());
}

double MapPage::ScaleDenominator() const
{
    return DenominatorOf(m_view);
}

double MapPage::DenominatorOf(const MapView& view) const
{
    return view.ScaleDenominator(m_metresPerUnit, PagePixelsPerInch);
}

MapView MapPage::ViewFor(const PageLayout& layout) const
{
    const QSize frame = layout.map.size().toSize();
    const Box& area = m_contents.area;
    if (area.IsEmpty())
        return MapView({}, 1, frame);
    const QPointF middle((area.minX + area.maxX) / 2, (area.minY + area.maxY) / 2);
    double unitsPerPixel = std::max(area.Width() / frame.width(), area.Height() / frame.height());
    if (m_settings.scaleDenominator > 0)
        unitsPerPixel = m_settings.scaleDenominator * MetresPerInch / PagePixelsPerInch / m_metresPerUnit;
    return MapView(middle, unitsPerPixel > 0 ? unitsPerPixel : 1, frame);
}

void MapPage::Paint(QPainter& painter, const std::atomic<bool>& cancelled) const
{
    const PainterState before(painter);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(QRectF({0, 0}, m_layout.page), Qt::white);
    PaintMapFrame(painter, cancelled);
    if (!m_layout.title.isEmpty())
        PaintTitle(painter);
    if (!m_layout.legend.isEmpty())
        LegendBlock(m_legend, LegendPlace(m_settings)).Paint(painter, m_layout.legend);
    if (m_settings.scaleBar)
        PaintScaleBar(painter);
}

void MapPage::PaintMapFrame(QPainter& painter, const std::atomic<bool>& cancelled) const
{
    {
        const PainterState before(painter);
        painter.fillRect(m_layout.map, m_contents.background);
        painter.translate(m_layout.map.topLeft());
        PaintLayers(painter, cancelled);
    }
    if (m_settings.margin <= 0)
        return;
    if (!KnowsPatterns(painter))
        CoverMargins(painter, m_layout.map, m_layout.page);
    painter.setPen(QPen(Qt::black, FrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(m_layout.map);
}

void MapPage::PaintLayers(QPainter& painter, const std::atomic<bool>& cancelled) const
{
    if (KnowsPatterns(painter))
        PaintMap(painter, m_contents.layers, m_view, ScaleDenominator(), cancelled, m_contents.background);
    else
        PaintWithPictures(painter, cancelled);
}

// Fills with patterns become pictures; everything else stays lines and areas.
void MapPage::PaintWithPictures(QPainter& painter, const std::atomic<bool>& cancelled) const
{
    const double denominator = ScaleDenominator();
    for (MapLayer layer : DrawnLayers(m_contents.layers, m_view, denominator)) {
        layer.labels = nullptr;
        if (HasPatterns(layer)) {
            MapLayer fill = layer;
            fill.look.outline = Qt::NoPen;
            PaintAsPicture(
                painter, QRectF({0, 0}, m_layout.map.size()), m_settings.resolution,
                [&](QPainter& inside) { PaintMap(inside, {fill}, m_view, denominator, cancelled); });
            RemoveFills(layer);
        }
        PaintMap(painter, {layer}, m_view, denominator, cancelled);
    }
    PaintMapLabels(painter, m_contents.layers, m_view, denominator, cancelled, m_contents.background);
}

void MapPage::PaintScaleBar(QPainter& painter) const
{
    const QRectF& map = m_layout.map;
    const double longest = std::min(LongestScaleBar, map.width() * ScaleBarPart);
    const auto bar = ScaleBar::Fitting(m_groundMetresPerUnit * m_view.UnitsPerPixel(), longest, ScaleText());
    const QSizeF size = bar.Size();
    if (size.width() + 2 * ScaleBarGap < map.width() && size.height() + 2 * ScaleBarGap < map.height())
        bar.Paint(painter, map.bottomLeft() + QPointF(ScaleBarGap, -size.height() - ScaleBarGap));
}

// If the projection distorts lengths, 1:n is wrong everywhere on the page. Only the bar is shown then.
QString MapPage::ScaleText() const
{
    if (std::abs(m_groundMetresPerUnit / m_metresPerUnit - 1) > HonestWithin)
        return {};
    return Orvane::ScaleText(ScaleDenominator());
}

void MapPage::PaintTitle(QPainter& painter) const
{
    const QFont font = PageFonts::Title();
    const QString text = QFontMetricsF(font).elidedText(
        m_settings.title.simplified(), Qt::ElideRight, m_layout.title.width());
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(m_layout.title, Qt::AlignCenter | Qt::TextSingleLine, text);
}

} // namespace Orvane
