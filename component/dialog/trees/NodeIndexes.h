// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeKey.h"

#include <QModelIndex>

class QAbstractItemView;

namespace Orvane {

/// Where the nodes of a LayerTreeModel stand in a view, also when proxy models between them hide or sort
/// nodes. All indexes are the view's. Nothing here raises.
namespace NodeIndexes {

/// The node at a valid index.
NodeReference NodeAt(const QModelIndex& index);

/// Where the node stands; invalid when it is not in the model, or hidden.
QModelIndex IndexOf(const QAbstractItemView& view, const NodeReference& node);

} // namespace NodeIndexes

} // namespace Orvane
