// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/StyleEditorWindow.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

namespace Ui {
class frmLayerStyles;
}

class EditorParts;
class Enclosure;
class FirstError;
class SelectionEditor;
enum class ListTab;

/// The layer control dialog: two trees and the schemes on the left, the settings of the selected layer or
/// group on the right.
///
/// This class coordinates the dialog: it is created, shown, hidden and unloaded as the host asks, and
/// connects the classes that each own one group of controls. Of these, SelectionEditor holds what is being
/// edited. What the host or the database raises is passed to the host if it made the call, else shown to the
/// user; the dialog then shows what it showed before, or nothing.
class frmLayerStyles final : public StyleEditorWindow
{
    Q_OBJECT

public:
    /// Hidden and not initialised: nothing is requested from the host yet.
    explicit frmLayerStyles(QWidget* parent = nullptr);
    ~frmLayerStyles() override;

    /// Escape drops pending edits; without any it closes the dialog's window, or is left to the widget that
    /// the dialog is in.
    void reject() override;

    /// Within another widget it may be narrow: the settings are below the lists then.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void IStyleEditor_StyleFilter(const IStyleFilter* filter) override;
    bool IStyleEditor_Visible() const override;
    void IStyleEditor_Visible(bool visible) override;
    void IStyleEditor_RefreshGroups() override;
    void IStyleEditorForm_AddNewLayer(qint32 layerID) override;
    void IStyleEditorForm_Popup() override;
    void IStyleEditorForm_SetLayerCode(qint32 layerID) override;
    void IStyleEditorForm_SetLayerName(qint32 layerID, const QString& name) override;
    const std::vector<RendererStyle>& IStyleEditorForm_LoadRendererStyles() override;
    const IStyleFilter* IStyleEditorForm_Filter() const override;
    void IStyleEditorForm_Filter(const IStyleFilter* filter) override;
    void IStyleEditorForm_UnloadWithoutApply() override;
    void IStyleEditorForm_RefreshLayerNames(const QSet<qint32>& layerIDs) override;
    bool IStyleEditorForm_HasPendingEdits() const override;
    void IStyleEditorForm_Refresh() override;
    void IStyleEditorRefresh_RefreshLayers(const QSet<qint32>& layerIDs) override;

    void Wire();
    void WirePasting();
    void WireCommands();
    void EnsureInitialised();
    void Initialise();
    void Retranslate();
    void UpdateCaption();
    void FitTexts();

    void RestoreViewState();
    QString ViewStateText() const;
    bool IsOpen() const;
    void ShowByHost();
    void Hide();
    bool MayClose();
    bool ConfirmUnload();
    void Unload();
    void TellUnload(FirstError& errors);

    void OnTabChanged(int index);
    void OnTabClicked(int index);
    void DoFromTabs(const std::function<void()>& act);
    void SelectTab(ListTab tab);
    void ShowTab(ListTab tab);

    void EnableButtons(bool modified);
    void ShowCover(bool isNode);
    void ShowPermission();
    void LoadList();
    void LoadNodes();
    void OnDeleteAsked();
    void ReadAgain(FirstError& errors);
    void OnSchemeLoaded();

    std::unique_ptr<Ui::frmLayerStyles> m_ui;
    std::unique_ptr<EditorParts> m_parts;
    std::unique_ptr<SelectionEditor> m_selection;
    std::unique_ptr<Enclosure> m_enclosure;
    QString m_styleCommandPrefix;
    std::optional<std::vector<RendererStyle>> m_rendererStyles;
    const IStyleFilter* m_filter = nullptr;
    ListTab m_tab;
    bool m_initialised = false;
    bool m_shown = false; ///< the host was asked to show it
    bool m_closing = false; ///< the host was notified, and may hide it again
    bool m_unloaded = false;
};

} // namespace Orvane
