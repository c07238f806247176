// SPDX-License-Identifier: MIT
#include "component/dialog/window/SelectionEditor.h"

#include "component/common/Component.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "component/dialog/trees/ColumnErrorTexts.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/dialog/trees/NodeStore.h"
#include "component/dialog/window/ApplyEdits.h"
#include "component/dialog/window/ConflictPrompt.h"
#include "component/dialog/window/LayerCommands.h"
#include "component/dialog/window/PendingChangesPrompt.h"
#include "component/dialog/window/QuickModeToolbar.h"
#include "component/model/LayerCode.h"
#include "component/model/LayerCursors.h"
#include "messages/NameInText.h"
#include "ovctrls/BusyPointer.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerValues.h>

#include <QPointer>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

qint16 CommonMode(const std::vector<LayerMode>& modes)
{
    const bool isCommon = std::all_of(modes.begin(), modes.end(), [&](const LayerMode& mode) {
        return mode.quickMode == modes.front().quickMode;
    });
    return isCommon && !modes.empty() ? modes.front().quickMode : QuickMode::Various;
}

} // namespace

SelectionEditor::SelectionEditor(QWidget& form, const Parts& parts) : m_form(form), m_parts(parts)
{
    const auto markModified = [this] { SetModified(true); };
    connect(&parts.panel, &PropertyPanel::Edited, this, markModified);
    connect(&parts.quickModes, &QuickModeToolbar::Edited, this, markModified);
    connect(&parts.commands, &LayerCommands::CodeEdited, this, [this](QWidget* label) {
        m_parts.panel.MarkControlChanged(label, true);
    });
    connect(&parts.commands, &LayerCommands::CodeEditDropped, this, [this](QWidget* label) {
        m_parts.panel.MarkControlChanged(label, false);
    });
}

void SelectionEditor::SetModified(bool modified)
{
    m_modified = modified;
    emit ModifiedChanged(modified);
}

void SelectionEditor::Load()
{
    Selection selection;
    try {
        selection = Read(m_parts.trees.CurrentNode());
    } catch (...) {
        ShowNothing();
        throw;
    }
    ShowOrNothing(selection);
}

void SelectionEditor::Cancel()
{
    ShowOrNothing(Read(m_parts.trees.CurrentNode()));
}

void SelectionEditor::ShowOrNothing(const Selection& selection)
{
    std::optional<PropertyPanel::Fault> unshown;
    try {
        unshown = Show(selection);
    } catch (...) {
        ShowNothing();
        throw;
    }
    ReportFault(selection, unshown);
}

void SelectionEditor::CoverUp()
{
    m_parts.quickModes.ShowMode(m_current ? m_current->image : QuickMode::Various);
    m_parts.quickModes.SetEnabled(false);
    m_parts.commands.DropCodeEdit();
    emit Shown(m_current.has_value());
    SetModified(false);
}

void SelectionEditor::ShowNothing()
{
    Show(Selection());
}

// Does everything that may fail in the host before the first control changes.
SelectionEditor::Selection SelectionEditor::Read(const std::optional<NodeReference>& node)
{
    const BusyPointer busy;
    Selection selection{.node = node, .record = {}, .reading = {}};
    if (node && node->isGroup) {
        selection.reading = LoadGroupStyle(Client(), node->groupID, selection.record);
        selection.node->image = CommonMode(selection.reading.modes);
    } else if (node) {
        selection.reading = LoadLayerStyle(Client(), node->layerID, selection.record);
        selection.isSystemLayer = IsSystemLayer(Client(), node->layerID);
        if (!selection.reading.modes.empty())
            selection.node->image = selection.reading.modes.front().quickMode;
    }
    return selection;
}

void SelectionEditor::Keep(const Selection& selection)
{
    m_current = selection.node;
    const qint16 mode = selection.node ? selection.node->image : QuickMode::Various;
    m_origin = {selection.record, mode, selection.reading.seen};
    m_parts.trees.SetLayerImages(selection.reading.modes);
}

// What was changed elsewhere after the user had edited it must still be found by the next apply.
void SelectionEditor::KeepOriginOfEdits(const Origin& before)
{
    bool isOlder = false;
    for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot) {
        const Value was = before.style.lsGet(slot);
        if (!IsEdited(slot) || m_origin.style.Compare(slot, was))
            continue;
        m_origin.style.lsSet(slot, was);
        isOlder = true;
    }
    if (m_parts.quickModes.IsEdited() && m_origin.mode != before.mode) {
        m_origin.mode = before.mode;
        isOlder = true;
    }
    for (SeenLayer& layer : m_origin.seen)
        layer.fingerprint = isOlder ? 0 : layer.fingerprint; // then its values are compared
}

bool SelectionEditor::IsEdited(qint16 slot) const
{
    return slot == Slot::Code ? m_parts.commands.IsCodeEdited() : m_parts.panel.IsEdited(slot);
}

std::optional<PropertyPanel::Fault> SelectionEditor::Show(const Selection& selection)
{
    const std::optional<NodeReference>& node = selection.node;
    Keep(selection);
    std::optional<PropertyPanel::Fault> unshown = m_parts.panel.Show(selection.record);
    m_parts.quickModes.ShowMode(node ? node->image : QuickMode::Various);
    m_parts.quickModes.SetEnabled(node && m_tab != ListTab::Schemes);
    m_parts.commands.Show(node, selection.record, selection.isSystemLayer);
    emit Shown(node.has_value());
    SetModified(false);
    return unshown;
}

void SelectionEditor::Follow()
{
    if (!m_modified || !HoldsCurrentNode()) {
        Load();
        return;
    }
    const Selection selection = Read(m_parts.trees.CurrentNode());
    const Origin before = m_origin;
    Keep(selection);
    KeepOriginOfEdits(before);
    const auto unshown = m_parts.panel.Follow(selection.record);
    m_parts.quickModes.FollowMode(selection.node->image);
    m_parts.commands.Follow(selection.node, selection.record, selection.isSystemLayer);
    ReportFault(selection, unshown);
}

bool SelectionEditor::HasLayerOf(const QSet<qint32>& layerIDs) const
{
    return std::any_of(m_origin.seen.begin(), m_origin.seen.end(), [&](const SeenLayer& layer) {
        return layerIDs.contains(layer.layerID);
    });
}

// The same fault is reported once while the node is shown: applying another property must not repeat it.
void SelectionEditor::ReportFault(
    const Selection& selection, const std::optional<PropertyPanel::Fault>& unshown)
{
    std::optional<ColumnError> fault = selection.reading.fault;
    if (!fault && unshown)
        fault.emplace(unshown->error, m_parts.trees.CurrentText(), ColumnOf(unshown->slot), unshown->value);
    const QString text = fault ? TextOf(*fault) : QString();
    if (std::exchange(m_reportedFault, text) != text && fault)
        throw RunTimeError(fault->Number(), text, fault->Source());
}

PanelEdits SelectionEditor::ReadEdits() const
{
    PanelEdits edits;
    m_parts.panel.ReadEdits(edits.style);
    edits.quickMode = m_parts.quickModes.ReadMode();
    edits.selectedStyle = m_parts.selectedStyle;
    edits.asRead = m_origin.style;
    edits.modeAsRead = m_origin.mode;
    edits.seen = m_origin.seen;
    edits.codeText = m_parts.commands.CodeToStore();
    edits.isCodeEdited = m_parts.commands.IsCodeEdited();
    if (edits.isCodeEdited)
        edits.style.lsSet(Slot::Code, LeadingNumber(m_parts.commands.CodeText()));
    return edits;
}

bool SelectionEditor::HoldsCurrentNode() const
{
    const std::optional<NodeReference> node = m_parts.trees.CurrentNode();
    return node && m_current && IsSameNode(*node, *m_current);
}

bool SelectionEditor::Apply()
{
    if (!m_modified || !HoldsCurrentNode())
        return true;
    const QPointer<SelectionEditor> self(this);
    PanelEdits edits = ReadEdits();
    AppliedEdits applied = Write(edits);
    while (applied.outcome == ApplyOutcome::Conflicts) {
        const ConflictChoice choice
            = AskAboutConflicts(m_form, m_parts.panel, m_parts.trees.CurrentText(), edits, applied.conflicts);
        if (!self || choice == ConflictChoice::Cancel)
            return false;
        FollowChoice(choice, edits, applied.conflicts);
        applied = Write(edits);
    }
    Finish(applied.outcome);
    return true;
}

AppliedEdits SelectionEditor::Write(const PanelEdits& edits)
{
    m_modified = false;
    try {
        const BusyPointer busy;
        AppliedEdits applied = WithColumnTexts([&] { return ApplyEdits(m_parts.trees, *m_current, edits); });
        m_modified = applied.outcome == ApplyOutcome::Conflicts || applied.outcome == ApplyOutcome::Gone;
        return applied;
    } catch (...) {
        m_modified = true;
        throw;
    }
}

void SelectionEditor::Finish(ApplyOutcome outcome)
{
    if (outcome == ApplyOutcome::Gone) {
        ReportGoneNode();
        return;
    }
    Load();
    if (outcome == ApplyOutcome::UnexpectedMode)
        ShowMessageBox(&m_form, TranslateMsg("Unexpected program flow in frmLayerStyles"), BoxStyle::Ok);
}

void SelectionEditor::ReportGoneNode()
{
    const QString kind = m_current->isGroup ? TranslateMsg("group") : TranslateMsg("layer");
    const QString name = NameInQuestion(m_parts.trees.CurrentText());
    const bool isEmptyGroup = m_current->isGroup && NodeExists(Client(), *m_current);
    const QString text = isEmptyGroup
        ? TranslateMsg("The group '^1' no longer has any layers. The changes were not applied.", name)
        : TranslateMsg("The ^1 '^2' no longer exists. The changes were not applied.", kind, name);
    ShowMessageBox(&m_form, text, BoxStyle::OkExclamation);
}

bool SelectionEditor::ConfirmPendingChanges()
{
    if (!m_modified || !HoldsCurrentNode())
        return true;
    const QPointer<SelectionEditor> self(this);
    switch (AskToApply(&m_form, m_current->isGroup, m_parts.trees.CurrentText())) {
    case PendingChangesAnswer::Yes:
        if (!Apply() && self) // the node stays, and with it the edits
            throw RunTimeError(ErrorNumber::DatabaseFailure, TranslateMsg("The changes were not applied."));
        break;
    case PendingChangesAnswer::No:
        break;
    case PendingChangesAnswer::Cancel:
        Cancel();
        break;
    }
    return self;
}

} // namespace Orvane
