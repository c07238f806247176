// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>

struct sqlite3;

namespace Orvane {

/// How long a connection waits for other programs' locks. All waits during one action of the user count
/// together: an action that meets the same lock several times waits once and is refused at once after that.
///
/// An action ends when the program returns to its event loop. Where none is running, each write that succeeds
/// ends one.
class LockPatience
{
public:
    /// limit: for one action.
    explicit LockPatience(std::chrono::milliseconds limit) : m_limit(limit) { }
    LockPatience(const LockPatience&) = delete;
    LockPatience& operator=(const LockPatience&) = delete;

    /// Lets an open database wait in this way. Close it before this object is destroyed.
    void Attach(sqlite3* handle);
    /// To be called after each write that was stored.
    void NoteSuccess();

private:
    bool Wait(int attempt);
    void ExpectEndOfAction();

    std::chrono::milliseconds m_limit;
    std::chrono::milliseconds m_waited{0}; // during the present action
    QObject m_loop; // on the thread of the connection; is told when the event loop runs again
    bool m_expectsEnd = false;
};

} // namespace Orvane
