// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerPlace.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <future>
#include <memory>

struct pg_conn;

namespace Orvane {

class StoreErrors;
class WorkWatch;
struct StoreOptions;

/// Closes a connection of libpq.
struct ConnectionCloser {
    void operator()(pg_conn* connection) const;
};
using ConnectionHandle = std::unique_ptr<pg_conn, ConnectionCloser>;

/// A connection that is being made on a thread of its own, because looking up names and logging in may block.
/// Destroying it gives the attempt up.
class ConnectionAttempt
{
public:
    /// Starts at once. time: how long it may take.
    ConnectionAttempt(const ServerPlace& place, const QString& password, std::chrono::milliseconds time);
    ~ConnectionAttempt();
    ConnectionAttempt(const ConnectionAttempt&) = delete;
    ConnectionAttempt& operator=(const ConnectionAttempt&) = delete;

    /// Waits that long at most. True when it has succeeded, has failed or takes too long.
    bool IsOver(std::chrono::milliseconds wait = {}) const;
    /// The connection, once it is over. Call it once. Raises ConnectionLost if the server cannot be reached
    /// in time or takes no more connections, DatabaseFailure if it refuses the user, has no such database or
    /// has a certificate that is not accepted.
    ConnectionHandle Take(const StoreErrors& errors);

private:
    struct Work;
    std::shared_ptr<Work> m_work; // with the thread, which may outlive this object
    std::future<ConnectionHandle> m_connected;
    std::chrono::steady_clock::time_point m_end;
};

/// Connects to a server. Looking up names and logging in may block, so a thread of its own does it; the
/// watcher is asked meanwhile. Asks the user for a password that is missing or wrong, three times at most,
/// and keeps it in password, which is tried first.
///
/// Raises ConnectionLost if the server cannot be reached in time or takes no more connections,
/// DatabaseFailure if it refuses the user, has no such database or has a certificate that is not accepted,
/// and UserCancelled.
ConnectionHandle ConnectToServer(
    const ServerPlace& place, const StoreOptions& options, WorkWatch& watch, const StoreErrors& errors,
    QString& password);

} // namespace Orvane
