// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <qgis.h>
#include <qgisplugin.h>

#include <functional>
#include <memory>
#include <vector>

class QDomDocument;
class QgisInterface;

namespace Orvane {

class EditorDock;
class IStyleEditor;
class ProjectSession;
class SchemeCommands;
class StyleEditorPlugin;

/// The layer control in QGIS: a dock, a button, and entries in the menu of plug-ins. The component is loaded,
/// and the project read, when the dock is first shown; from then on both are kept equal.
///
/// ComponentFile says which component that is.
class LayerControlPlugin : public QObject, public QgisPlugin
{
    Q_OBJECT

public:
    /// qgis: not owned; outlives this object.
    explicit LayerControlPlugin(QgisInterface& qgis);
    /// Calls unload.
    ~LayerControlPlugin() override;

    /// Adds what the user sees.
    void initGui() override;
    /// Removes it, and ends the editor; edits that were not applied are lost, and the user is told. May be
    /// called at any time, also from within an apply.
    void unload() override;

private:
    void AddDock();
    void AddActions();
    void AddAction(QAction& action, const QString& text, void (LayerControlPlugin::*slot)());
    void AddSchemeActions();
    using SchemeCommand = void (SchemeCommands::*)();
    void AddSchemeAction(const char* objectName, const QString& text, SchemeCommand command);
    void ShowFromMenu();
    void ShowRestored();
    void ShowWhenSettled();
    IStyleEditor* Editor() const;
    void ShowEditor();
    void Start();
    void ConnectSession();
    void EndSession();
    void RemoveActions();
    void Undo();
    void Redo();
    void ShowSteps();
    void WatchPendingEdits();
    void AskAboutEdits(QDomDocument& file);
    void RenewEditor();
    void Tell(const QString& message);
    void TellDone(const QString& message);
    void ShowMessage(const QString& message, Qgis::MessageLevel level);
    bool Guard(const std::function<void()>& act) noexcept;

    QgisInterface& m_qgis;
    QPointer<EditorDock> m_dock;
    QAction m_show;
    QAction m_undo;
    QAction m_redo;
    QTimer m_pendingEdits;
    QTimer m_settling;
    std::vector<std::unique_ptr<QAction>> m_schemeActions;
    std::unique_ptr<ProjectSession> m_session;
    std::unique_ptr<SchemeCommands> m_schemes;
    std::unique_ptr<StyleEditorPlugin> m_component; // ended first: it ends its editors through the client
    bool m_isShown = false; // initGui was called
    bool m_isStarting = false; // with QGIS
    bool m_isEditorOld = false; // it has read renderer styles that are others now
};

} // namespace Orvane
