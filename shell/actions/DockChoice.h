// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QMainWindow;

namespace Orvane {

class EditorDock;
class MapSession;
class ShellClient;

/// The command that docks the layer control in the main window, or makes it a window again. The choice is
/// kept, and so are side, size and floating of the dock, in the state of the main window.
class DockChoice : public QObject
{
    Q_OBJECT
public:
    /// Adds the dock to the window, on the right and hidden. Call before the window's state is restored.
    /// dock: the command; neither is owned, both outlive this object.
    DockChoice(QAction& command, QMainWindow& window);
    ~DockChoice() override;

    /// Call after the window's state was restored.
    void NoteRestored();
    /// True if the layer control was open in the dock when the last run ended.
    bool WasOpen() const { return m_wasOpen; }
    /// The layer control of this map from now on; not owned, and may end before this object.
    void Use(MapSession& session);

Q_SIGNALS:
    /// The user has shown the dock without the layer control.
    void EditorWanted();

private:
    void OnToggled(bool docked);
    void Apply();

    QAction& m_command;
    EditorDock* m_dock; // owned by the window
    QPointer<MapSession> m_session;
    bool m_wasOpen = false;
};

} // namespace Orvane
