// SPDX-License-Identifier: MIT
#include "component/dialog/window/ConflictPrompt.h"

#include "component/common/HostInterface.h"
#include "component/common/Messages.h"
#include "component/dialog/panel/PropertyPanel.h"
#include "component/dialog/panel/PropertyTexts.h"
#include "component/dialog/trees/NodeData.h"
#include "component/dialog/window/ApplyEdits.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

ConflictingEdit ModeConflict(const PanelEdits& edits, const EditConflict& conflict)
{
    return {
        TranslateMsg("Display mode"), QuickModeText(edits.quickMode), QuickModeText(ToInt16(conflict.stored)),
        conflict.layers};
}

ConflictingEdit CodeConflict(const PanelEdits& edits, const EditConflict& conflict)
{
    return {TranslateMsg("Code"), edits.codeText.value_or(QString()), ToTextOrNone(conflict.stored), 1};
}

ConflictingEdit Described(const PropertyPanel& panel, const PanelEdits& edits, const EditConflict& conflict)
{
    if (conflict.slot == EditConflict::Mode)
        return ModeConflict(edits, conflict);
    if (conflict.slot == Slot::Code)
        return CodeConflict(edits, conflict);
    const SlotControl entry = panel.ControlOf(conflict.slot).value();
    return {
        PropertyName(entry), PropertyText(entry, edits.style.lsGet(conflict.slot)),
        PropertyText(entry, conflict.stored), conflict.layers};
}

} // namespace

ConflictChoice AskAboutConflicts(
    QWidget& form, const PropertyPanel& panel, const QString& node, const PanelEdits& edits,
    const std::vector<EditConflict>& conflicts)
{
    auto* question = HostInterface<IConflictQuestion>();
    if (!question)
        return ConflictChoice::Overwrite;
    std::vector<ConflictingEdit> described;
    described.reserve(conflicts.size());
    for (const EditConflict& conflict : conflicts)
        described.push_back(Described(panel, edits, conflict));
    return question->AskAboutConflicts(&form, node, described);
}

void FollowChoice(ConflictChoice choice, PanelEdits& edits, const std::vector<EditConflict>& conflicts)
{
    edits.overwrites = choice == ConflictChoice::Overwrite;
    if (choice != ConflictChoice::KeepStored)
        return;
    for (const EditConflict& conflict : conflicts) {
        if (conflict.slot == EditConflict::Mode)
            edits.quickMode = QuickMode::Various;
        else
            edits.style.lsSet(conflict.slot, Value::Null());
        if (conflict.slot == Slot::Code)
            edits.codeText.reset();
    }
}

} // namespace Orvane
