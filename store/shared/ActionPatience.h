// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>

namespace Orvane {

/// How long a store waits for other programs' locks. All waits during one action of the user count together:
/// an action that meets the same lock several times waits once and is refused at once after that.
///
/// An action ends when the program returns to its event loop. Where none is running, each write that succeeds
/// ends one.
class ActionPatience
{
public:
    /// limit: for one action.
    explicit ActionPatience(std::chrono::milliseconds limit) : m_limit(limit) { }
    ActionPatience(const ActionPatience&) = delete;
    ActionPatience& operator=(const ActionPatience&) = delete;

    /// How long the present action may still wait.
    std::chrono::milliseconds Left() const { return m_limit - m_waited; }
    /// Counts a wait. To be called on the thread of the store.
    void Spend(std::chrono::milliseconds time);
    /// To be called after each write that was stored.
    void NoteSuccess();

private:
    void ExpectEndOfAction();

    std::chrono::milliseconds m_limit;
    std::chrono::milliseconds m_waited{0}; // during the present action
    QObject m_loop; // on the thread of the store; is told when the event loop runs again
    bool m_expectsEnd = false;
};

} // namespace Orvane
