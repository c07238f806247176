// SPDX-License-Identifier: MIT
#include "store/postgres/maps/KnownTables.h"

#include "store/postgres/link/QuotedName.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/maps/MapSchema.h"
#include "store/postgres/maps/NoteFunction.h"
#include "store/postgres/maps/TableSql.h"

#include <algorithm>

namespace Orvane {

namespace {

// "names" is orvane_names.
constexpr const char* TablesQuery = R"sql(
SELECT c.oid, c.relname, coalesce(t.spelled, c.relname), a.attnum, a.attname, coalesce(s.spelled, a.attname),
    format_type(a.atttypid, a.atttypmod), coalesce(array_position(k.conkey, a.attnum), 0),
    (SELECT count(*) FROM pg_trigger AS g WHERE g.tgrelid = c.oid AND starts_with(g.tgname, 'orvane_'))
FROM pg_class AS c
JOIN pg_attribute AS a ON a.attrelid = c.oid AND a.attnum > 0 AND NOT a.attisdropped
LEFT JOIN pg_constraint AS k ON k.conrelid = c.oid AND k.contype = 'p'
LEFT JOIN names AS t ON t.table_name = c.relname AND t.column_name = ''
LEFT JOIN names AS s ON s.table_name = c.relname AND s.column_name = a.attname
WHERE c.relnamespace = (SELECT oid FROM pg_namespace WHERE nspname = $1)
    AND c.relkind = 'r' AND NOT starts_with(c.relname, 'orvane_')
ORDER BY c.relname, a.attnum)sql";

enum TablesField {
    TableNumber,
    TableName,
    TableSpelled,
    ColumnNumber,
    ColumnName,
    ColumnSpelled,
    ColumnType,
    KeyPlace,
    TriggerCount
};

StoreType TypeNamed(const QByteArray& name)
{
    if (name == "integer" || name == "smallint" || name == "bigint")
        return StoreType::Whole;
    if (name == "double precision" || name == "real")
        return StoreType::Real;
    return name == "boolean" ? StoreType::Flag : StoreType::Text;
}

QByteArray BytesAt(const ServerRows& rows, int row, int column)
{
    const std::string_view raw = rows.Raw(row, column);
    return QByteArray(raw.data(), int(raw.size()));
}

KnownTable NewTable(const ServerRows& rows, int row)
{
    return {
        quint32(rows.Number(row, TableNumber)),
        rows.Text(row, TableName),
        rows.Text(row, TableSpelled),
        {},
        {},
        rows.Number(row, TriggerCount) == qint64(NoteFunction::AllTriggers.size())};
}

void AddColumn(KnownTable& table, const ServerRows& rows, int row)
{
    const QByteArray type = BytesAt(rows, row, ColumnType);
    const auto place = size_t(rows.Number(row, KeyPlace));
    if (place > 0) {
        table.keys.resize(std::max(table.keys.size(), place));
        table.keys[place - 1] = int(table.columns.size());
    }
    table.columns.push_back(
        {int(rows.Number(row, ColumnNumber)), rows.Text(row, ColumnName), rows.Text(row, ColumnSpelled),
         TypeNamed(type), type});
}

// A table that was not made here, as far as its triggers need it.
StoreTable Described(const KnownTable& known)
{
    StoreTable table{known.name, {}, {}};
    table.columns.reserve(known.columns.size());
    for (const KnownColumn& column : known.columns)
        table.columns.push_back({column.name, column.type});
    table.key.reserve(known.keys.size());
    for (const int key : known.keys)
        table.key.push_back(known.columns[size_t(key)].name);
    return table;
}

} // namespace

int KnownTable::Find(const QString& column) const
{
    const QString searched = TableSql::ServerName(column);
    const auto found = std::find_if(
        columns.begin(), columns.end(), [&](const KnownColumn& known) { return known.name == searched; });
    return found == columns.end() ? -1 : int(found - columns.begin());
}

QByteArray KnownTables::Query(const QString& schema)
{
    return "WITH names AS (SELECT * FROM " + QuotedName(schema) + ".orvane_names)" + TablesQuery;
}

// No function or operator of the map's schema takes part.
void KnownTables::Read()
{
    const QString& schema = m_connection.Schema();
    ServerPipeline pipeline(m_connection);
    pipeline.AddOnce(QByteArray("SET search_path = ") + ServerConnection::SafePath);
    const size_t known = pipeline.AddOnce(Query(schema), {schema.toUtf8()});
    pipeline.AddOnce("SET search_path = " + MapSchema::SearchPath(schema));
    pipeline.Finish();
    Take(pipeline.Answer(known));
}

void KnownTables::Take(const ServerRows& rows)
{
    m_tables.clear();
    for (int row = 0; row < rows.Count(); ++row) {
        const QString name = rows.Text(row, TableName);
        if (m_tables.empty() || m_tables.back().name != name)
            m_tables.push_back(NewTable(rows, row));
        AddColumn(m_tables.back(), rows, row);
    }
    m_isRead = true;
}

const std::vector<KnownTable>& KnownTables::All()
{
    if (!m_isRead)
        Read();
    return m_tables;
}

const KnownTable* KnownTables::Find(const QString& name)
{
    const QString searched = TableSql::ServerName(name);
    const std::vector<KnownTable>& tables = All();
    const auto found = std::find_if(
        tables.begin(), tables.end(), [&](const KnownTable& table) { return table.name == searched; });
    return found == tables.end() ? nullptr : &*found;
}

const KnownTable* KnownTables::FindNumber(quint32 number)
{
    const std::vector<KnownTable>& tables = All();
    const auto found = std::find_if(
        tables.begin(), tables.end(), [&](const KnownTable& table) { return table.number == number; });
    return found == tables.end() ? nullptr : &*found;
}

QByteArrayList StatementsToPrepare(KnownTables& tables, const StoreTable& table)
{
    const KnownTable* known = tables.Find(table.name);
    if (!known)
        return TableSql::Making(TableSql::WithReferencesIndexed(table)) << NoteFunction::SchemaNotice();
    QByteArrayList statements;
    for (const StoreColumn& column : table.columns) {
        if (known->Find(column.name) < 0)
            statements += TableSql::Adding(table.name, column);
    }
    if (!known->isNoted)
        statements += NoteFunction::Triggers(Described(*known)) + TableSql::Spellings(table);
    if (!statements.isEmpty())
        statements << NoteFunction::SchemaNotice();
    return statements;
}

} // namespace Orvane
