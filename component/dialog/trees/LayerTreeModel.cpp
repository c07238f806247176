// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreeModel.h"

#include "component/dialog/trees/NodeData.h"

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

// An index holds the row of its parent group plus one; 0 means the top level.
constexpr quintptr TopLevel = 0;

constexpr quintptr ChildOf(int groupRow)
{
    return quintptr(groupRow) + 1;
}

constexpr int ParentRow(quintptr id)
{
    return int(id) - 1;
}

} // namespace

void LayerTreeModel::SetGroups(std::vector<GroupEntry> groups)
{
    beginResetModel();
    m_nodes.SetGroups(std::move(groups));
    m_finder.Forget();
    m_found = m_finder.Find(m_nodes, m_words, m_kept.Nodes());
    endResetModel();
}

void LayerTreeModel::SetLayers(std::vector<LayerEntry> layers)
{
    beginResetModel();
    m_nodes.SetLayers(std::move(layers));
    m_finder.Forget();
    m_found = m_finder.Find(m_nodes, m_words, m_kept.Nodes());
    endResetModel();
}

void LayerTreeModel::Find(const FindWords& words)
{
    beginResetModel();
    m_words = words;
    m_found = m_finder.Find(m_nodes, m_words, m_kept.Nodes());
    if (m_words.IsEmpty())
        m_finder.Forget();
    endResetModel();
}

bool LayerTreeModel::Has(const NodeReference& node) const
{
    return (node.isGroup ? m_nodes.GroupWithID(node.groupID) : m_nodes.LayerAt(node)) >= 0;
}

NodeReference LayerTreeModel::Reference(const QModelIndex& index) const
{
    return IsGroup(index) ? m_nodes.GroupReference(NumberOf(index)) : m_nodes.LayerReference(NumberOf(index));
}

QModelIndex LayerTreeModel::IndexOf(const NodeReference& node) const
{
    if (!node.isGroup)
        return IndexOfLayer(m_nodes.LayerAt(node));
    const int row = m_found.rows.RowOfGroup(m_nodes.GroupWithID(node.groupID));
    return row < 0 ? QModelIndex() : createIndex(row, 0, TopLevel);
}

QSet<qint32> LayerTreeModel::LayersAmong(const QSet<qint32>& layerIDs) const
{
    QSet<qint32> listed;
    for (const LayerEntry& layer : m_nodes.Layers()) {
        if (layerIDs.contains(layer.layerID))
            listed.insert(layer.layerID);
    }
    return listed;
}

std::vector<qint32> LayerTreeModel::LayerIDsOf(qint32 groupID) const
{
    std::vector<qint32> layerIDs;
    const int number = m_nodes.GroupWithID(groupID);
    if (number < 0)
        return layerIDs;
    const FlatNodes::Group& group = m_nodes.Groups()[size_t(number)];
    layerIDs.reserve(size_t(group.layerCount));
    for (int layer = group.firstLayer; layer < group.firstLayer + group.layerCount; ++layer)
        layerIDs.push_back(m_nodes.Layers()[size_t(layer)].layerID);
    return layerIDs;
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
    return createIndex(ParentRow(child.internalId()), 0, TopLevel);
}

int LayerTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return HasGroups() ? m_found.rows.GroupCount() : m_found.rows.LayerCount();
    return parent.column() == 0 && IsGroup(parent) ? m_found.rows.LayerCount(parent.row()) : 0;
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
    return index.internalId() == TopLevel && HasGroups();
}

int LayerTreeModel::NumberOf(const QModelIndex& index) const
{
    if (IsGroup(index))
        return m_found.rows.GroupAt(index.row());
    if (index.internalId() == TopLevel)
        return m_found.rows.LayerAt(index.row());
    return m_found.rows.LayerAt(ParentRow(index.internalId()), index.row());
}

QModelIndex LayerTreeModel::IndexOfLayer(int number) const
{
    if (!HasGroups()) {
        const int row = m_found.rows.RowOfLayer(number);
        return row < 0 ? QModelIndex() : createIndex(row, 0, TopLevel);
    }
    const int groupRow = m_found.rows.RowOfGroup(m_nodes.GroupOf(number));
    const int row = groupRow < 0 ? -1 : m_found.rows.RowOfLayer(number, groupRow);
    return row < 0 ? QModelIndex() : createIndex(row, 0, ChildOf(groupRow));
}

const QString& LayerTreeModel::TextAt(const QModelIndex& index) const
{
    const auto number = size_t(NumberOf(index));
    return IsGroup(index) ? m_nodes.Groups()[number].text : m_nodes.Layers()[number].text;
}

bool LayerTreeModel::IsFaulty(const QModelIndex& index) const
{
    const auto number = size_t(NumberOf(index));
    return IsGroup(index) ? m_nodes.Groups()[number].faulty : m_nodes.Layers()[number].faulty;
}

} // namespace Orvane
