// SPDX-License-Identifier: MIT
// The commands that change single nodes.
#include "component/dialog/nodes/NodeOrder.h"
#include "component/dialog/trees/LayerTreeModel.h"

#include <algorithm>
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
    const std::vector<int> changed = m_nodes.SetModes(modes);
    ReportLayers(changed);
    RefreshGroupImages(changed);
}

void LayerTreeModel::SetLayerText(qint32 layerID, const QString& text)
{
    ReportTexts(m_nodes.SetLayerText(layerID, text));
}

void LayerTreeModel::SetLayerTexts(const QHash<qint32, QString>& texts)
{
    std::vector<int> changed;
    for (int number = 0; number < LayerCount(); ++number) {
        const auto text = texts.constFind(m_nodes.Layers()[size_t(number)].layerID);
        if (text != texts.constEnd() && m_nodes.SetText(number, *text))
            changed.push_back(number);
    }
    ReportTexts(changed);
}

void LayerTreeModel::SetGroupText(qint32 groupID, const QString& text)
{
    const int number = m_nodes.GroupWithID(groupID);
    if (number < 0 || !m_nodes.SetGroupText(number, text))
        return;
    m_finder.Forget();
    const int row = m_found.rows.RowOfGroup(number);
    if (row >= 0)
        emit dataChanged(index(row, 0), index(row, 0));
}

bool LayerTreeModel::UpdateLayer(const LayerEntry& layer)
{
    const FlatNodes::Update update = m_nodes.UpdateLayer(layer);
    if (update.isFoundOtherwise)
        m_finder.Forget();
    ReportLayers(update.changed);
    RefreshGroupImages(update.changed);
    return update.isRenamed;
}

bool LayerTreeModel::PlaceLayer(qint32 layerID, const QString& name)
{
    const int from = m_nodes.LayerAt({.isGroup = false, .groupID = 0, .layerID = layerID});
    const std::optional<int> to = PlaceByName(m_nodes.Layers(), from, name);
    if (to && *to != from)
        MoveLayer(from, *to);
    return to.has_value();
}

void LayerTreeModel::MoveLayer(int from, int to)
{
    const int row = m_found.rows.RowOfLayer(from);
    const int place = m_found.rows.PlaceAfterMove(from, to);
    const bool isMoved = row >= 0 && row != place;
    if (isMoved)
        beginMoveRows({}, row, row, {}, place > row ? place + 1 : place);
    m_nodes.Move(from, to);
    m_found.rows.Move(from, to);
    m_finder.Forget();
    if (!isMoved)
        return;
    endMoveRows();
    if (m_found.first && !m_found.holdsOther)
        m_found.first = Reference(index(0, 0));
}

QModelIndex LayerTreeModel::InsertLayer(const LayerEntry& layer)
{
    int number = m_nodes.LayerAt({.isGroup = false, .groupID = 0, .layerID = layer.layerID});
    const QModelIndex shown = IndexOfLayer(number);
    if (shown.isValid())
        return shown;
    if (number < 0) {
        number = m_nodes.Insert(layer);
        m_found.rows.MakeRoomFor(number);
        m_finder.Forget();
    }
    const int row = m_found.rows.PlaceOf(number);
    beginInsertRows({}, row, row);
    m_found.rows.Insert(number);
    endInsertRows();
    return index(row, 0);
}

void LayerTreeModel::ReportTexts(const std::vector<int>& numbers)
{
    if (!numbers.empty())
        m_finder.Forget();
    ReportLayers(numbers);
}

// One signal for each parent: a view looks up a changed row from the top, so one per row takes quadratic
// time.
void LayerTreeModel::ReportLayers(const std::vector<int>& numbers)
{
    for (auto next = numbers.begin(); next != numbers.end();) {
        const int group = m_nodes.GroupOf(*next);
        QModelIndex first;
        QModelIndex last;
        for (; next != numbers.end() && m_nodes.GroupOf(*next) == group; ++next) {
            const QModelIndex shown = IndexOfLayer(*next);
            first = first.isValid() ? first : shown;
            last = shown.isValid() ? shown : last;
        }
        if (first.isValid())
            emit dataChanged(first, last);
    }
}

void LayerTreeModel::RefreshGroupImages(const std::vector<int>& changedNumbers)
{
    int firstRow = -1;
    int lastRow = -1;
    int lastSeen = -1;
    for (int number : changedNumbers) {
        const int group = m_nodes.GroupOf(number);
        if (std::exchange(lastSeen, group) == group || !m_nodes.RefreshImage(group))
            continue;
        const int row = m_found.rows.RowOfGroup(group);
        firstRow = firstRow < 0 ? row : firstRow;
        lastRow = std::max(lastRow, row);
    }
    if (lastRow >= 0)
        emit dataChanged(index(firstRow, 0), index(lastRow, 0));
}

} // namespace Orvane
