// SPDX-License-Identifier: MIT
#include "shell/map/LayerAttributes.h"

#include "mapkit/looks/RendererStyles.h"

#include <algorithm>

namespace Orvane {

namespace {

bool Needs(const MapLayer& layer, AttributeUse use)
{
    const qint32 part = use == AttributeUse::Labels ? RendererStyles::Labelled : RendererStyles::Graduated;
    return layer.features && RendererStyles::Has(layer.values.style, part);
}

const QString& AttributeFor(const LayerRendering& rendering, AttributeUse use)
{
    return use == AttributeUse::Labels ? rendering.labelAttribute : rendering.classAttribute;
}

// True when these are the same features in the same order, for example after one of them was moved.
bool AreSame(const FeatureSet& one, const FeatureSet* other)
{
    const auto isSame = [](const FeatureSet::Feature& a, const FeatureSet::Feature& b) {
        return a.featureID == b.featureID && a.featureID != NoFeatureID;
    };
    return other
        && std::equal(
               one.Features().begin(), one.Features().end(), other->Features().begin(),
               other->Features().end(), isSame);
}

} // namespace

void LayerAttributes::Forget(qint32 layerID)
{
    m_renderings.erase(layerID);
    m_classes.erase(layerID);
    for (const AttributeUse use : {AttributeUse::Labels, AttributeUse::Classes})
        m_read.erase({layerID, use});
}

std::vector<AttributeRequest>
LayerAttributes::Missing(const std::vector<MapLayer>& layers, const std::vector<LayerSource>& sources) const
{
    std::vector<AttributeRequest> missing;
    for (const MapLayer& layer : layers) {
        for (const AttributeUse use : {AttributeUse::Labels, AttributeUse::Classes}) {
            if (!Needs(layer, use) || IsUpToDate(layer, use))
                continue;
            const auto source = std::find_if(sources.begin(), sources.end(), [&](const LayerSource& s) {
                return s.layerID == layer.layerID;
            });
            if (source != sources.end())
                missing.push_back(
                    {*source, layer.features, use, AttributeFor(RenderingOf(layer.layerID), use)});
        }
    }
    return missing;
}

void LayerAttributes::Take(const AttributeRequest& request, std::shared_ptr<const AttributeColumn> column)
{
    m_read[{request.source.layerID, request.use}]
        = {request.features, request.attribute, std::move(column), true};
}

void LayerAttributes::Fit(MapLayer& layer, const IShellServices& services)
{
    DropOutdated(layer);
    layer.labels = Needs(layer, AttributeUse::Labels) ? Column(layer, AttributeUse::Labels) : nullptr;
    layer.classes = Needs(layer, AttributeUse::Classes) ? ClassesOf(layer) : nullptr;
    layer.classLooks.clear();
    layer.classAttribute.clear();
    if (!layer.classes)
        return;
    layer.classLooks
        = ClassLooksOf(layer.values, RenderingOf(layer.layerID), services, layer.classes->Count());
    layer.classAttribute = Column(layer, AttributeUse::Classes)->attribute;
}

// What was read holds its features: while it stayed, so would the old ones, as large as the layer's data.
// What the same features had before they were read again stands for what they have, until that is read too.
void LayerAttributes::DropOutdated(const MapLayer& layer)
{
    for (const AttributeUse use : {AttributeUse::Labels, AttributeUse::Classes}) {
        const auto found = m_read.find({layer.layerID, use});
        if (found == m_read.end() || found->second.features == layer.features)
            continue;
        if (AreSame(*found->second.features, layer.features.get())) {
            found->second.features = layer.features;
            found->second.isUpToDate = false;
            continue;
        }
        m_read.erase(found);
        if (use == AttributeUse::Classes)
            m_classes.erase(layer.layerID);
    }
}

LayerRendering LayerAttributes::RenderingOf(qint32 layerID) const
{
    const auto found = m_renderings.find(layerID);
    return found == m_renderings.end() ? LayerRendering() : found->second;
}

std::shared_ptr<const AttributeColumn> LayerAttributes::Column(const MapLayer& layer, AttributeUse use) const
{
    const auto found = m_read.find({layer.layerID, use});
    if (found == m_read.end() || found->second.features != layer.features)
        return nullptr;
    const bool isWanted = found->second.attribute == AttributeFor(RenderingOf(layer.layerID), use);
    return isWanted ? found->second.column : nullptr;
}

bool LayerAttributes::IsUpToDate(const MapLayer& layer, AttributeUse use) const
{
    const auto found = m_read.find({layer.layerID, use});
    return Column(layer, use) && found->second.isUpToDate;
}

std::shared_ptr<const Classification> LayerAttributes::ClassesOf(const MapLayer& layer)
{
    const auto column = Column(layer, AttributeUse::Classes);
    if (!column || column->numbers.empty())
        return nullptr;
    const LayerRendering rendering = RenderingOf(layer.layerID);
    Classes& known = m_classes[layer.layerID];
    const bool isSame = known.column == column && known.division == rendering.division
        && known.count == rendering.classCount;
    if (!isSame) {
        known = {column, rendering.division, rendering.classCount, nullptr};
        known.classification = std::make_shared<const Classification>(
            column->numbers, rendering.division, rendering.classCount);
    }
    return known.classification;
}

} // namespace Orvane
