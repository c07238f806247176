// SPDX-License-Identifier: MIT
#include "component/dialog/showing/NodeMenu.h"

#include "component/common/EventGuard.h"

#include <QMenu>

namespace Orvane {

QAction* AddNodeEntry(QMenu& menu, const NodeMenuEntry& entry, QObject* context, QWidget* owner)
{
    QAction* action
        = menu.addAction(entry.text, context, [act = entry.act, context, owner = QPointer<QWidget>(owner)] {
              GuardAfterEvent(context, owner, act);
          });
    action->setEnabled(entry.whyNot.isEmpty());
    if (!entry.whyNot.isEmpty()) {
        action->setToolTip(entry.whyNot);
        action->setWhatsThis(entry.whyNot); // what screen readers tell of a menu's entry
    }
    return action;
}

} // namespace Orvane
