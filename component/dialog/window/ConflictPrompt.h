// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerStyleApplying.h"

#include <OrvaneShellLib/IConflictQuestion.h>

#include <QString>

#include <vector>

class QWidget;

namespace Orvane {

class PropertyPanel;
struct PanelEdits;

/// Has the host ask the user about values that were changed elsewhere; Overwrite if the host does not ask.
/// node: the name of the layer or group. The form may be destroyed while the question waits. Raises what the
/// host raises.
ConflictChoice AskAboutConflicts(
    QWidget& form, const PropertyPanel& panel, const QString& node, const PanelEdits& edits,
    const std::vector<EditConflict>& conflicts);

/// Changes the edits so that they follow the choice; Cancel changes nothing.
void FollowChoice(ConflictChoice choice, PanelEdits& edits, const std::vector<EditConflict>& conflicts);

} // namespace Orvane
