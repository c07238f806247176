// SPDX-License-Identifier: MIT
#include "shell/tools/IdentifyTool.h"

#include "mapkit/canvas/MapCanvas.h"
#include "shell/tools/ToolRules.h"

#include <algorithm>

namespace Orvane {

namespace {

constexpr size_t MostFeatures = 50; // more than a user will look through

QString FoundText(const std::vector<IdentifiedFeature>& found)
{
    const auto rasters = std::count_if(
        found.begin(), found.end(), [](const IdentifiedFeature& feature) { return feature.isRaster; });
    const auto features = qlonglong(found.size()) - rasters;
    if (rasters == 0)
        return IdentifyTool::tr("Features found: %1").arg(features);
    if (features == 0)
        return IdentifyTool::tr("Rasters found: %1").arg(rasters);
    return IdentifyTool::tr("Features found: %1, rasters: %2").arg(features).arg(rasters);
}

} // namespace

IdentifyTool::IdentifyTool(MapCanvas& canvas, Reader reader) : m_canvas(canvas), m_reader(std::move(reader))
{
}

void IdentifyTool::Begin()
{
    emit StatusChanged(tr("Click a feature to see its attributes, or a raster to see its values."));
}

void IdentifyTool::Click(QPointF pixel, Qt::KeyboardModifiers)
{
    const ToolSearch search(
        m_canvas.Layers(), m_canvas.View(), m_canvas.ScaleDenominator(), ToolUse::Identify);
    Asked asked;
    AskFeatures(search, pixel, asked);
    AskRasters(search, pixel, asked);
    const QString miss = search.MissAt(pixel).Text(); // reading may take other layers into the map
    const std::vector<IdentifiedFeature> found = Answers(std::move(asked));
    emit StatusChanged(found.empty() ? miss : FoundText(found));
    emit Identified(found);
}

void IdentifyTool::AskFeatures(const ToolSearch& search, QPointF pixel, Asked& asked) const
{
    std::vector<FeatureKey> keys;
    for (const Hit& hit : search.At(pixel)) {
        const FeatureKey key{hit.layer->layerID, hit.layer->features->FeatureId(hit.feature)};
        if (keys.size() == MostFeatures || std::find(keys.begin(), keys.end(), key) != keys.end())
            continue;
        keys.push_back(key);
        asked.questions.push_back({key});
        asked.answers.push_back({key, hit.layer->name, {}});
    }
}

void IdentifyTool::AskRasters(const ToolSearch& search, QPointF pixel, Asked& asked) const
{
    const QPointF place = m_canvas.View().ToMap(pixel);
    for (const MapLayer* layer : search.RastersAt(pixel)) {
        const FeatureKey key{layer->layerID, NoFeatureID};
        asked.questions.push_back({key, layer->raster, place});
        asked.answers.push_back({key, layer->name, {}, true});
    }
}

std::vector<IdentifiedFeature> IdentifyTool::Answers(Asked asked) const
{
    if (asked.questions.empty())
        return {};
    const auto attributes = m_reader(asked.questions);
    for (size_t i = 0; i < asked.answers.size(); ++i)
        asked.answers[i].attributes = attributes.at(i);
    std::erase_if(asked.answers, [](const IdentifiedFeature& answer) {
        return answer.isRaster && answer.attributes.empty();
    });
    return std::move(asked.answers);
}

} // namespace Orvane
