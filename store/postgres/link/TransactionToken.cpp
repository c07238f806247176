// SPDX-License-Identifier: MIT
#include "store/postgres/link/TransactionToken.h"

#include "store/postgres/link/ServerConnection.h"

#include <QUuid>

namespace Orvane {

namespace {

constexpr int Looks = 50; // with a pause of 50 ms between them
constexpr int CounterDigits = 12; // the last part of a UUID

// Another process may have got the same number since then.
constexpr const char* FormerBackend
    = " FROM pg_stat_activity WHERE pid = $1 AND usename = current_user AND backend_start <"
      " (SELECT backend_start FROM pg_stat_activity WHERE pid = pg_backend_pid())";

} // namespace

TransactionToken::TransactionToken() : m_text(QUuid::createUuid().toByteArray(QUuid::WithoutBraces))
{
    Next();
}

void TransactionToken::Next()
{
    m_text = Beginning() + QByteArray::number(++m_number, 16).rightJustified(CounterDigits, '0', true);
}

QByteArray TransactionToken::Setting()
{
    return "SELECT set_config('orvane.token', $1, true)";
}

// First whether the process is gone, then whether it has stored: the other way round, it could store between
// the two.
std::optional<bool> WasStored(ServerConnection& connection, const QByteArray& token, int backend)
{
    const QByteArray process = QByteArray::number(backend);
    connection.Run(QByteArray("SELECT pg_terminate_backend(pid)") + FormerBackend, {process});
    for (int look = 0; look < Looks; ++look) {
        const bool isGone = connection.Run(QByteArray("SELECT") + FormerBackend, {process}).Count() == 0;
        if (connection.Run("SELECT FROM orvane_news WHERE token = $1::uuid LIMIT 1", {token}).Count() > 0)
            return true;
        if (isGone)
            return false;
        connection.Run("SELECT pg_sleep(0.05)");
    }
    return std::nullopt;
}

} // namespace Orvane
