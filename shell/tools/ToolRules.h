// SPDX-License-Identifier: MIT
#pragma once

#include "shell/features/HitTest.h"

#include <QString>

namespace Orvane {

/// What a person wants of a feature on the map.
enum class ToolUse { PointOut, Identify, Select, Move, SnapTo };

/// Why a layer's features are not to be had for a use. The first reason that holds counts.
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

/// Whether, and why not, the layer serves the use while the map is shown at 1 : denominator.
Refusal RefusalOf(const MapLayer& layer, ToolUse use, double denominator);

/// The sentence for the person, e.g. "Roads is here but not enquirable."
QString RefusalText(Refusal refusal, const QString& layerName);

/// Why nothing was found at a place.
struct Miss {
    Refusal refusal = Refusal::None; ///< None: no layer is there
    QString layerName; ///< of the layer that refuses

    QString Text() const { return RefusalText(refusal, layerName); }
};

/// The layers of a map at a view, asked for one use.
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

    /// As HitTest; only of layers that serve the use.
    std::vector<Hit> At(QPointF pixel) const;
    std::vector<Hit> Within(const QRectF& pixels) const;
    std::optional<QPointF> SnapPoint(QPointF pixel) const;

    /// Why At finds nothing there: a layer that is shown comes before one that is not.
    Miss MissAt(QPointF pixel) const;

private:
    bool Serves(const MapLayer& layer) const;

    HitTest m_test;
    double m_denominator;
    ToolUse m_use;
};

} // namespace Orvane
