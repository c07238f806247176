// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QWidget;

namespace Orvane {

class MapSession;
class UndoHistory;

/// The Edit menu's commands: they undo and redo the user's changes to the open map, and name them. Their keys
/// work in every window of the program that does not use these keys itself.
class EditActions : public QObject
{
    Q_OBJECT
public:
    struct Actions {
        QAction* undo;
        QAction* redo;
        QAction* undoOpening; ///< everything since the layer control was opened
    };

    /// None is owned; all outlive this object. Errors are shown over the window.
    EditActions(const Actions& actions, QWidget& window);

    /// The commands work on this map from now on; not owned, and may end before this object.
    void Use(MapSession& session);
    /// Like Use, but for a history without a map.
    void Use(UndoHistory& history);

private:
    void SetUp(QAction& action, void (UndoHistory::*command)());
    void TellOfLostStep(const QString& reason);
    QWidget* Owner() const;
    void Run(void (UndoHistory::*command)());
    void Show();
    static QString OpeningText(const UndoHistory& history);

    Actions m_actions;
    QWidget& m_window;
    QPointer<UndoHistory> m_history;
};

} // namespace Orvane
