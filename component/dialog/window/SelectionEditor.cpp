// SPDX-License-Identifier: MIT
#include "component/dialog/window/SelectionEditor.h"

#include "component/common/Component.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "component/dialog/panel/RendererStyleEditor.h"
#include "component/dialog/window/ApplyCommand.h"
#include "component/dialog/window/EditorParts.h"
#include "component/dialog/window/PendingChangesPrompt.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerStyleLoading.h"
#include "ovctrls/BusyPointer.h"
#include "ui_frmLayerStyles.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerValues.h>

#include <QPointer>

namespace Orvane {

namespace {

PanelEdits ReadEdits(EditorParts& parts)
{
    PanelEdits edits;
    edits.quickMode = parts.quickModes.ReadMode();
    edits.codeText = parts.commands.CodeText();
    edits.selectedStyle = [&parts] { return parts.RendererStyles().SelectedStyle(); };
    parts.panel.ReadPanelStyle(edits.style);
    return edits;
}

} // namespace

SelectionEditor::SelectionEditor(QWidget& form, Ui::frmLayerStyles& ui, EditorParts& parts)
    : m_form(form), m_ui(ui), m_parts(parts)
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
    const bool losesFocus = !modified && (m_ui.cmdApply->hasFocus() || m_ui.cmdCancel->hasFocus());
    m_ui.cmdApply->setEnabled(modified);
    m_ui.cmdCancel->setEnabled(modified);
    if (losesFocus)
        m_ui.stkLists->currentWidget()->setFocus();
}

void SelectionEditor::Load()
{
    try {
        Cancel();
    } catch (...) {
        ShowNothing();
        throw;
    }
}

void SelectionEditor::Cancel()
{
    const Selection selection = Read(m_parts.trees.CurrentNode());
    try {
        Show(selection);
    } catch (...) {
        ShowNothing();
        throw;
    }
}

void SelectionEditor::ShowNothing()
{
    Show(Selection());
}

// All that may fail in the host, before the first control changes.
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
    ShowCover();
    SetModified(false);
}

void SelectionEditor::ShowCover() const
{
    if (m_tab == ListTab::Schemes)
        m_parts.layout.ShowCover(EditorLayout::Cover::Schemes);
    else if (!m_current)
        m_parts.layout.ShowCover(EditorLayout::Cover::NothingSelected);
    else
        m_parts.layout.ShowCover(EditorLayout::Cover::None);
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
        return ApplyCommand(m_parts.trees).Run(node, ReadEdits(m_parts)) == ApplyCommand::Outcome::Applied;
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
    const PendingChangesPrompt prompt([this] { Apply(); }, [this] { Cancel(); });
    prompt.Ask(&m_form, m_current->isGroup, m_parts.trees.CurrentText());
    return self;
}

} // namespace Orvane
