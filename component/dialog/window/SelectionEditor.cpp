// SPDX-License-Identifier: MIT
#include "component/dialog/window/SelectionEditor.h"

#include "component/common/Component.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "component/dialog/showing/ChosenLayers.h"
#include "component/dialog/trees/ColumnErrorTexts.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/dialog/trees/NodeStore.h"
#include "component/dialog/window/ApplyEdits.h"
#include "component/dialog/window/ConflictPrompt.h"
#include "component/dialog/window/LayerCommands.h"
#include "component/dialog/window/PendingChangesPrompt.h"
#include "component/dialog/window/QuickModeToolbar.h"
#include "component/model/CommonMode.h"
#include "component/model/LayerCode.h"
#include "component/model/LayerCursors.h"
#include "messages/NameInText.h"
#include "ovctrls/BusyPointer.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/Transaction.h>

#include <QLocale>
#include <QPointer>
#include <QScopeGuard>
#include <QWidget>

#include <utility>

namespace Orvane {

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
        selection = Read();
    } catch (...) {
        ShowNothing();
        throw;
    }
    ShowOrNothing(selection);
}

void SelectionEditor::Cancel()
{
    ShowOrNothing(Read());
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
    m_parts.quickModes.ShowMode(m_shown.target.node ? m_shown.target.node->image : QuickMode::Various);
    m_parts.quickModes.SetEnabled(false);
    m_parts.commands.DropCodeEdit();
    emit Shown(m_shown.target.node.has_value());
    SetModified(false);
}

void SelectionEditor::ShowNothing()
{
    Show(Selection());
}

// Does everything that may fail in the host before the first control changes.
SelectionEditor::Selection SelectionEditor::Read() const
{
    const BusyPointer busy;
    Selection selection;
    selection.target = {m_parts.trees.CurrentNode(), m_parts.trees.ChosenNodes(), {}};
    if (selection.target.nodes.IsMany())
        ReadMany(selection);
    else if (selection.target.node)
        ReadOne(selection);
    return selection;
}

void SelectionEditor::ReadOne(Selection& selection)
{
    NodeReference& node = *selection.target.node;
    if (node.isGroup) {
        selection.reading = LoadGroupStyle(Client(), node.groupID, selection.record);
        node.image = CommonMode(selection.reading.modes);
        return;
    }
    selection.reading = LoadLayerStyle(Client(), node.layerID, selection.record);
    selection.isSystemLayer = IsSystemLayer(Client(), node.layerID);
    if (!selection.reading.modes.empty())
        node.image = selection.reading.modes.front().quickMode;
}

void SelectionEditor::ReadMany(Selection& selection)
{
    Target& target = selection.target;
    Transaction transaction(Client().GetDatabase());
    target.layerIDs = ReadLayerIDs(Client(), target.nodes);
    selection.reading = LoadLayersStyle(Client(), target.layerIDs, selection.record);
    transaction.Commit();
    target.node = target.nodes.Current();
    target.node->image = CommonMode(selection.reading.modes);
}

void SelectionEditor::Keep(const Selection& selection)
{
    m_shown = selection;
    const qint16 mode = m_shown.target.node ? m_shown.target.node->image : QuickMode::Various;
    m_origin = {selection.record, mode, selection.reading.seen};
    m_parts.trees.SetLayerImages(selection.reading.modes);
}

bool SelectionEditor::IsEdited(qint16 slot) const
{
    return slot == Slot::Code ? m_parts.commands.IsCodeEdited() : m_parts.panel.IsEdited(slot);
}

std::optional<PropertyPanel::Fault> SelectionEditor::Show(const Selection& selection)
{
    const std::optional<NodeReference>& node = selection.target.node;
    Keep(selection);
    std::optional<PropertyPanel::Fault> unshown = m_parts.panel.Show(selection.record);
    m_parts.quickModes.ShowMode(node ? node->image : QuickMode::Various);
    m_parts.quickModes.SetEnabled(node && m_tab != ListTab::Schemes);
    ShowCommands(selection);
    emit Shown(node.has_value());
    SetModified(false);
    return unshown;
}

void SelectionEditor::ShowCommands(const Selection& selection)
{
    const Target& target = selection.target;
    if (!target.nodes.IsMany()) {
        m_parts.commands.Show(target.node, selection.record, selection.isSystemLayer);
        return;
    }
    const bool hasGroups = target.nodes.Nodes().back().isGroup; // they come last
    m_parts.commands.ShowMany(hasGroups ? std::vector<qint32>() : target.layerIDs, selection.record);
}

// The same fault is reported once while the node is shown: applying another property must not repeat it.
void SelectionEditor::ReportFault(
    const Selection& selection, const std::optional<PropertyPanel::Fault>& unshown)
{
    std::optional<ColumnError> fault = selection.reading.fault;
    if (!fault && unshown)
        fault.emplace(unshown->error, NameOfShown(), ColumnOf(unshown->slot), unshown->value);
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

bool SelectionEditor::HoldsChosenNodes() const
{
    const NodeSelection& chosen = m_parts.trees.ChosenNodes();
    if (IsMany())
        return !chosen.IsEmpty() && m_shown.target.nodes.HoldsAllOf(chosen);
    const std::optional<NodeReference> node = m_parts.trees.CurrentNode();
    return node && m_shown.target.node && IsSameNode(*node, *m_shown.target.node) && !chosen.IsMany();
}

std::vector<qint32> SelectionEditor::LayerIDs() const
{
    std::vector<qint32> layerIDs;
    layerIDs.reserve(m_origin.seen.size());
    for (const SeenLayer& layer : m_origin.seen)
        layerIDs.push_back(layer.layerID);
    return layerIDs;
}

bool SelectionEditor::HasExistingLayer() const
{
    return AnyLayerExists(Client(), LayerIDs());
}

QString SelectionEditor::NameOfShown() const
{
    return IsMany() ? NameOfLayers(Layers()) : m_parts.trees.CurrentText();
}

std::optional<SelectionEditor::ShownSettings> SelectionEditor::Settings() const
{
    if (!HoldsChosenNodes())
        return std::nullopt;
    return ShownSettings{NameOfShown(), m_shown.record, m_shown.target.node->image};
}

bool SelectionEditor::Apply()
{
    if (!m_modified || !HoldsChosenNodes())
        return true;
    const QPointer<SelectionEditor> self(this);
    PanelEdits edits = ReadEdits();
    AppliedEdits applied = Write(edits);
    while (applied.outcome == ApplyOutcome::Conflicts) {
        const ConflictChoice choice
            = AskAboutConflicts(m_form, m_parts.panel, NameOfShown(), edits, applied.conflicts);
        if (!self || choice == ConflictChoice::Cancel)
            return false;
        FollowChoice(choice, edits, applied.conflicts);
        applied = Write(edits);
    }
    Finish(applied.outcome);
    return true;
}

void SelectionEditor::ApplyOrRead()
{
    if (m_modified)
        Apply();
    else
        Load();
}

AppliedEdits SelectionEditor::Write(const PanelEdits& edits)
{
    m_modified = false;
    try {
        const BusyPointer busy;
        AppliedEdits applied = WithColumnTexts([&] { return WriteToShown(edits); });
        m_modified = applied.outcome == ApplyOutcome::Conflicts || applied.outcome == ApplyOutcome::Gone;
        return applied;
    } catch (...) {
        m_modified = true;
        throw;
    }
}

AppliedEdits SelectionEditor::WriteToShown(const PanelEdits& edits)
{
    const NodeReference& node = m_shown.target.node.value();
    const auto expire = qScopeGuard([this] { m_parts.trees.ExpireSamples(); });
    return IsMany() ? ApplyEdits(m_parts.trees, m_shown.target.layerIDs, node.image, edits)
                    : ApplyEdits(m_parts.trees, node, edits);
}

void SelectionEditor::Finish(ApplyOutcome outcome)
{
    if (outcome == ApplyOutcome::Gone) {
        ReportGone();
        return;
    }
    Load();
    const std::vector<qint32> layerIDs = LayerIDs();
    emit Applied({layerIDs.begin(), layerIDs.end()});
    if (outcome == ApplyOutcome::UnexpectedMode)
        ShowMessageBox(&m_form, TranslateMsg("Unexpected program flow in frmLayerStyles"), BoxStyle::Ok);
}

void SelectionEditor::ReportGone()
{
    ShowMessageBox(&m_form, IsMany() ? GoneLayersText() : GoneNodeText(), BoxStyle::OkExclamation);
}

QString SelectionEditor::GoneLayersText() const
{
    return TranslateMsg(
        "The selected layers (^1) no longer exist. The changes were not applied.",
        QLocale().toString(Layers()));
}

QString SelectionEditor::GoneNodeText() const
{
    const NodeReference& node = m_shown.target.node.value();
    const QString kind = node.isGroup ? TranslateMsg("group") : TranslateMsg("layer");
    const QString name = NameInQuestion(m_parts.trees.CurrentText());
    if (node.isGroup && NodeExists(Client(), node))
        return TranslateMsg("The group '^1' no longer has any layers. The changes were not applied.", name);
    return TranslateMsg("The ^1 '^2' no longer exists. The changes were not applied.", kind, name);
}

bool SelectionEditor::ConfirmPendingChanges()
{
    if (!m_modified || !HoldsChosenNodes())
        return true;
    const QPointer<SelectionEditor> self(this);
    const PendingChangesAnswer answer = IsMany()
        ? AskToApplyToMany(&m_form, Layers())
        : AskToApply(&m_form, m_shown.target.node->isGroup, m_parts.trees.CurrentText());
    switch (answer) {
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
