// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeMenu.h"

#include "component/common/EventGuard.h"

#include <QMenu>

namespace Orvane {

QAction* AddNodeEntry(QMenu& menu, const NodeMenuEntry& entry, QObject* context, QWidget* owner)
{
    QAction* action
        = menu.addAction(entry.text, context, [act = entry.act, context, owner = QPointer<QWidget>(owner)] {
              GuardAfterEvent(context, owner, act);
          });
    SetWhyNot(*action, entry.whyNot);
    return action;
}

void SetWhyNot(QAction& entry, const QString& whyNot)
{
    entry.setEnabled(whyNot.isEmpty());
    if (whyNot.isEmpty())
        return;
    entry.setToolTip(whyNot);
    entry.setWhatsThis(whyNot); // what screen readers tell of a menu's entry
}

} // namespace Orvane
