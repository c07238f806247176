// SPDX-License-Identifier: MIT
// How the trees show again what has changed in single layers.
#include "component/common/Component.h"
#include "component/dialog/trees/LayerTreeList.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerTreeReader.h"
#include "component/model/ListedName.h"
#include "ovctrls/BusyPointer.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <algorithm>

namespace Orvane {

void LayerTrees::RefreshLayerTexts(const QSet<qint32>& layerIDs)
{
    QHash<qint32, QString> texts;
    for (const LayerTreeList* list : {m_groups, m_layers}) {
        for (qint32 layerID : list->Model().LayersAmong(layerIDs))
            texts.insert(layerID, QString());
    }
    const BusyPointer busy;
    for (auto text = texts.begin(); text != texts.end(); ++text)
        *text = DecorateLayerName(Client().LayerDisplayName(text.key()));
    m_groups->Model().SetLayerTexts(texts);
    m_layers->Model().SetLayerTexts(texts);
}

bool LayerTrees::RefreshLayers(const QSet<qint32>& layerIDs)
{
    if (layerIDs.size() > MostLayersOneByOne || At(m_shown).NeedsLoad())
        return false;
    const LayersReading reading = RereadLayers(Client(), layerIDs, m_filter);
    const bool isShown = std::all_of(reading.layers.begin(), reading.layers.end(), [this](const auto& read) {
        return IsListedAsBefore(read.first, read.second) && (!read.second || ShowAgain(*read.second));
    });
    ExpireSamples();
    if (isShown)
        ReportFault(m_shown, reading.fault);
    return isShown;
}

bool LayerTrees::IsListedAsBefore(qint32 layerID, const std::optional<ListedLayer>& layer) const
{
    const bool isInList = layer && layer->isInList;
    if (!m_layers->NeedsLoad() && m_layers->Model().Lists(layerID) != isInList)
        return false;
    if (m_groups->NeedsLoad() || m_groups->Model().Lists(layerID) == layer.has_value())
        return true;
    return layer && !IsInAGroup(Client(), layerID);
}

// False if its place in the flat list is not known.
bool LayerTrees::ShowAgain(const ListedLayer& layer)
{
    m_groups->Model().UpdateLayer(layer.entry);
    const bool isRenamed = m_layers->Model().UpdateLayer(layer.entry);
    return !isRenamed || m_layers->NeedsLoad()
        || m_layers->Model().PlaceLayer(layer.entry.layerID, layer.name);
}

} // namespace Orvane
