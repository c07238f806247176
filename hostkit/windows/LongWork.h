// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

class QProgressDialog;
class QWidget;

namespace Orvane {

class ILayerStore;
class QuietProgram;

/// Work on a layer store that may take long. After a while it shows a dialog with progress and Cancel; before
/// that it does nothing. If the user cancels, what runs in the store raises UserCancelled.
///
///     const LongWork work(database, tr("Loading the scheme"), mainWindow);
///     ... change rows in one transaction ...
///
/// While the dialog is shown the windows are painted, but accept no input and are not closed; timers of the
/// program fire after the work; the store refuses calls. Work inside other work belongs to that. Without a
/// QApplication nothing is shown.
class LongWork
{
    Q_DECLARE_TR_FUNCTIONS(LongWork)

public:
    /// How long work takes before the dialog appears.
    static constexpr std::chrono::milliseconds UsualPatience{500};
    /// How often it looks at the user's input.
    static constexpr std::chrono::milliseconds UsualPause{30};

    /// Whether the dialog has a Cancel button. What follows a commit has none: it must not stop halfway.
    enum class Cancel { Possible, Impossible };

    /// store: not owned, outlives this object. what: what the dialog says, translated. parent: in front of
    /// which window the dialog is shown if none is active; nullptr for none.
    LongWork(ILayerStore& store, const QString& what, QWidget* parent, Cancel cancel = Cancel::Possible);
    /// Closes the dialog.
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    /// True while any work is under way.
    static bool IsUnderWay();
    /// Runs act now, or after the work that is under way: for calls from other threads and queued calls that
    /// use the store or ask the user. context: if it is destroyed first, act does not run.
    static void RunAfter(QObject* context, std::function<void()> act);
    /// For a host that shows progress sooner or later than usual, or that answers input more or less often:
    /// how long all work of the program takes before its dialog appears, and the time between two looks at
    /// the user's input. Valid from the next look on.
    static void
    SetPatience(std::chrono::milliseconds beforeDialog, std::chrono::milliseconds betweenLooks = UsualPause);

private:
    bool Look(double done);
    void Show();
    void ShowShare(double done);

    ILayerStore& m_store;
    QString m_what;
    QWidget* m_parent;
    Cancel m_cancel;
    bool m_isOutermost = false;
    bool m_cancelled = false;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceLook;
    std::unique_ptr<QuietProgram> m_quiet; // outlives the dialog
    std::unique_ptr<QProgressDialog> m_dialog;
};

} // namespace Orvane
