// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace Orvane {

/// The question that is asked before edits would be lost to another node.
class PendingChangesPrompt
{
public:
    enum class Answer {
        Yes, ///< apply the edits
        No, ///< do nothing: the edits stay in the controls
        Cancel, ///< drop the edits; the box has no button for it
    };

    /// apply and cancel: the dialog's Apply and Cancel actions.
    PendingChangesPrompt(std::function<void()> apply, std::function<void()> cancel);

    /// Asks about the node of that kind and text, and acts on the answer. Passes on what the action raises.
    void Ask(QWidget* owner, bool isGroup, const QString& nodeText) const;

    /// Runs the action that belongs to the answer.
    void ActOn(Answer answer) const;

private:
    std::function<void()> m_apply;
    std::function<void()> m_cancel;
};

} // namespace Orvane
