// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeSelection.h"

#include "component/dialog/trees/NodeIndexes.h"

#include <QAbstractItemView>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace Orvane {

namespace {

bool IsBefore(const NodeReference& left, const NodeReference& right)
{
    return std::tie(left.isGroup, left.groupID, left.layerID)
        < std::tie(right.isGroup, right.groupID, right.layerID);
}

std::vector<NodeReference> NodesIn(const QItemSelection& ranges)
{
    std::vector<NodeReference> nodes;
    for (const QItemSelectionRange& range : ranges) {
        nodes.reserve(nodes.size() + size_t(range.height()));
        for (int row = range.top(); row <= range.bottom(); ++row)
            nodes.push_back(NodeIndexes::NodeAt(range.model()->index(row, 0, range.parent())));
    }
    return nodes;
}

} // namespace

NodeSelection NodeSelection::Of(const QAbstractItemView& view)
{
    NodeSelection selection;
    selection.m_nodes = NodesIn(view.selectionModel()->selection());
    if (selection.m_nodes.empty())
        return selection;
    const QModelIndex current = view.currentIndex();
    selection.m_current = view.selectionModel()->isSelected(current) ? NodeIndexes::NodeAt(current)
                                                                     : selection.m_nodes.front();
    std::sort(selection.m_nodes.begin(), selection.m_nodes.end(), IsBefore);
    return selection;
}

bool NodeSelection::Holds(const NodeReference& node) const
{
    return std::binary_search(m_nodes.begin(), m_nodes.end(), node, IsBefore);
}

bool NodeSelection::HasSameNodes(const NodeSelection& other) const
{
    return std::equal(m_nodes.begin(), m_nodes.end(), other.m_nodes.begin(), other.m_nodes.end(), IsSameNode);
}

bool NodeSelection::HoldsAllOf(const NodeSelection& other) const
{
    return std::includes(
        m_nodes.begin(), m_nodes.end(), other.m_nodes.begin(), other.m_nodes.end(), IsBefore);
}

std::vector<NodeReference> NodeSelection::NotAmong(std::vector<NodeReference> listed) const
{
    std::sort(listed.begin(), listed.end(), IsBefore);
    std::vector<NodeReference> missing;
    std::set_difference(
        m_nodes.begin(), m_nodes.end(), listed.begin(), listed.end(), std::back_inserter(missing), IsBefore);
    return missing;
}

QItemSelection NodeSelection::RangesIn(const QAbstractItemView& view) const
{
    const QAbstractItemModel& model = *view.model();
    const auto isHere = [this](const QModelIndex& index) { return Holds(NodeIndexes::NodeAt(index)); };
    QItemSelection ranges = NodeIndexes::RowsWhere(model, {}, isHere);
    for (int row = 0; row < model.rowCount(); ++row)
        ranges.append(NodeIndexes::RowsWhere(model, model.index(row, 0), isHere));
    return ranges;
}

} // namespace Orvane
