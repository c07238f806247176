// SPDX-License-Identifier: MIT
#include "component/dialog/window/EditorParts.h"

#include "component/common/Component.h"
#include "component/controls/DrawPrioritiesTranslator.h"
#include "component/controls/VisibleScalesTranslator.h"
#include "component/controls/WheelNeedsFocus.h"
#include "component/dialog/panel/FlagEditor.h"
#include "component/dialog/panel/LineAndFillEditor.h"
#include "component/dialog/panel/PriorityEditor.h"
#include "component/dialog/panel/RendererStyleEditor.h"
#include "component/dialog/panel/ScaleRangeEditor.h"
#include "ui_frmLayerStyles.h"

namespace Orvane {

EditorParts::EditorParts(QDialog& form, Ui::frmLayerStyles& ui)
    : geometry(form), layout(form, ui), trees(ui.tvLayers1, ui.tvLayers2),
      showing(trees, *ui.tvLayers1, *ui.tvLayers2), choice(trees, form),
      find(form, trees, {ui.txtFind1, ui.lblFound1, ui.tvLayers1}, {ui.txtFind2, ui.lblFound2, ui.tvLayers2}),
      pasting(trees, showing, panel, {ui.tvLayers1, ui.tvLayers2}),
      quickModes(*ui.mstbQuickMode, {ui.Normal, ui.Backdrop, ui.Hidden}),
      commands({ui.cmdNewLayer, ui.cmdDeleteLayer, ui.lblCode}),
      schemes(
          {ui.cmbScheme, ui.cmdNew, ui.cmdSave, ui.cmdRevert, ui.cmdDelete, ui.cmdSaveStartup, ui.cmdManage}),
      m_ui(ui), m_slider(form)
{
}

EditorParts::~EditorParts() = default;

void EditorParts::JoinPropertyEditors(const QString& stylePrefix)
{
    if (m_rendererStyles)
        return;
    m_scales = std::make_unique<VisibleScalesTranslator>();
    m_priorities = std::make_unique<DrawPrioritiesTranslator>();
    const AskSlider ask = [this](const SliderQuestion& question) { return m_slider.Ask(question); };
    panel.Join(std::make_unique<FlagEditor>(std::vector<FlagEditor::Flag>{
        {Slot::Enquirable, m_ui.chkEnquirable},
        {Slot::Hitable, m_ui.chkHitable},
        {Slot::Locked, m_ui.chkLocked},
        {Slot::Selectable, m_ui.chkSelectable},
        {Slot::SnapRequired, m_ui.chkSnapRequired},
        {Slot::Visible, m_ui.chkVisible},
        {Slot::UseForSymbols, m_ui.chkUseForSymbols}}));
    panel.Join(std::make_unique<LineAndFillEditor>(
        LineAndFillEditor::Rows{
            {m_ui.cmbColor0, m_ui.lblColor0},
            {m_ui.cmbColor1, m_ui.lblColor1},
            {m_ui.cmbColor2, m_ui.lblColor2},
            {m_ui.cmbFillStyles, m_ui.lblFillStyles},
            {m_ui.cmbLineStyles, m_ui.lblLineStyles}},
        stylePrefix));
    panel.Join(std::make_unique<ScaleRangeEditor>(
        ScaleRangeEditor::Widgets{
            m_ui.lblScaleMin, m_ui.cmdEditMinScale, m_ui.lblScaleMax, m_ui.cmdEditMaxScale},
        *m_scales, ask));
    panel.Join(std::make_unique<PriorityEditor>(
        PriorityEditor::Widgets{m_ui.lblPriority, m_ui.cmdEditPriority}, *m_priorities, ask));
    auto rendererStyles = std::make_unique<RendererStyleEditor>(*m_ui.cboStyle);
    m_rendererStyles = rendererStyles.get();
    panel.Join(std::move(rendererStyles));
    for (QComboBox* list : m_ui.picLayerStyle->window()->findChildren<QComboBox*>())
        new WheelNeedsFocus(*list);
}

} // namespace Orvane
