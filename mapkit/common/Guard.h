// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/common/Progress.h"

#include <exception>
#include <utility>

class QWidget;

namespace Orvane {

/// Tells the person about an error, in a message box over the window. Never raises.
void ShowError(QWidget* owner, const std::exception& error) noexcept;

/// The guard at the top of every slot and event handler: runs the action and shows what it raises, so that no
/// exception reaches the event loop. What the person cancelled ends silently. True when the action ended
/// well.
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
