// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerRows.h"

#include <QByteArray>

namespace Orvane {

class ServerConnection;

/// The rows of one query, read one after another: for more of them than memory should hold.
///
///     ServerRowStream stream(connection, "SELECT name FROM layers");
///     while (stream.Next())
///         names << stream.Row().Text(0, 0);
///
/// Until the stream has ended or is destroyed, nothing else can be asked of the connection.
class ServerRowStream
{
public:
    /// Sends the query, which has no parameters. The connection outlives the stream. Raises what
    /// ServerConnection raises.
    ServerRowStream(ServerConnection& connection, const QByteArray& sql);
    /// Cancels the query if it was not read to its end: the server's transaction has failed then. If that
    /// fails, the connection is lost.
    ~ServerRowStream();
    ServerRowStream(const ServerRowStream&) = delete;
    ServerRowStream& operator=(const ServerRowStream&) = delete;

    /// Waits for the next row; false after the last one. Raises ServerError if the query fails, and what
    /// ServerConnection raises.
    bool Next();
    /// The row, as row 0. Its memory is given back at the next one.
    const ServerRows& Row() const { return m_row; }

private:
    pg_result* NextResult();
    [[noreturn]] void RaiseRefusal(const pg_result* result);
    void ReadToEnd();
    void GiveUp();

    ServerConnection& m_connection;
    ServerRows m_row;
    bool m_isOver = false;
};

} // namespace Orvane
