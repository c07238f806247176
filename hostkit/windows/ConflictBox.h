// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IConflictQuestion.h>

#include <QString>

#include <vector>

class QWidget;

namespace Orvane {

/// Asks the user what becomes of values that were changed elsewhere, and names each with both values. owner:
/// the window to show the question in front of; nullptr for none. Escape means Cancel, also when the owner is
/// destroyed.
ConflictChoice
AskInConflictBox(QWidget* owner, const QString& node, const std::vector<ConflictingEdit>& edits);

} // namespace Orvane
