// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

namespace Orvane {

class FlatNodes;

/// The nodes that a tree shows in its rows, by their numbers in FlatNodes: all of them, or those that a find
/// left. Rows are in the order of the numbers. Nothing here raises.
class NodeRows
{
public:
    NodeRows() = default;
    /// All nodes.
    explicit NodeRows(const FlatNodes& nodes);

    /// Add one node after all others. Layers belong to the group that was added last.
    void AddGroup(int number);
    void AddLayer(int number);
    /// Flat list only: a layer was added to the nodes; those from that number on moved up by one.
    void MakeRoomFor(int number);
    /// Flat list only: the row that the layer has or would have.
    int PlaceOf(int number) const;
    /// Flat list only: shows the layer there. It must not be shown yet.
    void Insert(int number);

    /// Flat list only: the row that the layer at one number will have, or would have, when it gets another
    /// one.
    int PlaceAfterMove(int from, int to) const;
    /// Flat list only: a layer got another number; those between moved up or down by one.
    void Move(int from, int to);

    int GroupCount() const { return int(m_groups.size()); }
    int LayerCount() const { return int(m_layers.size()); }
    /// The number of layers shown in the group at the row.
    int LayerCount(int groupRow) const { return m_groups[std::size_t(groupRow)].count; }

    int GroupAt(int row) const { return m_groups[std::size_t(row)].number; }
    /// The number of the layer in a row of the flat list, or of the group at groupRow.
    int LayerAt(int row) const { return m_layers[std::size_t(row)]; }
    int LayerAt(int groupRow, int row) const { return LayerAt(m_groups[std::size_t(groupRow)].first + row); }

    /// The row of the group with that number; -1 if it is not shown.
    int RowOfGroup(int number) const;
    /// The row of the layer with that number in the flat list, or in the group at groupRow; -1 if it is not
    /// shown.
    int RowOfLayer(int number) const;
    int RowOfLayer(int number, int groupRow) const;

private:
    struct Group {
        int number = 0;
        int first = 0; ///< index into m_layers
        int count = 0;
    };

    std::vector<Group> m_groups;
    std::vector<int> m_layers;
};

} // namespace Orvane
