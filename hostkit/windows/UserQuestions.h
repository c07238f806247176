// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <utility>

class QString;
class QWidget;

namespace Orvane {

/// Asks a question that Yes and No answer; No unless the user says otherwise. The texts are shown as they
/// are.
bool AskYesOrNo(QWidget* parent, const QString& title, const QString& question);

/// Tells the user something that needs no answer.
void ShowNotice(QWidget* parent, const QString& title, const QString& text);

/// Shows the user an error over the window; nothing if the user cancelled. Never raises.
void ShowErrorBox(QWidget* parent, const std::exception& error) noexcept;

/// For every slot of the host kit's windows: runs the action and shows errors that it raises, so that no
/// exception reaches the event loop. Returns true if the action succeeded.
template <typename Action> bool GuardCommand(QWidget* parent, Action&& action) noexcept
{
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const std::exception& error) {
        ShowErrorBox(parent, error);
    }
    return false;
}

} // namespace Orvane
