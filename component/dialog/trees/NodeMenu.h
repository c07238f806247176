// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QAction;
class QMenu;
class QObject;
class QWidget;

namespace Orvane {

/// An entry of the nodes' menu that may be impossible now.
struct NodeMenuEntry {
    QString text; ///< translated
    QString whyNot; ///< why it is disabled, translated; empty: it is enabled
    std::function<void()> act;
};

/// Adds the entry at the end. It acts after the event that chose it; what it raises is shown to the user.
/// context: it does not act without it. owner: the owner of message boxes.
QAction* AddNodeEntry(QMenu& menu, const NodeMenuEntry& entry, QObject* context, QWidget* owner);

/// Disables the entry for a reason, which its tool tip tells, or enables it without one.
void SetWhyNot(QAction& entry, const QString& whyNot);

} // namespace Orvane
