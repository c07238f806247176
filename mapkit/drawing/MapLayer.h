// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/AttributeColumn.h"
#include "mapkit/data/FeatureSet.h"
#include "mapkit/data/MapRaster.h"
#include "mapkit/looks/Classification.h"
#include "mapkit/looks/LayerLook.h"
#include "mapkit/looks/LayerPriority.h"

#include <QString>

#include <algorithm>
#include <limits>
#include <memory>
#include <tuple>

namespace Orvane {

/// How a layer is drawn in the map, as stored in Layers.OverrideMode.
enum class DrawMode {
    Normal = 0,
    Backdrop = 1, ///< pale, and below every normal layer but rasters of the lowest priority
    Hidden = 2, ///< not drawn
};

/// What the user may do with a layer's features on the map. Of rasters only the values are shown, if they are
/// hitable and enquirable.
struct LayerFlags {
    bool selectable = true;
    bool locked = false; ///< its features cannot be moved
    bool hitable = true; ///< if false, its features are never found under the pointer
    bool snapRequired = false; ///< measuring lines snap to its features
    bool enquirable = true;

    bool operator==(const LayerFlags&) const = default;
};

/// One layer as the map draws it.
struct MapLayer {
    qint32 layerID = 0;
    bool visible = true;
    DrawMode mode = DrawMode::Normal;
    int priority = 0; ///< 1 is drawn on top, LowestPriority at the bottom
    double minDenominator = 0; ///< shown at scales from 1 : this ...
    double maxDenominator = std::numeric_limits<double>::infinity(); ///< ... to 1 : this
    DrawingValues values;
    LayerLook look; ///< derived from the values
    std::shared_ptr<const FeatureSet> features; ///< nullptr for a raster, and if they cannot be read
    std::shared_ptr<const MapRaster> raster = {}; ///< nullptr for features, and if it cannot be read
    std::shared_ptr<const AttributeColumn> labels; ///< nullptr for no labels, and until they are read
    std::shared_ptr<const Classification> classes; ///< nullptr for no classes, and until they are known
    std::vector<ClassLook> classLooks; ///< derived from values and classes, one per class
    QString classAttribute; ///< the attribute whose numbers are in the classes
    QString name; ///< the layer's own, without markers
    LayerFlags flags;

    /// True when the layer's data could be read.
    bool IsRead() const { return features || raster; }
    /// Of all its data, in map units; empty if they cannot be read.
    Box Bounds() const { return features ? features->Bounds() : raster ? raster->Extent() : Box(); }
    /// The coordinate system that its data were in; empty if it is not known.
    QString SourceSystem() const
    {
        return features ? features->SourceSystem() : raster ? raster->SourceSystem() : QString();
    }
    /// True when the layer is shown at the scale 1 : denominator.
    bool IsInScale(double denominator) const
    {
        return denominator >= minDenominator && denominator <= maxDenominator;
    }
    /// True when the map shows the layer at that scale, judging by the layer's own values only.
    bool IsShownAt(double denominator) const
    {
        return visible && mode != DrawMode::Hidden && IsRead() && IsInScale(denominator);
    }
    /// True for a raster of the lowest priority: it lies below all other layers, because it would hide them.
    /// One in the mode Backdrop is pale, and lies above it.
    bool IsGround() const { return raster && mode != DrawMode::Backdrop && priority >= LowestPriority; }
    /// A key that sorts layers in drawing order, the lowest first.
    auto Height() const
    {
        return std::tuple(!IsGround(), mode != DrawMode::Backdrop, -priority, !raster, layerID);
    }

    /// True when both layers would be drawn identically.
    bool LooksLike(const MapLayer& other) const
    {
        if (raster || other.raster) // without lines and fills
            return raster == other.raster;
        return values == other.values && features == other.features && labels == other.labels
            && classes == other.classes
            && std::equal(
                   classLooks.begin(), classLooks.end(), other.classLooks.begin(), other.classLooks.end(),
                   [](const ClassLook& one, const ClassLook& two) { return one.colour == two.colour; });
    }
};

} // namespace Orvane
