// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/common/Progress.h"

#include <exception>
#include <utility>

class QWidget;

namespace Orvane {

/// Shows the user an error, in a message box over the window; nothing if the user cancelled. Never
/// raises.
void ShowError(QWidget* owner, const std::exception& error) noexcept;

/// Use this at the top of every slot and event handler: it runs the action and shows errors that it raises,
/// so that no exception reaches the event loop. Nothing is shown if the user cancelled. Returns true if the
/// action succeeded.
template <typename Action> bool Guard(QWidget* owner, Action&& action) noexcept
{
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const Cancelled&) {
    } catch (const std::exception& error) {
        ShowError(owner, error);
    }
    return false;
}

} // namespace Orvane
