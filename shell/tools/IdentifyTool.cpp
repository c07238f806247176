// SPDX-License-Identifier: MIT
#include "shell/tools/IdentifyTool.h"

#include "mapkit/canvas/MapCanvas.h"
#include "shell/tools/ToolRules.h"

#include <algorithm>

namespace Orvane {

namespace {

constexpr size_t MostFeatures = 50; // more than a user will look through

} // namespace

IdentifyTool::IdentifyTool(MapCanvas& canvas, Reader reader) : m_canvas(canvas), m_reader(std::move(reader))
{
}

void IdentifyTool::Begin()
{
    emit StatusChanged(tr("Click a feature to see its attributes."));
}

void IdentifyTool::Click(QPointF pixel, Qt::KeyboardModifiers)
{
    const ToolSearch search(
        m_canvas.Layers(), m_canvas.View(), m_canvas.ScaleDenominator(), ToolUse::Identify);
    std::vector<FeatureKey> keys;
    std::vector<IdentifiedFeature> found;
    for (const Hit& hit : search.At(pixel)) {
        const FeatureKey key{hit.layer->layerID, hit.layer->features->FeatureId(hit.feature)};
        if (keys.size() == MostFeatures || std::find(keys.begin(), keys.end(), key) != keys.end())
            continue;
        keys.push_back(key);
        found.push_back({key, hit.layer->name, {}});
    }
    if (!keys.empty()) {
        const auto attributes = m_reader(keys);
        for (size_t i = 0; i < found.size(); ++i)
            found[i].attributes = attributes.at(i);
    }
    emit StatusChanged(
        found.empty() ? search.MissAt(pixel).Text() : tr("Features found: %1").arg(found.size()));
    emit Identified(found);
}

} // namespace Orvane
