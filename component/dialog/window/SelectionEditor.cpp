// SPDX-License-Identifier: MIT
#include "component/dialog/window/SelectionEditor.h"

#include "component/common/Component.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "component/dialog/panel/PropertyPanel.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/dialog/window/ApplyEdits.h"
#include "component/dialog/window/LayerCommands.h"
#include "component/dialog/window/PendingChangesPrompt.h"
#include "component/dialog/window/QuickModeToolbar.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerStyleLoading.h"
#include "ovctrls/BusyPointer.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerValues.h>

#include <QPointer>

namespace Orvane {

SelectionEditor::SelectionEditor(QWidget& form, const Parts& parts) : m_form(form), m_parts(parts)
{
    const auto markModified = [this] { SetModified(true); };
    connect(&parts.panel, &PropertyPanel::Edited, this, markModified);
    connect(&parts.quickModes, &QuickModeToolbar::Edited, this, markModified);
    connect(&parts.commands, &LayerCommands::CodeEdited, this, [this](QWidget* label) {
        m_parts.panel.MarkControlChanged(label, true);
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
    try {
        Show(selection);
    } catch (...) {
        ShowNothing();
        throw;
    }
}

void SelectionEditor::CoverUp()
{
    m_parts.quickModes.SetEnabled(false);
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
    Selection selection{.node = node, .record = {}};
    if (node && node->isGroup) {
        LoadGroupStyle(Client(), node->groupID, selection.record);
    } else if (node) {
        LoadLayerStyle(Client(), node->layerID, selection.record);
        selection.isSystemLayer = IsSystemLayer(Client(), node->layerID);
    }
    return selection;
}

void SelectionEditor::Show(const Selection& selection)
{
    const std::optional<NodeReference>& node = selection.node;
    m_current = node;
    m_record = selection.record;
    m_parts.panel.Show(m_record);
    m_parts.quickModes.ShowMode(node ? node->image : QuickMode::Various);
    m_parts.quickModes.SetEnabled(node && m_tab != ListTab::Schemes);
    m_parts.commands.Show(node, m_record, selection.isSystemLayer);
    emit Shown(node.has_value());
    SetModified(false);
}

PanelEdits SelectionEditor::ReadEdits() const
{
    PanelEdits edits;
    edits.quickMode = m_parts.quickModes.ReadMode();
    edits.codeText = m_parts.commands.CodeText();
    edits.selectedStyle = m_parts.selectedStyle;
    m_parts.panel.ReadPanelStyle(edits.style);
    return edits;
}

bool SelectionEditor::HoldsCurrentNode() const
{
    const std::optional<NodeReference> node = m_parts.trees.CurrentNode();
    return node && m_current && IsSameNode(*node, *m_current);
}

void SelectionEditor::Apply()
{
    if (!m_modified || !HoldsCurrentNode())
        return;
    const bool isExpected = Write(*m_parts.trees.CurrentNode());
    Load();
    if (!isExpected)
        ShowMessageBox(&m_form, TranslateMsg("Unexpected program flow in frmLayerStyles"), BoxStyle::Ok);
}

bool SelectionEditor::Write(const NodeReference& node)
{
    m_modified = false;
    try {
        const BusyPointer busy;
        return ApplyEdits(m_parts.trees, node, ReadEdits()) == ApplyOutcome::Applied;
    } catch (...) {
        m_modified = true;
        throw;
    }
}

bool SelectionEditor::ConfirmPendingChanges()
{
    if (!m_modified || !HoldsCurrentNode())
        return true;
    const QPointer<SelectionEditor> self(this);
    switch (AskToApply(&m_form, m_current->isGroup, m_parts.trees.CurrentText())) {
    case PendingChangesAnswer::Yes:
        Apply();
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
