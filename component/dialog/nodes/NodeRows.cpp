// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/NodeRows.h"

#include "component/dialog/nodes/FlatNodes.h"

#include <algorithm>
#include <numeric>

namespace Orvane {

NodeRows::NodeRows(const FlatNodes& nodes) : m_layers(nodes.Layers().size())
{
    std::iota(m_layers.begin(), m_layers.end(), 0);
    m_groups.reserve(nodes.Groups().size());
    for (const FlatNodes::Group& group : nodes.Groups())
        m_groups.push_back({int(m_groups.size()), group.firstLayer, group.layerCount});
}

void NodeRows::AddGroup(int number)
{
    m_groups.push_back({number, LayerCount(), 0});
}

void NodeRows::AddLayer(int number)
{
    m_layers.push_back(number);
    if (!m_groups.empty())
        ++m_groups.back().count;
}

void NodeRows::MakeRoomFor(int number)
{
    std::for_each(m_layers.begin() + PlaceOf(number), m_layers.end(), [](int& later) { ++later; });
}

int NodeRows::PlaceOf(int number) const
{
    return int(std::lower_bound(m_layers.begin(), m_layers.end(), number) - m_layers.begin());
}

void NodeRows::Insert(int number)
{
    m_layers.insert(m_layers.begin() + PlaceOf(number), number);
}

int NodeRows::PlaceAfterMove(int from, int to) const
{
    if (to < from)
        return PlaceOf(to);
    const int shownUpTo = PlaceOf(to + 1);
    return RowOfLayer(from) < 0 ? shownUpTo : shownUpTo - 1;
}

void NodeRows::Move(int from, int to)
{
    const int first = PlaceOf(std::min(from, to));
    const int last = PlaceOf(std::max(from, to) + 1);
    const int step = to > from ? -1 : 1;
    for (int row = first; row < last; ++row)
        m_layers[std::size_t(row)] = LayerAt(row) == from ? to : LayerAt(row) + step;
    std::sort(m_layers.begin() + first, m_layers.begin() + last);
}

int NodeRows::RowOfGroup(int number) const
{
    const auto group
        = std::lower_bound(m_groups.begin(), m_groups.end(), number, [](const Group& left, int wanted) {
              return left.number < wanted;
          });
    return group == m_groups.end() || group->number != number ? -1 : int(group - m_groups.begin());
}

int NodeRows::RowOfLayer(int number) const
{
    const int place = PlaceOf(number);
    return place < LayerCount() && LayerAt(place) == number ? place : -1;
}

int NodeRows::RowOfLayer(int number, int groupRow) const
{
    const int row = RowOfLayer(number);
    return row < 0 ? row : row - m_groups[std::size_t(groupRow)].first;
}

} // namespace Orvane
