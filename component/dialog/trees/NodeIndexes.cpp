// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeIndexes.h"

#include "component/dialog/trees/LayerTreeModel.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>

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

} // namespace Orvane
