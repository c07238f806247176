// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"
#include "mapkit/drawing/MapView.h"
#include "mapkit/looks/LayerLook.h"

#include <QPolygonF>
#include <QRectF>

#include <atomic>
#include <functional>
#include <span>

class QPainter;

namespace Orvane {

/// Draws features, clipped to the view and simplified with a tolerance of about one device dot. May be used
/// on any thread that owns the painter.
class FeaturePainter
{
public:
    /// painter: in logical pixels of the view; outlives this object; its pen and brush are changed.
    FeaturePainter(QPainter& painter, const MapView& view, const LayerLook& look);

    /// Draws the set, beginning with the first feature. Stops soon after cancelled becomes true.
    void Paint(const FeatureSet& features, const std::atomic<bool>& cancelled);
    /// Draws only some of the features. isChosen: called with the index of a feature; empty for all.
    void Paint(
        const FeatureSet& features, const std::function<bool(size_t)>& isChosen,
        const std::atomic<bool>& cancelled);

private:
    void PaintKind(
        FeatureKind kind, const FeatureSet& features, const std::function<bool(size_t)>& isChosen,
        const std::atomic<bool>& cancelled);
    void PaintFeature(const FeatureSet& features, const FeatureSet::Feature& feature);
    void PaintSymbols(std::span<const QPointF> part);
    void PaintLine(std::span<const QPointF> part, bool clip);
    void PaintRun(const QPolygonF& run, double lengthBefore);
    void PaintArea(const FeatureSet& features, const FeatureSet::Feature& feature, bool clip);
    void PaintSpeck(const Box& bounds);

    QPainter& m_painter;
    const MapView m_view;
    LayerLook m_look;
    double m_tolerance; // pixels by which a line may be simplified
    QRectF m_area; // the view in pixels, enlarged by the reach of the pen
    Box m_extent; // the same in map units
};

} // namespace Orvane
