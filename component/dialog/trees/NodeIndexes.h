// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"

#include <QItemSelection>
#include <QModelIndex>

#include <functional>

class QAbstractItemView;

namespace Orvane {

/// The indexes of LayerTreeModel nodes in a view, even if proxy models in between hide or sort nodes. All
/// indexes are the view's. Nothing here raises.
namespace NodeIndexes {

/// The node at a valid index.
NodeReference NodeAt(const QModelIndex& index);

/// The index of the node; invalid if it is not in the model, or hidden.
QModelIndex IndexOf(const QAbstractItemView& view, const NodeReference& node);

/// The rows under parent for which isWanted returns true, neighbours in one range.
QItemSelection RowsWhere(
    const QAbstractItemModel& model, const QModelIndex& parent,
    const std::function<bool(const QModelIndex& index)>& isWanted);

} // namespace NodeIndexes

} // namespace Orvane
