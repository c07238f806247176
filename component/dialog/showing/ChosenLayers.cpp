// SPDX-License-Identifier: MIT
#include "component/dialog/showing/ChosenLayers.h"

#include "component/common/Messages.h"
#include "component/model/LayerCursors.h"

#include <QLocale>

#include <unordered_set>

namespace Orvane {

namespace {

/// IDs in the order in which they came first.
class DistinctIDs
{
public:
    void Add(qint32 layerID)
    {
        if (m_known.insert(layerID).second)
            m_layerIDs.push_back(layerID);
    }

    std::vector<qint32> Take() { return std::move(m_layerIDs); }

private:
    std::unordered_set<qint32> m_known;
    std::vector<qint32> m_layerIDs;
};

} // namespace

std::vector<qint32> ReadLayerIDs(IStyleEditorClient& client, const NodeSelection& nodes)
{
    DistinctIDs layerIDs;
    for (const NodeReference& node : nodes.Nodes()) {
        if (!node.isGroup)
            layerIDs.Add(node.layerID);
        else
            for (const qint32 layerID : ReadMemberLayerIDs(client, node.groupID))
                layerIDs.Add(layerID);
    }
    return layerIDs.Take();
}

QString NameOfLayers(qsizetype layers)
{
    return layers == 1 ? TranslateMsg("1 layer") : TranslateMsg("^1 layers", QLocale().toString(layers));
}

} // namespace Orvane
