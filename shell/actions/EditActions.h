// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QWidget;

namespace Orvane {

class MapSession;
class UndoHistory;

/// The Edit menu's commands: they undo and redo what the person did to the map that is open, and say what
/// that is. Their keys work in every window of the program that has no use for them itself.
class EditActions : public QObject
{
    Q_OBJECT
public:
    struct Actions {
        QAction* undo;
        QAction* redo;
    };

    /// None is owned; all outlive this object. Errors are shown over the window.
    EditActions(const Actions& actions, QWidget& window);

    /// The map that the commands belong to from now on; not owned, and may end before this object.
    void Use(MapSession& session);
    /// As Use, for a history alone.
    void Use(UndoHistory& history);

private:
    void SetUp(QAction& action, void (UndoHistory::*command)());
    void Run(void (UndoHistory::*command)());
    void Show();

    Actions m_actions;
    QWidget& m_window;
    QPointer<UndoHistory> m_history;
};

} // namespace Orvane
