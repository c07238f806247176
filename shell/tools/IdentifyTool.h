// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapTool.h"
#include "mapkit/data/DataSource.h"
#include "shell/features/FeatureKey.h"

#include <functional>
#include <vector>

namespace Orvane {

class MapCanvas;

/// An identified feature, with its attributes from the source.
struct IdentifiedFeature {
    FeatureKey key;
    QString layerName;
    std::vector<FeatureAttribute> attributes;
};

/// Shows the attributes of the features under the pointer, of enquirable layers only.
class IdentifyTool : public MapTool
{
    Q_OBJECT
public:
    /// Reads the attributes of these features, in their order; may raise.
    using Reader = std::function<std::vector<std::vector<FeatureAttribute>>(const std::vector<FeatureKey>&)>;

    /// canvas: not owned; outlives this object.
    IdentifyTool(MapCanvas& canvas, Reader reader);

    QCursor Cursor() const override { return Qt::WhatsThisCursor; }
    void Begin() override;
    void Click(QPointF pixel, Qt::KeyboardModifiers modifiers) override;
    bool DoubleClick(QPointF) override { return true; }

signals:
    /// The features at the last click, topmost first; empty if there are none.
    void Identified(const std::vector<Orvane::IdentifiedFeature>& features);

private:
    MapCanvas& m_canvas;
    Reader m_reader;
};

} // namespace Orvane
