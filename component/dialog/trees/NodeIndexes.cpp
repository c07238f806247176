// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeIndexes.h"

#include "component/dialog/trees/LayerTreeModel.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>

#include <utility>

namespace Orvane {

namespace {

QModelIndex IndexIn(const QAbstractItemModel* model, const NodeReference& node)
{
    if (const auto* nodes = qobject_cast<const LayerTreeModel*>(model))
        return nodes->IndexOf(node);
    const auto* proxy = qobject_cast<const QAbstractProxyModel*>(model);
    return proxy ? proxy->mapFromSource(IndexIn(proxy->sourceModel(), node)) : QModelIndex();
}

} // namespace

NodeReference NodeIndexes::NodeAt(const QModelIndex& index)
{
    return index.data(LayerTreeModel::ReferenceRole).value<NodeReference>();
}

QModelIndex NodeIndexes::IndexOf(const QAbstractItemView& view, const NodeReference& node)
{
    return IndexIn(view.model(), node);
}

QItemSelection NodeIndexes::RowsWhere(
    const QAbstractItemModel& model, const QModelIndex& parent,
    const std::function<bool(const QModelIndex& index)>& isWanted)
{
    QItemSelection ranges;
    QModelIndex first;
    for (int row = 0, count = model.rowCount(parent); row <= count; ++row) {
        const QModelIndex index = row < count ? model.index(row, 0, parent) : QModelIndex();
        const bool wanted = index.isValid() && isWanted(index);
        if (wanted && !first.isValid())
            first = index;
        else if (!wanted && first.isValid())
            ranges.append(QItemSelectionRange(std::exchange(first, {}), model.index(row - 1, 0, parent)));
    }
    return ranges;
}

} // namespace Orvane
