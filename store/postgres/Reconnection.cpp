// SPDX-License-Identifier: MIT
#include "store/postgres/Reconnection.h"

#include "store/postgres/PostgresSession.h"

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

using namespace std::chrono_literals;

constexpr auto AttemptTurn = 50ms; // between two looks at an attempt
constexpr auto TransactionPause = 200ms; // while the session cannot change its connection
constexpr std::chrono::seconds LongestPause{30};

} // namespace

Reconnection::Reconnection(PostgresSession& session, std::function<void()> changed)
    : m_session(session), m_changed(std::move(changed))
{
    m_next.setSingleShot(true);
    QObject::connect(&m_next, &QTimer::timeout, &m_next, [this] { Try(); });
}

void Reconnection::Begin()
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_pause = 1s;
    m_next.start(0ms);
}

void Reconnection::TryNow()
{
    m_isRunning = true;
    m_next.start(0ms);
}

void Reconnection::NoteConnected()
{
    if (m_isRunning)
        TryNow();
}

// Runs in the event loop, which no exception may reach.
void Reconnection::Try() noexcept
{
    try {
        if (m_session.watch.IsAsking() || m_session.transactions.IsOpen())
            m_next.start(TransactionPause);
        else if (!m_session.connection->IsLost() || Connect())
            Succeed();
    } catch (const ServerError& error) {
        m_needsPassword = error.IsAboutPassword();
        m_needsPassword ? StopTrying() : TryLater();
    } catch (...) {
        TryLater();
    }
}

// True once the session can be used.
bool Reconnection::Connect()
{
    m_session.connection->StartConnecting();
    const ServerConnection::Haste haste(*m_session.connection); // the window waits for what follows
    if (m_session.connection->FinishConnecting()) {
        m_session.transactions.UseNewConnection();
        return true;
    }
    m_next.start(AttemptTurn);
    if (!std::exchange(m_isTrying, true))
        m_changed();
    return false;
}

void Reconnection::Succeed()
{
    m_isRunning = m_isTrying = m_needsPassword = false;
    m_changed();
}

// The same password would be refused again and again, until the server locks the user out.
void Reconnection::StopTrying()
{
    m_isTrying = false;
    m_changed();
}

void Reconnection::TryLater()
{
    m_isTrying = false;
    m_next.start(m_pause);
    m_pause = std::min(m_pause * 2, LongestPause);
    m_changed();
}

} // namespace Orvane
