// SPDX-License-Identifier: MIT
#include "mapkit/drawing/FeaturePainter.h"

#include "mapkit/drawing/Clipping.h"
#include "mapkit/drawing/PixelGeometry.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace Orvane {

namespace {

constexpr double ThinTolerance = 0.7; // pixels, for a thin line
constexpr double TolerancePerWidth = 0.25; // a wide pen hides larger deviations
constexpr double SpeckSize = 1; // pixels

Box Grown(const Box& box, double margin)
{
    return {box.minX - margin, box.minY - margin, box.maxX + margin, box.maxY + margin};
}

// Device dots per logical pixel.
double DotsPerPixel(const QPainter& painter)
{
    const QTransform transform = painter.deviceTransform();
    return std::max(1.0, std::hypot(transform.m11(), transform.m12()));
}

// Makes each bit of a pattern cover whole dots, and the patterns move with the map.
void AlignPattern(QPainter& painter, QBrush& fill, const MapView& view)
{
    const QImage tile = fill.textureImage();
    if (tile.isNull())
        return;
    const double dots = DotsPerPixel(painter);
    const double scale = std::round(dots) / dots;
    fill.setTransform(QTransform::fromScale(scale, scale));
    const QPointF origin = view.ToPixel({0, 0});
    painter.setBrushOrigin(
        std::round(std::fmod(origin.x(), tile.width() * scale) * dots) / dots,
        std::round(std::fmod(origin.y(), tile.height() * scale) * dots) / dots);
}

bool Holds(const Box& outer, const Box& inner)
{
    return outer.minX <= inner.minX && outer.minY <= inner.minY && inner.maxX <= outer.maxX
        && inner.maxY <= outer.maxY;
}

} // namespace

FeaturePainter::FeaturePainter(QPainter& painter, const MapView& view, const LayerLook& look)
    : m_painter(painter), m_view(view), m_look(look)
{
    m_tolerance = std::max(ThinTolerance / DotsPerPixel(painter), TolerancePerWidth * look.outline.widthF());
    AlignPattern(painter, m_look.fill, view);
    const double margin = look.Reach();
    m_area = QRectF({0, 0}, QSizeF(view.Size())).adjusted(-margin, -margin, margin, margin);
    m_extent = Grown(view.Extent(), margin * view.UnitsPerPixel());
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void FeaturePainter::Paint(const FeatureSet& features, const std::atomic<bool>& cancelled)
{
    Paint(features, {}, cancelled);
}

void FeaturePainter::Paint(
    const FeatureSet& features, const std::function<bool(size_t)>& isChosen,
    const std::atomic<bool>& cancelled)
{
    for (const FeatureKind kind : {FeatureKind::Area, FeatureKind::Line, FeatureKind::Point}) {
        if (features.Has(kind))
            PaintKind(kind, features, isChosen, cancelled);
    }
}

void FeaturePainter::PaintKind(
    FeatureKind kind, const FeatureSet& features, const std::function<bool(size_t)>& isChosen,
    const std::atomic<bool>& cancelled)
{
    m_painter.setPen(m_look.outline);
    m_painter.setBrush(m_look.fill);
    const std::vector<FeatureSet::Feature>& all = features.Features();
    for (size_t i = 0; i < all.size(); ++i) {
        if (cancelled)
            return;
        if (all[i].kind == kind && all[i].bounds.Intersects(m_extent) && (!isChosen || isChosen(i)))
            PaintFeature(features, all[i]);
    }
}

void FeaturePainter::PaintFeature(const FeatureSet& features, const FeatureSet::Feature& feature)
{
    const bool clip = !Holds(m_extent, feature.bounds);
    switch (feature.kind) {
    case FeatureKind::Point:
        for (quint32 part = feature.firstPart; part < feature.endPart; ++part)
            PaintSymbols(features.Part(part));
        return;
    case FeatureKind::Line:
        for (quint32 part = feature.firstPart; part < feature.endPart; ++part)
            PaintLine(features.Part(part), clip);
        return;
    case FeatureKind::Area:
        PaintArea(features, feature, clip);
        return;
    }
}

void FeaturePainter::PaintSymbols(std::span<const QPointF> part)
{
    m_painter.save();
    m_painter.setPen(QPen(Qt::white, 1));
    m_painter.setBrush(m_look.symbol);
    for (const QPointF& point : part)
        m_painter.drawEllipse(m_view.ToPixel(point), m_look.symbolRadius, m_look.symbolRadius);
    m_painter.restore();
}

void FeaturePainter::PaintLine(std::span<const QPointF> part, bool clip)
{
    if (m_look.outline.style() == Qt::NoPen)
        return;
    const QPolygonF line = ToPixels(part, m_view, m_tolerance);
    if (!clip)
        return PaintRun(line, 0);
    for (const ClippedRun& run : ClipLine(line, m_area))
        PaintRun(run.points, run.lengthBefore);
}

// The dashes keep their position on the line, independent of where the window clips it.
void FeaturePainter::PaintRun(const QPolygonF& run, double lengthBefore)
{
    if (m_look.outline.style() != Qt::SolidLine) {
        QPen pen = m_look.outline;
        pen.setDashOffset(lengthBefore / std::max(1.0, pen.widthF()));
        m_painter.setPen(pen);
    }
    m_painter.drawPolyline(run);
}

void FeaturePainter::PaintArea(const FeatureSet& features, const FeatureSet::Feature& feature, bool clip)
{
    const double speck = SpeckSize * m_view.UnitsPerPixel();
    if (feature.bounds.Width() < speck && feature.bounds.Height() < speck) {
        PaintSpeck(feature.bounds);
        return;
    }
    QPainterPath rings;
    for (quint32 part = feature.firstPart; part < feature.endPart; ++part) {
        const QPolygonF ring = ToPixels(features.Part(part), m_view, m_tolerance);
        const QPolygonF shown = clip ? ClipRing(ring, m_area) : ring;
        if (shown.size() < 2)
            continue;
        rings.addPolygon(shown);
        rings.closeSubpath();
    }
    m_painter.drawPath(rings);
}

void FeaturePainter::PaintSpeck(const Box& bounds)
{
    const bool outlined = m_look.outline.style() != Qt::NoPen;
    if (!outlined && m_look.fill.style() == Qt::NoBrush)
        return;
    const QPointF pixel = m_view.ToPixel({bounds.minX, bounds.maxY});
    m_painter.fillRect(
        QRectF(pixel, QSizeF(SpeckSize, SpeckSize)), outlined ? m_look.outline.color() : m_look.fill.color());
}

} // namespace Orvane
