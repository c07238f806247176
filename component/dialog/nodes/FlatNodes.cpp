// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/FlatNodes.h"

#include "component/dialog/nodes/NodeOrder.h"

#include <OrvaneShellLib/LayerValues.h>

#include <algorithm>
#include <iterator>

namespace Orvane {

void FlatNodes::SetGroups(std::vector<GroupEntry> groups)
{
    m_byLayerID.clear();
    m_layers.clear();
    m_groups.clear();
    m_groups.reserve(groups.size());
    for (GroupEntry& group : groups) {
        const int first = int(m_layers.size());
        std::move(group.layers.begin(), group.layers.end(), std::back_inserter(m_layers));
        m_groups.push_back(
            {group.groupID, 0, first, int(m_layers.size()) - first, std::move(group.text), group.faulty});
        m_groups.back().image = CommonQuickMode(m_groups.back());
    }
}

void FlatNodes::SetLayers(std::vector<LayerEntry> layers)
{
    m_byLayerID.clear();
    m_groups.clear();
    m_layers = std::move(layers);
}

NodeReference FlatNodes::GroupReference(int group) const
{
    const Group& node = m_groups[std::size_t(group)];
    return {.isGroup = true, .groupID = node.groupID, .layerID = 0, .image = node.image};
}

NodeReference FlatNodes::LayerReference(int layer) const
{
    const LayerEntry& node = m_layers[std::size_t(layer)];
    const int group = GroupOf(layer);
    const qint32 groupID = group < 0 ? 0 : m_groups[std::size_t(group)].groupID;
    return {.isGroup = false, .groupID = groupID, .layerID = node.layerID, .image = node.quickMode};
}

int FlatNodes::GroupWithID(qint32 groupID) const
{
    const auto found = std::find_if(
        m_groups.begin(), m_groups.end(), [&](const Group& group) { return group.groupID == groupID; });
    return found == m_groups.end() ? -1 : int(found - m_groups.begin());
}

int FlatNodes::LayerAt(const NodeReference& node) const
{
    for (auto [entry, last] = NumbersOf(node.layerID); entry != last; ++entry) {
        if (IsSameNode(LayerReference(entry->number), node))
            return entry->number;
    }
    return -1;
}

bool FlatNodes::Lists(qint32 layerID) const
{
    const auto [first, last] = NumbersOf(layerID);
    return first != last;
}

int FlatNodes::GroupOf(int layer) const
{
    const auto after
        = std::upper_bound(m_groups.begin(), m_groups.end(), layer, [](int wanted, const Group& group) {
              return wanted < group.firstLayer;
          });
    return int(after - m_groups.begin()) - 1;
}

std::vector<int> FlatNodes::SetModes(const std::vector<LayerMode>& modes)
{
    std::vector<int> changed;
    for (const LayerMode& mode : modes) {
        for (auto [entry, last] = NumbersOf(mode.layerID); entry != last; ++entry) {
            qint16& shown = m_layers[std::size_t(entry->number)].quickMode;
            if (std::exchange(shown, mode.quickMode) != mode.quickMode)
                changed.push_back(entry->number);
        }
    }
    std::sort(changed.begin(), changed.end());
    return changed;
}

std::vector<int> FlatNodes::SetLayerText(qint32 layerID, const QString& text)
{
    std::vector<int> changed;
    for (auto [entry, last] = NumbersOf(layerID); entry != last; ++entry) {
        if (SetText(entry->number, text))
            changed.push_back(entry->number);
    }
    return changed;
}

bool FlatNodes::SetText(int layer, const QString& text)
{
    return std::exchange(m_layers[std::size_t(layer)].text, text) != text;
}

bool FlatNodes::SetGroupText(int group, const QString& text)
{
    return std::exchange(m_groups[std::size_t(group)].text, text) != text;
}

bool FlatNodes::RefreshImage(int group)
{
    Group& node = m_groups[std::size_t(group)];
    const qint16 image = CommonQuickMode(node);
    return std::exchange(node.image, image) != image;
}

FlatNodes::Update FlatNodes::UpdateLayer(const LayerEntry& layer)
{
    Update update;
    for (auto [entry, last] = NumbersOf(layer.layerID); entry != last; ++entry) {
        LayerEntry& shown = m_layers[std::size_t(entry->number)];
        update.isRenamed = update.isRenamed || shown.text != layer.text;
        update.isFoundOtherwise = update.isFoundOtherwise || update.isRenamed || shown.code != layer.code;
        if (std::exchange(shown, layer) != layer)
            update.changed.push_back(entry->number);
    }
    return update;
}

void FlatNodes::Move(int from, int to)
{
    const auto layer = m_layers.begin() + from;
    const auto place = m_layers.begin() + to;
    place > layer ? std::rotate(layer, layer + 1, place + 1) : std::rotate(place, layer, layer + 1);
    m_byLayerID.clear();
}

int FlatNodes::Insert(const LayerEntry& layer)
{
    const int number = SortedRow(m_layers, layer.text);
    m_byLayerID.clear();
    m_layers.insert(m_layers.begin() + number, layer);
    return number;
}

const std::vector<FlatNodes::LayerNumber>& FlatNodes::ByLayerID() const
{
    if (m_byLayerID.size() == m_layers.size())
        return m_byLayerID;
    m_byLayerID.resize(m_layers.size());
    for (std::size_t number = 0; number < m_layers.size(); ++number)
        m_byLayerID[number] = {m_layers[number].layerID, int(number)};
    std::sort(m_byLayerID.begin(), m_byLayerID.end(), [](const LayerNumber& left, const LayerNumber& right) {
        return std::pair(left.layerID, left.number) < std::pair(right.layerID, right.number);
    });
    return m_byLayerID;
}

std::pair<FlatNodes::LayerNumbers, FlatNodes::LayerNumbers> FlatNodes::NumbersOf(qint32 layerID) const
{
    const std::vector<LayerNumber>& all = ByLayerID();
    const auto first
        = std::lower_bound(all.begin(), all.end(), layerID, [](const LayerNumber& left, qint32 wanted) {
              return left.layerID < wanted;
          });
    const auto last = std::find_if(
        first, all.end(), [layerID](const LayerNumber& each) { return each.layerID != layerID; });
    return {first, last};
}

qint16 FlatNodes::CommonQuickMode(const Group& group) const
{
    if (group.layerCount == 0)
        return 0;
    const auto first = m_layers.begin() + group.firstLayer;
    const bool common = std::all_of(first, first + group.layerCount, [&](const LayerEntry& layer) {
        return layer.quickMode == first->quickMode;
    });
    return common ? first->quickMode : QuickMode::Various;
}

} // namespace Orvane
