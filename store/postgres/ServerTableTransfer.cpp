// SPDX-License-Identifier: MIT
#include "store/postgres/ServerTableTransfer.h"

#include "store/StoreTexts.h"
#include "store/postgres/PostgresSession.h"
#include "store/postgres/link/CopiedRows.h"
#include "store/postgres/link/QuotedName.h"
#include "store/postgres/link/ServerCopyIn.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/link/ServerRowStream.h"

#include <algorithm>

namespace Orvane {

namespace {

constexpr qsizetype BytesAtOnce = 1 << 16; // of rows, before the network gets a turn

/// A table and those of its columns that are read or written, as the server has them.
struct ServerTable {
    QByteArray name; // in quotes, like the others
    QByteArrayList columns;
    QByteArrayList keys;
    QByteArray numbered; // not in quotes: the key if it is one column of whole numbers
};

ServerTable ServerTableOf(PostgresSession& session, const StoreTable& table)
{
    const KnownTable* known = session.tables.Find(table.name);
    if (!known)
        throw session.Errors().Failure(StoreTexts::UnknownTable, table.name);
    ServerTable result{QuotedName(known->name), {}, {}, {}};
    for (const StoreColumn& column : table.columns) {
        const int position = known->Find(column.name);
        if (position < 0)
            throw session.Errors().Failure(StoreTexts::UnknownColumn, column.name);
        result.columns << QuotedName(known->columns[size_t(position)].name);
    }
    for (const int key : known->keys)
        result.keys << QuotedName(known->columns[size_t(key)].name);
    if (known->keys.size() == 1) {
        const KnownColumn& key = known->columns[size_t(known->keys.front())];
        if (key.type == StoreType::Whole)
            result.numbered = key.name.toUtf8();
    }
    return result;
}

QByteArray SelectionOf(const ServerTable& table)
{
    const QByteArray selection = "SELECT " + table.columns.join(", ") + " FROM " + table.name;
    return table.keys.isEmpty() ? selection : selection + " ORDER BY " + table.keys.join(", ");
}

// Without a sequence, and without rows, it does nothing.
QByteArray NumberingOf(const ServerTable& table)
{
    const QByteArray highest = "max(" + table.keys.front() + ')';
    return "SELECT setval(pg_get_serial_sequence($1, $2), " + highest + ") FROM " + table.name + " HAVING "
        + highest + " > 0";
}

bool RefersToItself(const StoreTable& table)
{
    return std::any_of(table.columns.begin(), table.columns.end(), [&](const StoreColumn& column) {
        return column.refersTo.compare(table.name, Qt::CaseInsensitive) == 0;
    });
}

} // namespace

void ServerTableTransfer::PrepareChange()
{
    m_session.transactions.RequireIntact();
    m_session.RequireWritable();
}

// Until the transaction ends: a row that is copied is not one that a user can take back.
void ServerTableTransfer::RecordNothing()
{
    if (!m_session.changes.IsActive())
        m_session.transactions.Send("SET LOCAL orvane.records = 'off'", {});
}

std::vector<qint64> ServerTableTransfer::CountRows(const std::vector<StoreTable>& tables)
{
    m_session.transactions.RequireIntact();
    QByteArrayList counts;
    for (const StoreTable& table : tables)
        counts << "(SELECT count(*) FROM " + ServerTableOf(m_session, table).name + ')';
    const ServerRows rows = m_session.transactions.Read("SELECT " + counts.join(", "));
    std::vector<qint64> result;
    result.reserve(tables.size());
    for (int column = 0; column < rows.ColumnCount(); ++column)
        result.push_back(rows.Number(0, column));
    return result;
}

qint64 ServerTableTransfer::CountDangling(const StoreTable& table, const StoreColumn& column)
{
    m_session.transactions.RequireIntact();
    const ServerTable child = ServerTableOf(m_session, {table.name, {column}, {}});
    const ServerTable parent = ServerTableOf(m_session, {column.refersTo, {{column.refersToColumn}}, {}});
    const QByteArray& value = child.columns.front();
    return m_session.transactions
        .Read(
            "SELECT count(*) FROM " + child.name + " WHERE " + value + " IS NOT NULL AND " + value
            + " NOT IN (SELECT " + parent.columns.front() + " FROM " + parent.name + ')')
        .Number(0, 0);
}

void ServerTableTransfer::ReadRows(const StoreTable& table, const RowVisitor& visitor)
{
    m_session.transactions.RequireIntact();
    const QByteArray selection = SelectionOf(ServerTableOf(m_session, table));
    m_session.transactions.Read("SELECT 1"); // so that the server begins the transaction
    ServerRowStream stream(*m_session.connection, selection);
    StoreRow row(table.columns.size());
    while (stream.Next()) {
        for (size_t column = 0; column < row.size(); ++column)
            row[column] = stream.Row().At(0, int(column));
        visitor(row);
    }
}

void ServerTableTransfer::RemoveRows(const StoreTable& table)
{
    PrepareChange();
    RecordNothing();
    m_session.transactions.Write("DELETE FROM " + ServerTableOf(m_session, table).name);
}

void ServerTableTransfer::AddRows(
    const StoreTable& table, const std::function<void(const RowVisitor& add)>& source)
{
    PrepareChange();
    const ServerTable target = ServerTableOf(m_session, table);
    RecordNothing();
    if (RefersToItself(table))
        m_session.transactions.Write("SET CONSTRAINTS ALL DEFERRED");
    m_session.transactions.WriteTogether([&] {
        ServerCopyIn copy(
            *m_session.connection, "COPY " + target.name + " (" + target.columns.join(", ") + ") FROM STDIN");
        CopiedRows rows;
        source([&](const StoreRow& row) {
            rows.Add(row);
            if (rows.Text().size() < BytesAtOnce)
                return;
            copy.Write(rows.Text());
            rows.Clear();
        });
        copy.Write(rows.Text());
        copy.End();
    });
}

// A number that was given with its row is not known to what numbers the next rows.
void ServerTableTransfer::FinishRows(const std::vector<StoreTable>& tables)
{
    PrepareChange();
    m_session.transactions.WriteTogether([&] {
        ServerPipeline pipeline(*m_session.connection);
        for (const StoreTable& table : tables) {
            const ServerTable target = ServerTableOf(m_session, table);
            if (!target.numbered.isEmpty())
                pipeline.AddOnce(NumberingOf(target), {target.name, target.numbered});
            pipeline.AddOnce("ANALYZE " + target.name);
        }
        pipeline.Finish();
    });
}

} // namespace Orvane
