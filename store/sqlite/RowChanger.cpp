// SPDX-License-Identifier: MIT
#include "store/sqlite/RowChanger.h"

#include "store/ChangeCoding.h"
#include "store/sqlite/SqliteSession.h"

#include <QStringList>

#include <algorithm>
#include <sqlite3.h>

namespace Orvane {

namespace {

constexpr size_t MaxKnown = 64;

QString Quoted(const std::string& name)
{
    return u'"' + QString::fromStdString(name).replace(u'"', QLatin1String("\"\"")) + u'"';
}

QString ColumnName(const ChangedTable& table, int position)
{
    return Quoted(table.columns[size_t(position)]);
}

// "<column> = ?" for each column of the key.
QString KeyCondition(const ChangedTable& table)
{
    QStringList conditions;
    for (const int key : table.keys)
        conditions << ColumnName(table, key) + QLatin1String(" = ?");
    return conditions.join(QLatin1String(" AND "));
}

// Requires exactly the former values; texts that differ only in case are different.
QString BeforeCondition(const ChangedTable& table, const ChangedRow& row)
{
    QString conditions;
    for (const ChangedRow::Column& column : row.columns)
        conditions += QLatin1String(" AND ") + ColumnName(table, column.position)
            + QLatin1String(" IS ? COLLATE BINARY");
    return conditions;
}

QString Updating(const ChangedTable& table, const ChangedRow& row)
{
    QStringList assignments;
    for (const ChangedRow::Column& column : row.columns)
        assignments << ColumnName(table, column.position) + QLatin1String(" = ?");
    return QLatin1String("UPDATE ") + Quoted(table.name) + QLatin1String(" SET ")
        + assignments.join(QLatin1String(", ")) + QLatin1String(" WHERE ") + KeyCondition(table)
        + BeforeCondition(table, row);
}

QString Inserting(const ChangedTable& table, const ChangedRow& row)
{
    QStringList names;
    QStringList marks;
    for (const ChangedRow::Column& column : row.columns) {
        names << ColumnName(table, column.position);
        marks << QStringLiteral("?");
    }
    return QLatin1String("INSERT INTO ") + Quoted(table.name) + QLatin1String(" (")
        + names.join(QLatin1String(", ")) + QLatin1String(") VALUES (") + marks.join(QLatin1String(", "))
        + u')';
}

QString Deleting(const ChangedTable& table, const ChangedRow& row)
{
    return QLatin1String("DELETE FROM ") + Quoted(table.name) + QLatin1String(" WHERE ") + KeyCondition(table)
        + BeforeCondition(table, row);
}

QString StatementText(const ChangedTable& table, const ChangedRow& row)
{
    if (row.kind == ChangeKind::Inserted)
        return Inserting(table, row);
    return row.kind == ChangeKind::Deleted ? Deleting(table, row) : Updating(table, row);
}

// The order of the parameters in the statements above.
void BindRow(SqliteStatement& statement, const ChangedRow& row)
{
    int number = 0;
    if (row.kind != ChangeKind::Deleted) {
        for (const ChangedRow::Column& column : row.columns)
            statement.Bind(++number, ChangeBytes::Decoded(column.after));
    }
    if (row.kind == ChangeKind::Inserted)
        return;
    for (ChangeBytes key(row.key); !key.AtEnd();)
        statement.Bind(++number, ChangeBytes::Decoded(key.CodedValue()));
    for (const ChangedRow::Column& column : row.columns)
        statement.Bind(++number, ChangeBytes::Decoded(column.before));
}

std::vector<int> PositionsOf(const ChangedRow& row)
{
    std::vector<int> positions;
    positions.reserve(row.columns.size());
    for (const ChangedRow::Column& column : row.columns)
        positions.push_back(column.position);
    return positions;
}

bool HasPositions(const ChangedRow& row, const std::vector<int>& positions)
{
    return std::equal(
        positions.begin(), positions.end(), row.columns.begin(), row.columns.end(),
        [](int position, const ChangedRow::Column& column) { return position == column.position; });
}

} // namespace

RowChanger::Outcome RowChanger::Change(const ChangedTable& table, const ChangedRow& row)
{
    SqliteStatement& statement = StatementFor(table, row);
    BindRow(statement, row);
    return Run(statement, table, row);
}

SqliteStatement& RowChanger::StatementFor(const ChangedTable& table, const ChangedRow& row)
{
    const auto fits = [&](const Known& known) {
        return known.table == row.table && known.kind == row.kind && HasPositions(row, known.positions);
    };
    if (m_last < m_known.size() && fits(m_known[m_last]))
        return *m_known[m_last].statement;
    const auto found = std::find_if(m_known.begin(), m_known.end(), fits);
    m_last = size_t(found - m_known.begin());
    if (found != m_known.end())
        return *found->statement;
    auto statement = std::make_unique<SqliteStatement>(m_session.connection, StatementText(table, row));
    if (m_known.size() == MaxKnown)
        m_known.clear();
    m_last = m_known.size();
    m_known.push_back({row.table, row.kind, PositionsOf(row), std::move(statement)});
    return *m_known.back().statement;
}

RowChanger::Outcome
RowChanger::Run(SqliteStatement& statement, const ChangedTable& table, const ChangedRow& row)
{
    m_session.transactions.RequireIntact();
    const size_t place = m_session.changes.Place();
    const int result = statement.TryStep();
    const bool hasChanged = sqlite3_changes(m_session.connection.Handle()) > 0;
    statement.Reset();
    if (result == SQLITE_DONE) {
        const bool isGoneAlready = row.kind == ChangeKind::Deleted && !hasChanged && !IsThere(table, row);
        return hasChanged || isGoneAlready ? Outcome::Done : Outcome::Conflict;
    }
    m_session.changes.GoBackTo(place);
    if ((result & 0xFF) != SQLITE_CONSTRAINT)
        m_session.connection.Raise(result);
    return Outcome::Blocked;
}

bool RowChanger::IsThere(const ChangedTable& table, const ChangedRow& row)
{
    SqliteStatement statement(
        m_session.connection,
        QLatin1String("SELECT 1 FROM ") + Quoted(table.name) + QLatin1String(" WHERE ")
            + KeyCondition(table));
    int number = 0;
    for (ChangeBytes key(row.key); !key.AtEnd();)
        statement.Bind(++number, ChangeBytes::Decoded(key.CodedValue()));
    return statement.Step();
}

} // namespace Orvane
