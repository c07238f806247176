// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>

#include <vector>

class QMenu;
class QTreeView;

namespace Orvane::Testing {

class SessionFixture;

/// The view of the list that the user sees; not in the Schemes tab.
QTreeView& ShownTree(SessionFixture& session);
/// The nodes of a list that are not folded away, from top to bottom.
std::vector<QModelIndex> VisibleNodes(const QTreeView& tree);
/// Opens the menu of the list shown with a key; nullptr if none has opened.
QMenu* OpenNodeMenu(SessionFixture& session);

} // namespace Orvane::Testing
