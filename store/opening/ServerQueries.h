// SPDX-License-Identifier: MIT
#pragma once

#include "store/opening/ServerMaps.h"

#include <QByteArray>
#include <QByteArrayList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

/// A connection to a server that can only read, for tables that belong to no map. All its queries see one
/// state. It runs no code of others: only the server's own functions and operators are found, and rows behind
/// policies are refused.
///
///     ServerQueries queries(server, access);
///     queries.Read("SELECT id FROM " + ServerQueries::Quoted(table), {}, [&](const auto& row) { ... });
///
/// Use it on one thread. Errors are those of ServerMaps.
class ServerQueries
{
public:
    /// The values of a row in the text form of PostgreSQL; nothing for NULL.
    using Row = std::vector<std::optional<QByteArray>>;

    /// Connects. server: as ServerMaps names it.
    ServerQueries(const QString& server, const ServerMaps::Access& access);
    ~ServerQueries();
    ServerQueries(const ServerQueries&) = delete;
    ServerQueries& operator=(const ServerQueries&) = delete;

    /// Runs a query and calls take for each row; reads a part of the rows at a time, few of them if they are
    /// large, so that many need little memory. values: for $1, $2 ... Raises what take raises; after an
    /// error nothing more can be read.
    void
    Read(const QByteArray& sql, const QByteArrayList& values, const std::function<void(const Row&)>& take);

    /// A name in quotes, as a query writes it.
    static QByteArray Quoted(const QString& name);

private:
    class Link;

    std::unique_ptr<Link> m_link;
};

} // namespace Orvane
