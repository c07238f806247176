// SPDX-License-Identifier: MIT
#include "store/opening/ServerQueries.h"

#include "store/postgres/link/QuotedName.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/link/ServerPlace.h"
#include "store/shared/WorkWatch.h"

#include <algorithm>

namespace Orvane {

namespace {

constexpr int FewestTogether = 10; // at a time
constexpr int MostTogether = 1000;
constexpr qsizetype BytesTogether = 1048576;

// Small rows come in larger parts than large ones.
int RowsAfter(int rows, qsizetype bytes)
{
    if (bytes > BytesTogether)
        return FewestTogether;
    return bytes > BytesTogether / 4 ? rows : std::min(rows * 4, MostTogether);
}

qsizetype BytesOf(const ServerQueries::Row& row)
{
    qsizetype bytes = 0;
    for (const std::optional<QByteArray>& value : row)
        bytes += value ? value->size() : 0;
    return bytes;
}

ServerQueries::Row RowIn(const ServerRows& rows, int number)
{
    ServerQueries::Row row(size_t(rows.ColumnCount()));
    for (int column = 0; column < rows.ColumnCount(); ++column) {
        const std::string_view raw = rows.Raw(number, column);
        if (!rows.IsNull(number, column))
            row[size_t(column)] = QByteArray(raw.data(), qsizetype(raw.size()));
    }
    return row;
}

} // namespace

/// The connection, and who can end its work.
class ServerQueries::Link
{
public:
    Link(const QString& server, const ServerMaps::Access& access)
    {
        m_watch.SetWatcher(access.watcher);
        m_connection = ServerConnection::Connect(ServerPlace::FromText(server), access.options, m_watch);
        ServerPipeline pipeline(*m_connection);
        for (const char* setting :
             {"search_path = pg_catalog, pg_temp", "row_security = off", "default_transaction_read_only = on",
              "extra_float_digits = 1", "datestyle = 'ISO'", "bytea_output = 'hex'"})
            pipeline.AddOnce(QByteArray("SET ") + setting);
        pipeline.Finish();
        m_connection->Run("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY");
    }

    ServerConnection& Connection() const { return *m_connection; }

private:
    WorkWatch m_watch;
    std::unique_ptr<ServerConnection> m_connection;
};

ServerQueries::ServerQueries(const QString& server, const ServerMaps::Access& access)
    : m_link(std::make_unique<Link>(server, access))
{
}

ServerQueries::~ServerQueries() = default;

void ServerQueries::Read(
    const QByteArray& sql, const QByteArrayList& values, const std::function<void(const Row&)>& take)
{
    ServerConnection& connection = m_link->Connection();
    connection.Run(
        "DECLARE orvane_rows NO SCROLL CURSOR FOR " + sql, ServerValues(values.begin(), values.end()));
    int wanted = FewestTogether;
    for (bool isMore = true; isMore;) {
        const ServerRows rows = connection.Run("FETCH " + QByteArray::number(wanted) + " FROM orvane_rows");
        qsizetype bytes = 0;
        for (int number = 0; number < rows.Count(); ++number) {
            const Row row = RowIn(rows, number);
            bytes += BytesOf(row);
            take(row);
        }
        isMore = rows.Count() == wanted;
        wanted = RowsAfter(wanted, bytes);
    }
    connection.Run("CLOSE orvane_rows");
}

QByteArray ServerQueries::Quoted(const QString& name)
{
    return QuotedName(name);
}

} // namespace Orvane
