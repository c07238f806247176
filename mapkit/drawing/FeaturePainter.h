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

/// Draws features: clipped to the view, simplified to a dot of the painter's device. May run in any thread
/// that owns the painter.
class FeaturePainter
{
public:
    /// painter: stands on the view's logical pixels; outlives this object, and its pen and brush are used up.
    FeaturePainter(QPainter& painter, const MapView& view, const LayerLook& look);

    /// Draws the set, first feature first. Stops soon after cancelled becomes true.
    void Paint(const FeatureSet& features, const std::atomic<bool>& cancelled);
    /// The same for some of the features. isChosen: asked with a feature's index; empty for all.
    void Paint(
        const FeatureSet& features, const std::function<bool(size_t)>& isChosen,
        const std::atomic<bool>& cancelled);

private:
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
    QRectF m_area; // the view in pixels, grown by what a pen needs
    Box m_extent; // the same in map units
};

} // namespace Orvane
