// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"
#include "component/dialog/nodes/NodeRows.h"

#include <QStringList>
#include <QStringView>

#include <optional>
#include <string>
#include <vector>

namespace Orvane {

class FindWords;
class FlatNodes;

/// What a find left of a tree.
struct FoundNodes {
    NodeRows rows;
    int layerCount = 0; ///< layer nodes that were found
    std::optional<NodeReference> first; ///< the first node that was found itself, a layer or a group
    bool holdsOther = false; ///< a kept node is in a row although it was not found
};

/// Finds the nodes of a tree in which all words occur: of a layer in its text, its code and the text of its
/// group; of a group in its text, and then all its layers are found too. A group is shown with those of its
/// layers that were found. Nothing here raises.
class NodeFinder
{
public:
    /// words: if there are none, all nodes are found. kept: nodes that get a row whether they are found or
    /// not.
    FoundNodes
    Find(const FlatNodes& nodes, const FindWords& words, const std::vector<NodeReference>& kept = {});
    /// To be called when a node or a text has changed: the folded texts are kept from one find to the next.
    void Forget();

private:
    /// What one call of Find looks for and has found.
    struct Search {
        const FlatNodes& nodes;
        QStringList words;
        std::vector<int> keptLayers; ///< numbers, ascending
        std::vector<int> keptGroups;
        FoundNodes found;
    };

    void Fold(const FlatNodes& nodes);
    QStringView Folded(std::size_t text) const;
    static void Keep(Search& search, const std::vector<NodeReference>& kept);
    void AddLayers(Search& search, const QStringList& words, int first, int count, int group) const;
    void AddGroup(Search& search, int group) const;

    std::u16string m_folded; ///< of all layers, then of all groups
    std::vector<std::size_t> m_ends; ///< of each text in m_folded
};

} // namespace Orvane
