// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreeModel.h"

#include "component/dialog/trees/NodeData.h"

#include <OrvaneShellLib/LayerValues.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Orvane {

namespace {

// An index holds the number of its parent group plus one; 0 means the top level.
constexpr quintptr TopLevel = 0;

constexpr quintptr ChildOf(int groupNumber)
{
    return quintptr(groupNumber) + 1;
}

constexpr int ParentNumber(quintptr id)
{
    return int(id) - 1;
}

} // namespace

void LayerTreeModel::SetGroups(std::vector<GroupEntry> groups)
{
    beginResetModel();
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
    endResetModel();
}

void LayerTreeModel::SetLayers(std::vector<LayerEntry> layers)
{
    beginResetModel();
    m_byLayerID.clear();
    m_groups.clear();
    m_layers = std::move(layers);
    endResetModel();
}

NodeReference LayerTreeModel::Reference(const QModelIndex& index) const
{
    if (IsGroup(index)) {
        const GroupNode& group = m_groups[size_t(index.row())];
        return {.isGroup = true, .groupID = group.groupID, .layerID = 0, .image = group.image};
    }
    const LayerEntry& layer = m_layers[size_t(NumberOf(index))];
    const bool flat = index.internalId() == TopLevel;
    const qint32 groupID = flat ? 0 : m_groups[size_t(ParentNumber(index.internalId()))].groupID;
    return {.isGroup = false, .groupID = groupID, .layerID = layer.layerID, .image = layer.quickMode};
}

QModelIndex LayerTreeModel::IndexOf(const NodeReference& node) const
{
    if (!node.isGroup)
        return IndexOfLayer(node);
    const auto found = std::find_if(m_groups.begin(), m_groups.end(), [&](const GroupNode& group) {
        return group.groupID == node.groupID;
    });
    return found == m_groups.end() ? QModelIndex() : index(int(found - m_groups.begin()), 0);
}

QModelIndex LayerTreeModel::IndexOfLayer(const NodeReference& node) const
{
    for (auto [entry, last] = NumbersOf(node.layerID); entry != last; ++entry) {
        const QModelIndex index = IndexOfNumber(entry->number);
        if (IsSameNode(Reference(index), node))
            return index;
    }
    return {};
}

bool LayerTreeModel::Lists(qint32 layerID) const
{
    const auto [first, last] = NumbersOf(layerID);
    return first != last;
}

QSet<qint32> LayerTreeModel::LayersAmong(const QSet<qint32>& layerIDs) const
{
    QSet<qint32> listed;
    for (const LayerEntry& layer : m_layers) {
        if (layerIDs.contains(layer.layerID))
            listed.insert(layer.layerID);
    }
    return listed;
}

QModelIndex LayerTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? ChildOf(parent.row()) : TopLevel);
}

QModelIndex LayerTreeModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || child.internalId() == TopLevel)
        return {};
    return createIndex(ParentNumber(child.internalId()), 0, TopLevel);
}

int LayerTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return int(m_groups.empty() ? m_layers.size() : m_groups.size());
    return parent.column() == 0 && IsGroup(parent) ? m_groups[size_t(parent.row())].layerCount : 0;
}

int LayerTreeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

Qt::ItemFlags LayerTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags all = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
    return IsGroup(index) ? all : all | Qt::ItemNeverHasChildren;
}

QVariant LayerTreeModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return TextAt(index);
    case Qt::ToolTipRole:
        return NodeToolTip(TextAt(index), Reference(index), IsFaulty(index));
    case Qt::AccessibleDescriptionRole:
        return QuickModeText(Reference(index).image);
    default:
        return role < NodeKeyRole ? QVariant() : NodeData(Reference(index), role);
    }
}

QHash<int, QByteArray> LayerTreeModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractItemModel::roleNames();
    names.insert(NodeKeyRole, "nodeKey");
    names.insert(ImageKeyRole, "imageKey");
    names.insert(ReferenceRole, "reference");
    names.insert(IsGroupRole, "isGroup");
    names.insert(GroupIDRole, "groupID");
    names.insert(LayerIDRole, "layerID");
    names.insert(QuickModeRole, "quickMode");
    return names;
}

bool LayerTreeModel::IsGroup(const QModelIndex& index) const
{
    return index.internalId() == TopLevel && !m_groups.empty();
}

int LayerTreeModel::NumberOf(const QModelIndex& layerIndex) const
{
    if (layerIndex.internalId() == TopLevel)
        return layerIndex.row();
    return m_groups[size_t(ParentNumber(layerIndex.internalId()))].firstLayer + layerIndex.row();
}

int LayerTreeModel::GroupOfNumber(int number) const
{
    const auto after
        = std::upper_bound(m_groups.begin(), m_groups.end(), number, [](int wanted, const GroupNode& group) {
              return wanted < group.firstLayer;
          });
    return int(after - m_groups.begin()) - 1;
}

QModelIndex LayerTreeModel::IndexOfNumber(int number) const
{
    if (m_groups.empty())
        return createIndex(number, 0, TopLevel);
    const int group = GroupOfNumber(number);
    return createIndex(number - m_groups[size_t(group)].firstLayer, 0, ChildOf(group));
}

const QString& LayerTreeModel::TextAt(const QModelIndex& index) const
{
    return IsGroup(index) ? m_groups[size_t(index.row())].text : m_layers[size_t(NumberOf(index))].text;
}

bool LayerTreeModel::IsFaulty(const QModelIndex& index) const
{
    return IsGroup(index) ? m_groups[size_t(index.row())].faulty : m_layers[size_t(NumberOf(index))].faulty;
}

const std::vector<LayerTreeModel::LayerNumber>& LayerTreeModel::ByLayerID() const
{
    if (m_byLayerID.size() == m_layers.size())
        return m_byLayerID;
    m_byLayerID.resize(m_layers.size());
    for (size_t number = 0; number < m_layers.size(); ++number)
        m_byLayerID[number] = {m_layers[number].layerID, int(number)};
    std::sort(m_byLayerID.begin(), m_byLayerID.end(), [](const LayerNumber& left, const LayerNumber& right) {
        return std::pair(left.layerID, left.number) < std::pair(right.layerID, right.number);
    });
    return m_byLayerID;
}

std::pair<LayerTreeModel::LayerNumbers, LayerTreeModel::LayerNumbers>
LayerTreeModel::NumbersOf(qint32 layerID) const
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

qint16 LayerTreeModel::CommonQuickMode(const GroupNode& group) const
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
