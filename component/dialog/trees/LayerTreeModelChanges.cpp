// SPDX-License-Identifier: MIT
// The commands that change single nodes.
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/NodeOrder.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace Orvane {

void LayerTreeModel::SetQuickMode(const std::vector<qint32>& layerIDs, qint16 quickMode)
{
    std::vector<LayerMode> modes;
    modes.reserve(layerIDs.size());
    for (qint32 layerID : layerIDs)
        modes.push_back({layerID, quickMode});
    SetQuickModes(modes);
}

void LayerTreeModel::SetQuickModes(const std::vector<LayerMode>& modes)
{
    std::vector<int> changed;
    for (const LayerMode& mode : modes) {
        for (auto [entry, last] = NumbersOf(mode.layerID); entry != last; ++entry) {
            qint16& shown = m_layers[size_t(entry->number)].quickMode;
            if (std::exchange(shown, mode.quickMode) != mode.quickMode)
                changed.push_back(entry->number);
        }
    }
    std::sort(changed.begin(), changed.end());
    ReportLayers(changed);
    RefreshGroupImages(changed);
}

void LayerTreeModel::SetLayerText(qint32 layerID, const QString& text)
{
    std::vector<int> changed;
    for (auto [entry, last] = NumbersOf(layerID); entry != last; ++entry) {
        if (std::exchange(m_layers[size_t(entry->number)].text, text) != text)
            changed.push_back(entry->number);
    }
    ReportLayers(changed);
}

void LayerTreeModel::SetLayerTexts(const QHash<qint32, QString>& texts)
{
    std::vector<int> changed;
    for (size_t number = 0; number < m_layers.size(); ++number) {
        const auto text = texts.constFind(m_layers[number].layerID);
        if (text != texts.constEnd() && std::exchange(m_layers[number].text, *text) != *text)
            changed.push_back(int(number));
    }
    ReportLayers(changed);
}

void LayerTreeModel::SetGroupText(qint32 groupID, const QString& text)
{
    for (size_t row = 0; row < m_groups.size(); ++row) {
        GroupNode& group = m_groups[row];
        if (group.groupID != groupID || std::exchange(group.text, text) == text)
            continue;
        const QModelIndex changed = index(int(row), 0);
        emit dataChanged(changed, changed);
    }
}

bool LayerTreeModel::UpdateLayer(const LayerEntry& layer)
{
    std::vector<int> changed;
    bool isRenamed = false;
    for (auto [entry, last] = NumbersOf(layer.layerID); entry != last; ++entry) {
        LayerEntry& shown = m_layers[size_t(entry->number)];
        const bool differs = shown != layer;
        isRenamed = isRenamed || shown.text != layer.text;
        shown = layer;
        if (differs)
            changed.push_back(entry->number);
    }
    ReportLayers(changed);
    RefreshGroupImages(changed);
    return isRenamed;
}

bool LayerTreeModel::PlaceLayer(qint32 layerID, const QString& name)
{
    const int from = NumbersOf(layerID).first->number;
    const std::optional<int> to = PlaceByName(m_layers, from, name);
    if (!to)
        return false;
    if (*to == from)
        return true;
    beginMoveRows({}, from, from, {}, *to > from ? *to + 1 : *to);
    const auto row = m_layers.begin() + from;
    const auto place = m_layers.begin() + *to;
    place > row ? std::rotate(row, row + 1, place + 1) : std::rotate(place, row, row + 1);
    m_byLayerID.clear();
    endMoveRows();
    return true;
}

QModelIndex LayerTreeModel::InsertLayer(const LayerEntry& layer)
{
    const int row = SortedRow(m_layers, layer.text);
    beginInsertRows({}, row, row);
    m_byLayerID.clear();
    m_layers.insert(m_layers.begin() + row, layer);
    endInsertRows();
    return index(row, 0);
}

// One signal for each parent: a view looks up a changed row from the top, so one per row takes quadratic
// time.
void LayerTreeModel::ReportLayers(const std::vector<int>& numbers)
{
    for (auto first = numbers.begin(); first != numbers.end();) {
        const int group = GroupOfNumber(*first);
        auto after
            = std::find_if(first, numbers.end(), [&](int number) { return GroupOfNumber(number) != group; });
        emit dataChanged(IndexOfNumber(*first), IndexOfNumber(*std::prev(after)));
        first = after;
    }
}

void LayerTreeModel::RefreshGroupImages(const std::vector<int>& changedNumbers)
{
    int firstChanged = int(m_groups.size());
    int lastChanged = -1;
    int lastSeen = -1;
    for (int number : changedNumbers) {
        const int row = GroupOfNumber(number);
        if (std::exchange(lastSeen, row) == row)
            continue;
        GroupNode& group = m_groups[size_t(row)];
        const qint16 image = CommonQuickMode(group);
        if (std::exchange(group.image, image) == image)
            continue;
        firstChanged = std::min(firstChanged, row);
        lastChanged = row;
    }
    if (lastChanged >= 0)
        emit dataChanged(index(firstChanged, 0), index(lastChanged, 0));
}

} // namespace Orvane
