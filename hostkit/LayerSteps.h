// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/ChangeStep.h"
#include "hostkit/UndoHistory.h"

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

/// Makes steps of what a host does to its layer database, and tells the host and the open editors when they
/// are undone or redone.
class LayerSteps
{
    Q_DECLARE_TR_FUNCTIONS(LayerSteps)

public:
    /// None is owned; all outlive this object.
    LayerSteps(
        SqliteLayerDatabase& database, LayerNames& names, EditorWindows& windows,
        HostNotifications& notifications);
    ~LayerSteps();
    Q_DISABLE_COPY_MOVE(LayerSteps)

    UndoHistory& History() { return m_history; }

    /// Does the act, which is all or nothing and answers what it did as IUndoStep::Text does, and keeps what
    /// it changed as one step; without changes there is none. Within another Record it is a part of that
    /// step. What the act raises is passed on.
    void Record(const std::function<QString()>& act, ChangeStep::Joins joins = ChangeStep::Joins::No);

    /// From now on rows of layers are edited, until EndEdits or until the event loop runs again.
    void BeginEdits();
    /// What was edited is one step. Raises nothing.
    void EndEdits();

private:
    bool IsRecording() const { return m_depth > 0; }
    void Keep(const std::function<QString(const Changeset&)>& text, ChangeStep::Joins joins);
    QString EditText(const Changeset& changes);
    void RequireNoPendingEdits() const;
    void Tell();
    void Emit(const Changeset& changed);

    SqliteLayerDatabase& m_database;
    LayerNames& m_names;
    EditorWindows& m_windows;
    HostNotifications& m_notifications;
    ChangeStep::Surroundings m_surroundings;
    UndoHistory m_history;
    std::unique_ptr<ChangeRecorder> m_recorder;
    int m_depth = 0; // of Record in Record
    QTimer m_endOfEdits;
    std::vector<Changeset> m_untold;
};

} // namespace Orvane
