// SPDX-License-Identifier: MIT
// What becomes of transactions when the connection is lost.
#include "store/postgres/PostgresTransactions.h"
#include "store/postgres/ServerChangeLog.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/shared/WorkWatch.h"

namespace Orvane {

namespace {

constexpr std::chrono::seconds TimeBetweenTries{2}; // to connect again

} // namespace

// Not for each of many calls: each may take as long as the server is waited for.
void PostgresTransactions::ConnectAgain()
{
    using Clock = std::chrono::steady_clock;
    if (m_lastFailure && Clock::now() - *m_lastFailure < TimeBetweenTries)
        return;
    try {
        m_connection.ConnectAgain();
        UseNewConnection();
    } catch (...) {
        if (!m_connection.Watch().IsCancelled())
            m_lastFailure = Clock::now();
        throw;
    }
}

void PostgresTransactions::UseNewConnection()
{
    ++m_state;
    m_server.NoteEnd();
    m_server.ForgetPatience();
    m_start();
    m_lastFailure.reset();
}

// If the connection breaks, the log must know whether the server has stored the change all the same.
ServerRows PostgresTransactions::WriteAlone(const QByteArray& sql, const ServerValues& values)
{
    m_token.Next();
    m_server.SetToken(m_token.Text());
    try {
        return m_runner.Run(sql, values, Kind::Write, 0);
    } catch (...) {
        if (m_log.IsActive() && m_connection.IsLost() && WasCommitted() != false)
            m_log.NoteGap();
        throw;
    }
}

// Whether the server had stored the transaction when the connection broke; nothing if nobody knows.
std::optional<bool> PostgresTransactions::WasCommitted() noexcept
{
    const int backend = m_connection.Backend();
    m_server.NoteEnd();
    const ServerConnection::Haste haste(m_connection);
    try {
        m_connection.ConnectAgain();
        UseNewConnection();
        return WasStored(m_connection, m_token.Text(), backend);
    } catch (...) { // the connection that broke is what is told
        return std::nullopt;
    }
}

} // namespace Orvane
