// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>

namespace Orvane {

struct PostgresSession;

/// Makes a session's broken connection again in the background: at once, then after 1, 2, 4 ... 30 seconds,
/// while no transaction is open. A call of the store that makes it first ends this, too.
class Reconnection
{
public:
    /// The session outlives this object. changed: called when IsTrying returns something else, and when the
    /// connection is there; raises nothing.
    Reconnection(PostgresSession& session, std::function<void()> changed);

    /// Begins to try, unless it does already.
    void Begin();
    /// Tries at once, if the connection is still broken.
    void TryNow();
    /// To be called when the session has connected by itself.
    void NoteConnected();
    /// True while the server is tried to be reached.
    bool IsTrying() const { return m_isTrying; }
    /// True if the server wants a password that only the user knows: then nothing is tried until TryNow.
    bool NeedsPassword() const { return m_needsPassword; }

private:
    void Try() noexcept;
    bool Connect();
    void Succeed();
    void StopTrying();
    void TryLater();

    PostgresSession& m_session;
    std::function<void()> m_changed;
    QTimer m_next;
    std::chrono::seconds m_pause{1}; // before the next try
    bool m_isRunning = false;
    bool m_isTrying = false;
    bool m_needsPassword = false;
};

} // namespace Orvane
