// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"

#include <QItemSelection>

#include <vector>

class QAbstractItemView;

namespace Orvane {

/// The nodes of one tree that are chosen together, each once, and the current one among them. They are held
/// by their identity, so that they can be found again after all nodes were replaced. Nothing here raises.
class NodeSelection
{
public:
    /// No node.
    NodeSelection() = default;
    /// One node, which is the current one.
    explicit NodeSelection(const NodeReference& node) : m_nodes{node}, m_current(node) { }
    /// What a view of a LayerTreeModel shows as selected. Current is the view's current node if it is
    /// selected.
    static NodeSelection Of(const QAbstractItemView& view);

    bool IsEmpty() const { return m_nodes.empty(); }
    bool IsMany() const { return m_nodes.size() > 1; }
    /// In the order of their identity: layers first.
    const std::vector<NodeReference>& Nodes() const { return m_nodes; }
    /// The current node; only if there are nodes.
    const NodeReference& Current() const { return m_current; }

    bool Holds(const NodeReference& node) const;
    /// True if both hold the same nodes, whatever their images, and whichever is current.
    bool HasSameNodes(const NodeSelection& other) const;
    /// True if no node of the other is missing here.
    bool HoldsAllOf(const NodeSelection& other) const;
    /// The nodes that are not among these, in the same order. listed: in any order.
    std::vector<NodeReference> NotAmong(std::vector<NodeReference> listed) const;

    /// Where these nodes are in the view now, without those that it does not have.
    QItemSelection RangesIn(const QAbstractItemView& view) const;

private:
    std::vector<NodeReference> m_nodes; // sorted
    NodeReference m_current;
};

} // namespace Orvane
