// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/undo/ChangeStep.h"
#include "hostkit/undo/UndoHistory.h"

#include <QCoreApplication>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

namespace Orvane {

class ChangeRecorder;
class EditorWindows;
class HostNotifications;
class LayerNames;

/// Turns a host's changes to its layer database into undo steps, and notifies the host and the open editors
/// when they are undone or redone.
class LayerSteps
{
    Q_DECLARE_TR_FUNCTIONS(LayerSteps)

public:
    /// None of these is owned; all must outlive this object.
    LayerSteps(
        ILayerStore& database, LayerNames& names, EditorWindows& windows, HostNotifications& notifications);
    ~LayerSteps();
    Q_DISABLE_COPY_MOVE(LayerSteps)

    UndoHistory& History() { return m_history; }
    /// The window in front of which progress is shown; nullptr for none.
    QWidget* Window() const;

    /// Runs act and keeps its changes as one step; without changes there is no step. act must change
    /// everything or nothing, and return a description as IUndoStep::Text does. Inside another Record, the
    /// changes belong to the outer step. Errors that act raises are passed on.
    void Record(const std::function<QString()>& act, ChangeStep::Joins joins = ChangeStep::Joins::No);

    /// Starts recording edits of layer rows, until EndEdits or until the event loop runs again.
    void BeginEdits();
    /// Keeps the edits since BeginEdits as one step. Raises nothing.
    void EndEdits();

private:
    bool IsRecording() const { return m_depth > 0; }
    void Keep(const std::function<QString(const Changeset&)>& text, ChangeStep::Joins joins);
    QString EditText(const Changeset& changes);
    void RequireNoPendingEdits() const;
    void Tell();
    void Emit(const Changeset& changed);

    ILayerStore& m_database;
    LayerNames& m_names;
    EditorWindows& m_windows;
    HostNotifications& m_notifications;
    ChangeStep::Surroundings m_surroundings;
    UndoHistory m_history;
    std::unique_ptr<ChangeRecorder> m_recorder;
    int m_depth = 0; // nesting of Record calls
    QTimer m_endOfEdits;
    std::vector<Changeset> m_untold;
};

} // namespace Orvane
