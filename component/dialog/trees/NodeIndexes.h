// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeKey.h"

#include <QModelIndex>

class QAbstractItemView;

namespace Orvane {

/// The indexes of LayerTreeModel nodes in a view, even if proxy models in between hide or sort nodes. All
/// indexes are the view's. Nothing here raises.
namespace NodeIndexes {

/// The node at a valid index.
NodeReference NodeAt(const QModelIndex& index);

/// The index of the node; invalid if it is not in the model, or hidden.
QModelIndex IndexOf(const QAbstractItemView& view, const NodeReference& node);

} // namespace NodeIndexes

} // namespace Orvane
