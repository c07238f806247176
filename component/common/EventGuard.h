// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <exception>
#include <utility>

namespace Orvane {

/// Tells the person about an error that reached an event handler: the translated description of a
/// RunTimeError, a general text for anything else. While one error is shown, further ones are dropped, since
/// a handler that fails at each paint would else never let the person go on. Never raises.
void ReportError(QWidget* owner, const std::exception& error) noexcept;
/// The same for an exception of unknown type.
void ReportUnknownError(QWidget* owner) noexcept;

/// The guard at the top of every slot and event handler: runs the action and reports what it raises, so that
/// no exception reaches the event loop. Returns false when something was raised. owner: may be nullptr, and
/// may be destroyed by the action.
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

/// The same once the event is over that is handled now. For all that waits for the user (a question, a
/// picker's dialog): the host may end the dialog meanwhile, and Qt still uses the widget that the event came
/// from. context: without it the action is not run. owner: may be destroyed before.
template <typename Action> void GuardAfterEvent(QObject* context, QWidget* owner, Action action)
{
    QTimer::singleShot(0, context, [owner = QPointer<QWidget>(owner), action = std::move(action)] {
        GuardEvent(owner, action);
    });
}

/// The guard of painting, where no window may open: what the action raises leaves the picture unfinished.
/// Returns false when something was raised.
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
