// SPDX-License-Identifier: MIT
#pragma once

#include "shell/features/HitTest.h"

#include <QString>

namespace Orvane {

/// What a user does with a feature on the map.
enum class ToolUse { PointOut, Identify, Select, Move, SnapTo };

/// Why a layer's features are not available for a use. The first reason that applies counts.
enum class Refusal {
    None,
    Invisible,
    Hidden, ///< by its quick mode
    OutOfScale,
    NotHitable,
    NotEnquirable,
    NotSelectable,
    Locked,
    NoSnap,
};

/// Why the layer is not available for the use while the map is shown at 1 : denominator; None if it is.
Refusal RefusalOf(const MapLayer& layer, ToolUse use, double denominator);

/// The sentence for the user, e.g. "Roads is here but not enquirable."
QString RefusalText(Refusal refusal, const QString& layerName);

/// Why nothing was found at a place.
struct Miss {
    Refusal refusal = Refusal::None; ///< None: no layer is there
    QString layerName; ///< of the layer that is not available

    QString Text() const { return RefusalText(refusal, layerName); }
};

/// Finds the features of a map in a view that are available for one use.
///
///     const ToolSearch search(canvas.Layers(), canvas.View(), canvas.ScaleDenominator(), ToolUse::Select);
///     const auto hits = search.At(pixel);
///     if (hits.empty())
///         emit StatusChanged(search.MissAt(pixel).Text());
class ToolSearch
{
public:
    /// layers: outlive this object.
    ToolSearch(std::span<const MapLayer> layers, const MapView& view, double denominator, ToolUse use);

    /// Like HitTest, but only for layers that are available for the use.
    std::vector<Hit> At(QPointF pixel) const;
    /// Like HitTest, but only layers that are available for the use.
    std::vector<const MapLayer*> RastersAt(QPointF pixel) const;
    std::vector<Hit> Within(const QRectF& pixels) const;
    std::optional<QPointF> SnapPoint(QPointF pixel) const;

    /// Why there is nothing: a layer that is shown comes before one that is not. Only Identify uses rasters.
    Miss MissAt(QPointF pixel) const;

private:
    const MapLayer* LayerAt(QPointF pixel, const HitTest::Condition& wanted) const;
    bool Serves(const MapLayer& layer) const;

    HitTest m_test;
    double m_denominator;
    ToolUse m_use;
};

} // namespace Orvane
