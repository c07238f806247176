// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/looks/LayerRendering.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace Orvane {

class IShellServices;

/// The attributes that renderer styles work with, as far as they were read, and the classes they make.
///
///     attributes.SetRendering(layerID, rendering);
///     for (const AttributeRequest& request : attributes.Missing(layers, sources))
///         attributes.Take(request, ReadAttribute(request, progress));
///     attributes.Fit(layer, services);
class LayerAttributes
{
public:
    /// Sets what the layer's renderer style works with.
    void SetRendering(qint32 layerID, const LayerRendering& rendering) { m_renderings[layerID] = rendering; }
    /// Drops everything that is stored about a layer.
    void Forget(qint32 layerID);

    /// The attributes that the layers' styles need and that were not read yet. sources: of any layers, in any
    /// order.
    std::vector<AttributeRequest>
    Missing(const std::vector<MapLayer>& layers, const std::vector<LayerSource>& sources) const;
    void Take(const AttributeRequest& request, std::shared_ptr<const AttributeColumn> column);

    /// Gives the layer the labels and classes of its style, as far as they are read, and drops what was read
    /// for features that it no longer has. If the same features were read again, what was read for them stays
    /// on the layer, and is missing, until it is read again too. Passes on errors of the services.
    void Fit(MapLayer& layer, const IShellServices& services);

private:
    struct Read {
        std::shared_ptr<const FeatureSet> features;
        QString attribute; // as asked for
        std::shared_ptr<const AttributeColumn> column;
        bool isUpToDate = true; // false: read before the features were read again
    };
    struct Classes {
        std::shared_ptr<const AttributeColumn> column;
        ClassDivision division = ClassDivision::Quantiles;
        int count = 0;
        std::shared_ptr<const Classification> classification;
    };

    void DropOutdated(const MapLayer& layer);
    LayerRendering RenderingOf(qint32 layerID) const;
    std::shared_ptr<const AttributeColumn> Column(const MapLayer& layer, AttributeUse use) const;
    bool IsUpToDate(const MapLayer& layer, AttributeUse use) const;
    std::shared_ptr<const Classification> ClassesOf(const MapLayer& layer);

    std::map<qint32, LayerRendering> m_renderings;
    std::map<std::pair<qint32, AttributeUse>, Read> m_read;
    std::map<qint32, Classes> m_classes;
};

} // namespace Orvane
