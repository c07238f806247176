// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace Orvane {

class EditorDock;
class MapSession;
class ShellClient;

/// The command that docks the layer control in the main window, or makes it a window again; at first it is
/// docked. The choice is kept, and so are side, size and floating of the dock, in the state of the main
/// window.
class DockChoice : public QObject
{
    Q_OBJECT
public:
    /// Adds the dock to the window, on the right and hidden. Call before the window's state is restored.
    /// command: docks and undocks; neither is owned, both outlive this object.
    DockChoice(QAction& command, QMainWindow& window);
    ~DockChoice() override;

    /// Adds a command that opens and closes the dock to the menu, and to the tool bar in place of opener.
    /// They are there only while the layer control is docked. None is owned; all outlive this object.
    void AddSwitchTo(QMenu& menu, QToolBar& bar, QAction& opener);

    /// Call after the window's state was restored.
    void NoteRestored();
    /// True if the layer control was open in the dock when the last run ended, and in the first run.
    bool WasOpen() const { return m_wasOpen; }
    /// True if the layer control is shown in the dock, when it is shown.
    bool IsChosen() const;
    /// True if the layer control is in the dock and has the keys.
    bool HasFocus() const;
    /// Stores the choice for the next run.
    void Store() const;
    /// The layer control of this map from now on; not owned, and may end before this object.
    void Use(MapSession& session);

Q_SIGNALS:
    /// The user has shown the dock without the layer control.
    void EditorWanted();

private:
    void OnToggled();
    void Apply();
    void ShowSwitch();
    void OnVisible(bool visible);
    void GiveSize();
    int FirstWidth() const;

    QAction& m_command;
    QMainWindow& m_window;
    EditorDock* m_dock; // owned by the window
    QPointer<QToolBar> m_bar;
    QPointer<QAction> m_opener;
    QPointer<MapSession> m_session;
    bool m_wasOpen = false;
    bool m_hasSize = false;
    struct {
        QSize size;
        Qt::DockWidgetArea area = Qt::NoDockWidgetArea;
    } m_before; // when it was last hidden
};

} // namespace Orvane
