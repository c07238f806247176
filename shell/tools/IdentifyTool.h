// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapTool.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/MapRaster.h"
#include "shell/features/FeatureKey.h"

#include <functional>
#include <memory>
#include <vector>

namespace Orvane {

class MapCanvas;
class ToolSearch;

/// An identified feature with its attributes from the source, or the pixel of a raster with its values.
struct IdentifiedFeature {
    FeatureKey key; ///< of a raster without a feature's ID
    QString layerName;
    std::vector<FeatureAttribute> attributes;
    bool isRaster = false;
};

/// What the attributes are wanted of.
struct IdentifyQuestion {
    FeatureKey key;
    std::shared_ptr<const MapRaster> raster = {}; ///< nullptr for a feature
    QPointF place = {}; ///< on the raster, in map units
};

/// Shows the attributes of the features under the pointer and the values of rasters, of enquirable layers
/// only.
class IdentifyTool : public MapTool
{
    Q_OBJECT
public:
    /// Reads the attributes for each question, in their order; none for a raster without a pixel there. May
    /// raise.
    using Reader
        = std::function<std::vector<std::vector<FeatureAttribute>>(const std::vector<IdentifyQuestion>&)>;

    /// canvas: not owned; outlives this object.
    IdentifyTool(MapCanvas& canvas, Reader reader);

    QCursor Cursor() const override { return Qt::WhatsThisCursor; }
    void Begin() override;
    void Click(QPointF pixel, Qt::KeyboardModifiers modifiers) override;
    bool DoubleClick(QPointF) override { return true; }

signals:
    /// The features at the last click, topmost first, and then the rasters; empty if there are none.
    void Identified(const std::vector<Orvane::IdentifiedFeature>& features);

private:
    struct Asked {
        std::vector<IdentifyQuestion> questions;
        std::vector<IdentifiedFeature> answers; // still without attributes
    };

    void AskFeatures(const ToolSearch& search, QPointF pixel, Asked& asked) const;
    void AskRasters(const ToolSearch& search, QPointF pixel, Asked& asked) const;
    std::vector<IdentifiedFeature> Answers(Asked asked) const;

    MapCanvas& m_canvas;
    Reader m_reader;
};

} // namespace Orvane
