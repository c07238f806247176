// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyPanel.h"
#include "component/dialog/panel/SliderPopup.h"
#include "component/dialog/pasting/SettingsPasting.h"
#include "component/dialog/place/WindowGeometry.h"
#include "component/dialog/showing/ChoiceTeller.h"
#include "component/dialog/showing/LayerShowing.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/dialog/window/EditorLayout.h"
#include "component/dialog/window/FindFields.h"
#include "component/dialog/window/LayerCommands.h"
#include "component/dialog/window/QuickModeToolbar.h"
#include "component/dialog/window/SchemePanel.h"

#include <memory>

namespace Orvane {

class IUITranslator;
class RendererStyleEditor;

/// The classes that frmLayerStyles coordinates, each created for its controls. They do not know one another.
class EditorParts
{
public:
    /// Neither is owned; both outlive this object.
    EditorParts(QDialog& form, Ui::frmLayerStyles& ui);
    ~EditorParts();

    /// Creates the translators and adds the property editors to the panel, once; they need the host's shell
    /// services. stylePrefix: the host's StyleCommandPrefix.
    void JoinPropertyEditors(const QString& stylePrefix);
    /// Call it only after JoinPropertyEditors.
    RendererStyleEditor& RendererStyles() { return *m_rendererStyles; }

    WindowGeometry geometry;
    EditorLayout layout;
    LayerTrees trees;
    LayerShowing showing;
    ChoiceTeller choice;
    FindFields find;
    PropertyPanel panel;
    SettingsPasting pasting;
    QuickModeToolbar quickModes;
    LayerCommands commands;
    SchemePanel schemes;

private:
    Ui::frmLayerStyles& m_ui;
    SliderPopup m_slider;
    std::unique_ptr<IUITranslator> m_scales;
    std::unique_ptr<IUITranslator> m_priorities;
    RendererStyleEditor* m_rendererStyles = nullptr; // owned by the panel
};

} // namespace Orvane
