// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"
#include "component/model/LayerTreeEntries.h"

#include <utility>
#include <vector>

namespace Orvane {

/// All nodes of a tree in flat vectors: groups with their layers, or layers alone. 100,000 layers need one
/// allocation per text and none per node. A node is named by its number: that of a group, or that of a layer
/// among the layers of all groups. Nothing here raises.
class FlatNodes
{
public:
    struct Group {
        qint32 groupID = 0;
        qint16 image = 0;
        int firstLayer = 0; ///< number
        int layerCount = 0;
        QString text;
        bool faulty = false;
    };

    /// Replace all nodes.
    void SetGroups(std::vector<GroupEntry> groups);
    void SetLayers(std::vector<LayerEntry> layers);

    const std::vector<Group>& Groups() const { return m_groups; }
    /// Of all groups, one group after the other.
    const std::vector<LayerEntry>& Layers() const { return m_layers; }
    bool IsEmpty() const { return m_groups.empty() && m_layers.empty(); }

    NodeReference GroupReference(int group) const;
    NodeReference LayerReference(int layer) const;
    /// The number of the group with that ID; -1 if there is none.
    int GroupWithID(qint32 groupID) const;
    /// The number of the layer node; -1 if there is none. node: a layer.
    int LayerAt(const NodeReference& node) const;
    /// True if the layer has a node.
    bool Lists(qint32 layerID) const;
    /// The number of the layer's group; -1 if there are no groups.
    int GroupOf(int layer) const;

    /// Gives all nodes of each layer its mode; returns the numbers of those that changed, ascending.
    std::vector<int> SetModes(const std::vector<LayerMode>& modes);
    /// Gives all nodes of the layer the text; returns the numbers of those that changed, ascending.
    std::vector<int> SetLayerText(qint32 layerID, const QString& text);
    /// Gives one layer node the text; false if it has it.
    bool SetText(int layer, const QString& text);
    /// Gives the group the text; false if it has it.
    bool SetGroupText(int group, const QString& text);
    /// Gives the group the image that its layers share; false if it has it.
    bool RefreshImage(int group);
    /// What an update has changed.
    struct Update {
        std::vector<int> changed; ///< numbers, ascending
        bool isRenamed = false; ///< the text is another one
        bool isFoundOtherwise = false; ///< the text or the code is another one
    };
    /// Gives all nodes of the layer these values.
    Update UpdateLayer(const LayerEntry& layer);
    /// Flat list only: the layer at one number gets another one; those between move up or down.
    void Move(int from, int to);
    /// Flat list only: adds the layer at its position by text and returns its number.
    int Insert(const LayerEntry& layer);

private:
    struct LayerNumber {
        qint32 layerID = 0;
        int number = 0;
    };

    const std::vector<LayerNumber>& ByLayerID() const;
    using LayerNumbers = std::vector<LayerNumber>::const_iterator;
    std::pair<LayerNumbers, LayerNumbers> NumbersOf(qint32 layerID) const;
    qint16 CommonQuickMode(const Group& group) const;

    std::vector<Group> m_groups;
    std::vector<LayerEntry> m_layers;
    mutable std::vector<LayerNumber> m_byLayerID; ///< sorted; empty until it is needed
};

} // namespace Orvane
