// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerIDs.h"

#include "qgis/layers/KeptValues.h"
#include "qgis/layers/LayerNodes.h"

#include <qgslayertree.h>
#include <qgsmaplayer.h>
#include <qgsproject.h>

#include <algorithm>

namespace Orvane {

namespace {

constexpr std::string_view NumberName = "id";
constexpr std::string_view OwnerName = "idOf"; // a copy of a layer has another text for an ID

// QGIS 3.22 saves no custom properties of annotations, but those of their nodes.
bool IsKeptInNode(const QgsMapLayer& layer)
{
    return layer.type() == QgsMapLayerType::AnnotationLayer;
}

} // namespace

LayerIDs::LayerIDs(const QgsProject& project) : m_project(project)
{
    Reset();
}

void LayerIDs::Reset()
{
    m_numbers.clear();
    m_texts.clear();
    m_last = 0;
    const QMap<QString, QgsMapLayer*> layers = m_project.mapLayers();
    for (const QgsMapLayer* layer : layers) {
        const qint32 id = Kept(*layer);
        m_last = std::max(m_last, id);
        if (id == 0 || m_texts.contains(id))
            continue;
        m_numbers.insert(layer->id(), id);
        m_texts.insert(id, layer->id());
    }
}

qint32 LayerIDs::Kept(const QgsMapLayer& layer) const
{
    if (const QgsLayerTreeLayer* node = IsKeptInNode(layer) ? LayerNodes(m_project).Of(layer) : nullptr)
        return std::max(0, node->customProperty(KeptValues::PropertyName(NumberName)).toInt());
    if (layer.customProperty(KeptValues::PropertyName(OwnerName)).toString() != layer.id())
        return 0;
    return std::max(0, KeptValues::Whole(layer, NumberName).value_or(0));
}

qint32 LayerIDs::Of(QgsMapLayer& layer)
{
    qint32 id = m_numbers.value(layer.id());
    if (id == 0) {
        const qint32 kept = Kept(layer);
        id = kept != 0 && !m_texts.contains(kept) ? kept : m_last + 1;
        m_last = std::max(m_last, id);
        m_numbers.insert(layer.id(), id);
        m_texts.insert(id, layer.id());
    }
    Keep(layer, id);
    return id;
}

void LayerIDs::Keep(QgsMapLayer& layer, qint32 id)
{
    KeptValues::Keep(layer, NumberName, id);
    KeptValues::Keep(layer, OwnerName, layer.id());
    const QString property = KeptValues::PropertyName(NumberName);
    QgsLayerTreeLayer* node = IsKeptInNode(layer) ? LayerNodes(m_project).Of(layer) : nullptr;
    if (node && node->customProperty(property).toInt() != id)
        node->setCustomProperty(property, id);
}

QgsMapLayer* LayerIDs::Layer(qint32 id) const
{
    const auto text = m_texts.find(id);
    return text == m_texts.end() ? nullptr : m_project.mapLayer(*text);
}

} // namespace Orvane
