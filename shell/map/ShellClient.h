// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardClient.h"
#include "shell/map/LayerCommand.h"

#include <OrvaneShellLib/IChoiceWatch.h>
#include <OrvaneShellLib/ILayerSource.h>
#include <OrvaneShellLib/IMapScale.h>

#include <QCoreApplication>
#include <QHash>
#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <map>

namespace Orvane {

class EditorDock;
class LayerStates;

/// Orvane's application object for the component: the standard client, which also keeps the editors' windows
/// beside the map.
class ShellClient : public StandardClient, public IMapScale, public ILayerSource, public IChoiceWatch
{
    Q_DECLARE_TR_FUNCTIONS(ShellClient)

public:
    /// None is owned; all outlive this object. states: marks the names that are listed.
    ShellClient(
        ILayerStore& database, IShellServices& services, const LayerStates& states, QWidget& mainWindow);

    /// Brings the editor to the front, if it is shown, and gives it the keys.
    void RaiseEditor(const QString& editorID);

    /// Shows the editor with that ID in the dock from now on; nullptr for a window of its own. An editor that
    /// is shown moves there with its edits. dock: not owned, and may end before this object.
    void SetDock(const QString& editorID, EditorDock* dock);

    /// Sets the function that returns the name of the theme that the editor with an ID edits; empty for none.
    /// Call before the first editor is opened.
    void SetThemeNames(std::function<QString(const QString& editorID)> nameOf);

    /// Sets the function that makes new layers instead of the standard client; it returns the new layer's ID,
    /// 0 for none.
    void SetLayerMaker(std::function<qint32(QWidget* owner)> make);
    /// Sets the function that returns the denominator of the map's scale; without it there is none.
    void SetMapScale(std::function<double()> scale);
    /// Sets the function that returns where a layer's data are; without it none has a source.
    void SetLayerSource(std::function<QString(qint32 layerID)> sourceOf);
    /// Adds a command at the end of those for layers.
    void AddLayerCommand(LayerCommand command);
    /// The commands for layers, in the order of the menus.
    const std::vector<LayerCommand>& LayerCommands() const { return m_commands; }

    /// The layers that the user has chosen last in an editor that is still open; each once.
    const std::vector<qint32>& ChosenLayers() const { return m_chosen; }
    /// Sets the function to call when ChosenLayers returns others than before.
    void SetChoiceFollower(std::function<void()> follow);
    /// The ID of the editor that asked for a new layer, during the notification LayerCreated; empty for none.
    const QString& CreatingEditor() const { return m_creatingEditor; }

protected:
    /// Calls the layer maker, if there is one; 0 when the user cancels.
    qint32 IStyleEditorClient_CreateLayer() override;
    /// Shows the editor in its dock, or the window where it was last, else at the main window's right side,
    /// within the screen.
    void IStyleEditorClient_ShowEditor(QWidget* form) override;
    /// The layer's name with the marker of its state.
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override;
    /// The renderer styles of the map's painter.
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override;
    void IStyleEditorClient_EditorClosed(QWidget* form) override;
    QString IStyleEditorClient_ThemeName(QWidget* form) const override;
    double IMapScale_CurrentScale() const override;
    QString ILayerSource_Source(qint32 layerID) override;
    void IChoiceWatch_LayersChosen(QWidget* form, const std::vector<qint32>& layerIDs) override;
    /// The commands for layers.
    std::vector<NodeCommand> INodeCommands_Commands(QWidget* form) override;
    QString INodeCommands_WhyNot(const QString& id, const std::vector<qint32>& layerIDs) override;
    void INodeCommands_Run(QWidget* form, const QString& id, const std::vector<qint32>& layerIDs) override;

private:
    EditorDock* DockOf(const QString& editorID) const;
    const LayerCommand* CommandOf(const QString& id) const;
    void TakeChoiceOf(const QString& editorID);
    void PlaceWindow(QWidget& form, const QString& editorID);
    void TakeOutOfDock(QWidget& form);

    const LayerStates& m_states;
    QWidget& m_mainWindow;
    QHash<QString, QPointer<QWidget>> m_editors; // by ID
    QPointer<EditorDock> m_dock;
    QString m_dockedID; // of the editor that the dock is for
    Qt::WindowFlags m_windowFlags; // of that editor's window
    QHash<QString, QPoint> m_places; // of closed editors' frames, by ID
    std::function<QString(const QString&)> m_themeNameOf;
    std::function<qint32(QWidget*)> m_makeLayer;
    std::function<double()> m_mapScale;
    std::function<QString(qint32)> m_sourceOf;
    std::vector<LayerCommand> m_commands;
    std::vector<qint32> m_chosen;
    std::map<QString, std::vector<qint32>> m_choices; // by the ID of the editor
    QString m_choiceOf; // the editor in which m_chosen are chosen
    std::function<void()> m_followChoice;
    QString m_creatingEditor;
};

} // namespace Orvane
