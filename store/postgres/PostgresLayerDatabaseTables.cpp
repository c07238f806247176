// SPDX-License-Identifier: MIT
// The tables of a map in a server.
#include "store/postgres/PostgresLayerDatabase.h"
#include "store/postgres/PostgresSession.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/maps/TableDescriptions.h"

#include <OrvaneShellLib/Transaction.h>

namespace Orvane {

// Others may have changed the table since the tables were read.
void PostgresLayerDatabase::PrepareTable(const StoreTable& table)
{
    m_session->transactions.RequireIntact();
    const bool isReadNow = !m_session->tables.IsRead();
    if (StatementsToPrepare(m_session->tables, table).isEmpty())
        return;
    m_session->RequireWritable();
    if (!isReadNow)
        m_session->tables.Forget();
    try {
        MakeTable(table);
    } catch (const ServerError& error) {
        if (!error.IsAboutDuplicate() || m_session->connection->IsLost())
            throw;
        m_session->tables.Forget();
        MakeTable(table); // another program was faster, perhaps with a part of it
    }
}

void PostgresLayerDatabase::MakeTable(const StoreTable& table)
{
    const QByteArrayList statements = StatementsToPrepare(m_session->tables, table);
    if (statements.isEmpty())
        return;
    Transaction transaction(*this);
    m_session->ForgetTables();
    m_session->transactions.WriteTogether([&] {
        ServerPipeline pipeline(*m_session->connection);
        for (const QByteArray& statement : statements)
            pipeline.AddOnce(statement);
        pipeline.Finish();
    });
    transaction.Commit();
}

const KnownTable* PostgresLayerDatabase::TableNow(const QString& table, const QString& column)
{
    KnownTables& tables = m_session->tables;
    m_session->transactions.RequireIntact();
    const bool isReadNow = !tables.IsRead();
    const auto find = [&] {
        const KnownTable* known = tables.Find(table);
        return known && (column.isEmpty() || known->Find(column) >= 0) ? known : nullptr;
    };
    const KnownTable* found = find();
    if (found || isReadNow)
        return found;
    tables.Forget();
    return find();
}

bool PostgresLayerDatabase::HasTable(const QString& table)
{
    return TableNow(table) != nullptr;
}

bool PostgresLayerDatabase::HasColumn(const QString& table, const QString& column)
{
    return TableNow(table, column) != nullptr;
}

std::vector<StoreTable> PostgresLayerDatabase::Tables()
{
    m_session->transactions.RequireIntact();
    return TableDescriptions::Read(
        m_session->tables, m_session->transactions.Read(TableDescriptions::Query()));
}

} // namespace Orvane
