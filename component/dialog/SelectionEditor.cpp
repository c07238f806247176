// SPDX-License-Identifier: MIT
#include "component/dialog/SelectionEditor.h"

#include "component/dialog/ApplyCommand.h"
#include "component/dialog/BusyPointer.h"
#include "component/dialog/EditorParts.h"
#include "component/dialog/PendingChangesPrompt.h"
#include "component/dialog/RendererStyleEditor.h"
#include "component/entry/Component.h"
#include "component/entry/MessageBoxes.h"
#include "component/entry/Messages.h"
#include "component/model/LayerStyleLoading.h"
#include "ui_frmLayerStyles.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QPointer>

namespace Orvane {

namespace {

LayerStyle ReadRecord(const std::optional<NodeReference>& node)
{
    const BusyPointer busy;
    LayerStyle record;
    if (node && node->isGroup)
        LoadGroupStyle(Client(), node->groupID, record);
    else if (node)
        LoadLayerStyle(Client(), node->layerID, record);
    return record;
}

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
    const std::optional<NodeReference> node = m_parts.trees.CurrentNode();
    Show(node, ReadRecord(node));
}

void SelectionEditor::ShowNothing()
{
    Show(std::nullopt, LayerStyle());
}

void SelectionEditor::Show(const std::optional<NodeReference>& node, const LayerStyle& record)
{
    m_current = node;
    m_record = record;
    m_parts.panel.Show(record);
    m_parts.quickModes.ShowMode(node ? node->image : qint16(0));
    m_parts.quickModes.SetEnabled(node && m_tab != ListTab::Schemes);
    m_parts.commands.Show(node, record);
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

void SelectionEditor::Apply()
{
    const std::optional<NodeReference> node = m_parts.trees.CurrentNode();
    if (!m_modified || !node)
        return;
    const bool isExpected = Write(*node);
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
    if (!m_modified || !m_current)
        return true;
    const QPointer<SelectionEditor> self(this);
    const PendingChangesPrompt prompt([this] { Apply(); }, [this] { Cancel(); });
    prompt.Ask(&m_form, m_current->isGroup, m_parts.trees.CurrentText());
    return self;
}

} // namespace Orvane
