// SPDX-License-Identifier: MIT
#pragma once

#include <QItemSelection>

class QTreeView;

namespace Orvane {

/// What menu and keys do to the selection of a tree that shows a LayerTreeModel. Nothing here raises.
namespace ChoosingCommands {

/// Selects ranges instead of what is selected, and makes current the view's current node, without scrolling
/// to it.
void Select(QTreeView& view, const QItemSelection& ranges, const QModelIndex& current);

/// Selects all groups, or all layers of a flat list; during a find, the layers that it shows.
void SelectAll(QTreeView& view);
/// Selects all layers under the current node's group, which it expands; nothing without a group.
void SelectAllInGroup(QTreeView& view);
/// Selects the layers that were not selected, themselves or with a group. A group of which no layer was
/// selected is itself selected then, but not during a find. Does nothing if all layers were selected.
void InvertSelection(QTreeView& view);

} // namespace ChoosingCommands

} // namespace Orvane
