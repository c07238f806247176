// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

class QString;
class QWidget;

namespace Orvane {

/// What to do with edits that would be lost when another node is shown.
enum class PendingChangesAnswer {
    Yes, ///< apply them
    No, ///< do nothing: they stay in the controls
    Cancel, ///< drop them; the box has no button for it
};

/// Asks whether to apply the edits of a node of that kind and text. Closing the box means No.
PendingChangesAnswer AskToApply(QWidget* owner, bool isGroup, const QString& nodeText);
/// The same for several chosen nodes with that many layers.
PendingChangesAnswer AskToApplyToMany(QWidget* owner, qsizetype layers);

} // namespace Orvane
