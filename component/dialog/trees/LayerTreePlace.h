// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"

#include <QModelIndex>

#include <optional>

class QTreeView;

namespace Orvane {

/// The scroll position of a tree and the position of its current node. Both are stored by the identity of
/// nodes, so that they can be found again after all nodes were replaced.
class LayerTreePlace
{
public:
    LayerTreePlace() = default;
    /// The place of a view that shows a LayerTreeModel. current: the node whose neighbour can be found later,
    /// if any.
    LayerTreePlace(const QTreeView& view, const std::optional<NodeReference>& current);

    /// The node that is now at the position of the former current node: the node in its row, else the last
    /// one before it, else its group. Invalid if there is none of these.
    QModelIndex NodeNear(const QTreeView& view) const;

    /// Scrolls the view so that the same node is at its top; if that node no longer exists, by as much as
    /// before. Expands nothing.
    void ScrollBack(QTreeView& view) const;

private:
    std::optional<NodeReference> m_top;
    int m_topOffset = 0; ///< pixels from the top of the view to the top node, 0 or less
    int m_vertical = 0; ///< value of the scroll bar
    int m_horizontal = 0;

    std::optional<NodeReference> m_group; ///< the group of the current node
    int m_row = -1; ///< of the current node
    int m_groupRow = -1;
};

} // namespace Orvane
