// SPDX-License-Identifier: MIT
#include "component/dialog/session/ListUser.h"

#include "component/dialog/session/SessionFixture.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace Orvane::Testing {

QTreeView& ShownTree(SessionFixture& session)
{
    return session.Tree(session.ShownList());
}

std::vector<QModelIndex> VisibleNodes(const QTreeView& tree)
{
    std::vector<QModelIndex> nodes;
    for (QModelIndex index = tree.model()->index(0, 0); index.isValid(); index = tree.indexBelow(index))
        nodes.push_back(index);
    return nodes;
}

QMenu* OpenNodeMenu(SessionFixture& session)
{
    QTreeView& tree = ShownTree(session);
    session.Settle(); // the activation of a window that has just opened would close the menu
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, tree.mapToGlobal(tree.rect().center()));
    QApplication::sendEvent(&tree, &event);
    session.Settle();
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

} // namespace Orvane::Testing
