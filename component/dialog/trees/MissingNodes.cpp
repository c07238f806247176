// SPDX-License-Identifier: MIT
#include "component/dialog/trees/MissingNodes.h"

#include "component/dialog/trees/LayerTreeList.h"

namespace Orvane {

namespace {

void Append(std::vector<NodeReference>& nodes, const std::vector<LayerEntry>& layers, qint32 groupID)
{
    nodes.reserve(nodes.size() + layers.size());
    for (const LayerEntry& layer : layers)
        nodes.push_back({.isGroup = false, .groupID = groupID, .layerID = layer.layerID});
}

} // namespace

std::vector<NodeReference> MissingIn(const std::vector<GroupEntry>& groups, const LayerTreeList& list)
{
    if (!list.CurrentNode())
        return {};
    std::vector<NodeReference> nodes;
    nodes.reserve(groups.size());
    for (const GroupEntry& group : groups) {
        nodes.push_back({.isGroup = true, .groupID = group.groupID});
        Append(nodes, group.layers, group.groupID);
    }
    return list.Chosen().NotAmong(std::move(nodes));
}

std::vector<NodeReference> MissingIn(const std::vector<LayerEntry>& layers, const LayerTreeList& list)
{
    if (!list.CurrentNode())
        return {};
    std::vector<NodeReference> nodes;
    Append(nodes, layers, 0);
    return list.Chosen().NotAmong(std::move(nodes));
}

} // namespace Orvane
