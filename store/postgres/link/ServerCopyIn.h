// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

struct pg_result;

namespace Orvane {

class ServerConnection;
class ServerError;

/// Rows that are sent into a table as they come, in two round trips however many they are.
///
///     ServerCopyIn copy(connection, "COPY layers (layerid, name) FROM STDIN");
///     copy.Write("7\tRoads\n");
///     copy.End();
///
/// Until it is ended or destroyed, nothing else can be asked of the connection.
class ServerCopyIn
{
public:
    /// Waits until the server takes rows. The connection outlives this object. Raises ServerError if the
    /// server refuses, and what ServerConnection raises.
    ServerCopyIn(ServerConnection& connection, const QByteArray& sql);
    /// Without End no row is added. If the server cannot be told so, the connection is lost.
    ~ServerCopyIn();
    ServerCopyIn(const ServerCopyIn&) = delete;
    ServerCopyIn& operator=(const ServerCopyIn&) = delete;

    /// Sends whole lines; see CopiedRows. Keeps nothing of them. Raises what ServerConnection raises.
    void Write(const QByteArray& lines);
    /// Raises ServerError if a row was refused; none is added then.
    void End();

private:
    void Begin(const QByteArray& sql);
    void Put(const char* reason);
    std::optional<ServerError> ReadToEnd();

    ServerConnection& m_connection;
    bool m_isOpen = false;
};

} // namespace Orvane
