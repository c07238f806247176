// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeKey.h"

#include <QModelIndex>

#include <optional>

class QTreeView;

namespace Orvane {

/// How far a tree was scrolled and where its current node stood, told by the identity of nodes, so that both
/// are found again after all nodes were replaced.
class LayerTreePlace
{
public:
    LayerTreePlace() = default;
    /// The place of a view that shows a LayerTreeModel; current: the node to find a neighbour of later, if
    /// any.
    LayerTreePlace(const QTreeView& view, const std::optional<NodeReference>& current);

    /// What stands now where the current node stood: the node in its row, else the last one before it, else
    /// its group. Invalid when nothing is near.
    QModelIndex NodeNear(const QTreeView& view) const;

    /// Scrolls the view so that the same node is at its top; where that is gone, by as much as before.
    /// Expands nothing.
    void ScrollBack(QTreeView& view) const;

private:
    std::optional<NodeReference> m_top;
    int m_topOffset = 0; ///< pixels from the top of the view to the top node, 0 or less
    int m_vertical = 0; ///< value of the scroll bar
    int m_horizontal = 0;

    std::optional<NodeReference> m_group; ///< that the current node stood under
    int m_row = -1; ///< of the current node
    int m_groupRow = -1;
};

} // namespace Orvane
