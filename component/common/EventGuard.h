// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <exception>
#include <utility>

namespace Orvane {

/// Shows the user an error that reached an event handler: the translated description of a RunTimeError, a
/// general text for anything else, nothing if the user cancelled. While one error is shown, further errors
/// are dropped; otherwise a handler that fails at each paint would block the user. Never raises.
void ReportError(QWidget* owner, const std::exception& error) noexcept;
/// As ReportError, for an error of a command that can be run again. Where the layer database was locked, or
/// its server was not reached, it asks whether to try again. True if the user wants to.
bool ReportOrAskAgain(QWidget* owner, const std::exception& error) noexcept;
/// The same for an exception of unknown type.
void ReportUnknownError(QWidget* owner) noexcept;

/// The guard at the start of every slot and event handler: runs the action and reports what it raises, so
/// that no exception reaches the event loop. Returns false if something was raised. owner: may be nullptr,
/// and the action may destroy it.
template <typename Action> bool GuardEvent(QWidget* owner, Action&& action) noexcept
{
    const QPointer<QWidget> alive = owner;
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const std::exception& error) {
        ReportError(alive, error);
    } catch (...) {
        ReportUnknownError(alive);
    }
    return false;
}

/// The guard of a command that has done nothing, or can be run again, when it raises: as GuardEvent, but the
/// user may try it again where that can help; see ReportOrAskAgain. It then runs once more after the event.
/// owner: the command does not outlive it.
template <typename Command> void GuardRepeatable(QWidget& owner, Command command) noexcept
{
    const QPointer<QWidget> alive = &owner;
    bool isWantedAgain = false;
    try {
        command();
    } catch (const std::exception& error) {
        isWantedAgain = ReportOrAskAgain(alive, error);
    } catch (...) {
        ReportUnknownError(alive);
    }
    if (!isWantedAgain || !alive)
        return;
    GuardEvent(alive, [&] {
        QTimer::singleShot(0, alive.data(), [alive, command] { GuardRepeatable(*alive, command); });
    });
}

/// Runs the guarded action after the current event. Use it for everything that waits for the user (a
/// question, a picker's dialog): the host may close the dialog meanwhile, and Qt still uses the widget that
/// sent the event. context: if it is destroyed first, the action does not run. owner: may be destroyed first.
template <typename Action> void GuardAfterEvent(QObject* context, QWidget* owner, Action action)
{
    QTimer::singleShot(0, context, [owner = QPointer<QWidget>(owner), action = std::move(action)] {
        GuardEvent(owner, action);
    });
}

/// Reports an error after the current event, for the same reason. context, owner: as above.
inline void ReportAfterEvent(QObject* context, QWidget* owner, std::exception_ptr error)
{
    GuardAfterEvent(context, owner, [error = std::move(error)] { std::rethrow_exception(error); });
}

/// The guard of painting, where no window may be opened: if the action raises, the picture stays unfinished.
/// Returns false if something was raised.
template <typename Action> bool GuardPaint(Action&& action) noexcept
{
    try {
        std::forward<Action>(action)();
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace Orvane
