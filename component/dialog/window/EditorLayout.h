// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/place/ExactWidth.h"
#include "component/dialog/place/ListTab.h"

#include <QDialog>

namespace Orvane {

namespace Ui {
class frmLayerStyles;
}

/// The arrangement of the dialog: the list of the tab, the settings next to it, and the width of the
/// settings. Within another widget that is too narrow for both, the settings are below the list.
class EditorLayout
{
public:
    /// What covers the settings.
    enum class Cover {
        None,
        NothingSelected,
        Schemes, ///< the Schemes tab edits no layer
    };

    /// Neither is owned; both outlive this object.
    EditorLayout(QDialog& form, Ui::frmLayerStyles& ui);

    /// Gives the settings the width that their texts need in the current language and font. It stays until
    /// the next call, so that no value shown makes the dialog wider.
    void FitTexts();
    /// Gives the dialog the size that its contents need, as far as the screen has room for it; within
    /// another widget it keeps its size.
    void TakeDesignedSize();

    /// True while the settings are shown next to the lists.
    bool Expanded() const { return m_expanded; }
    /// Shows or hides the settings; the dialog grows or shrinks by their width. Two calls restore its former
    /// width exactly, unless it was resized between them. A maximised dialog, and one within
    /// another widget, keeps its size.
    void SetExpanded(bool expanded);

    /// Chooses between settings next to the list and below it. Call when the dialog's width or parent has
    /// changed.
    void Arrange();
    /// The smallest size of the dialog within another widget: wide enough for the list or the settings, high
    /// enough for what is shown now.
    QSize SmallestSize() const;

    /// Shows the content of the tab.
    void ShowTab(ListTab tab);
    /// Covers the settings with a hint, or shows them.
    void ShowCover(Cover cover);
    /// Disables the settings and the commands for layers, and shows the reason above the settings; enables
    /// them if it is empty. The list stays usable.
    void ShowWhyNotEdited(const QString& reason);

private:
    void ShowExpansion();
    int SettingsWidth() const;
    int ListsWidth() const;
    int SpaceAround() const;
    bool IsTooNarrow() const;
    void FitSettings();
    void ShareHeight();
    void SetSettingsMargin(bool isBelow);

    QDialog& m_form;
    Ui::frmLayerStyles& m_ui;
    ExactWidth m_width;
    int m_gap; ///< pixels between list and settings
    bool m_expanded = true;
    bool m_isBelow = false; ///< the settings are below the list
    bool m_editsLayers = true; ///< the tab is not that of the schemes
    Cover m_cover = Cover::None;
    int m_widthBefore = 0; ///< pixels, before the last SetExpanded
    int m_widthAfter = -1; ///< pixels, after it
};

} // namespace Orvane
