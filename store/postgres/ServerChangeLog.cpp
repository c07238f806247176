// SPDX-License-Identifier: MIT
#include "store/postgres/ServerChangeLog.h"

#include "store/ChangeCoding.h"
#include "store/StoreTexts.h"
#include "store/postgres/link/RowText.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/maps/KnownTables.h"
#include "store/postgres/maps/NoteFunction.h"

#include <QScopeGuard>

#include <algorithm>
#include <limits>

namespace Orvane {

namespace {

enum LoggedField { LoggedStatement, LoggedTab, LoggedColumns, LoggedBefore, LoggedAfter };

QByteArray ChangesQuery(const QByteArray& condition)
{
    return "SELECT statement, tab, columns, before, after FROM pg_temp.orvane_log" + condition
        + " ORDER BY statement, columns NULLS LAST";
}

double RealOf(const QByteArray& text)
{
    if (text == "NaN")
        return std::numeric_limits<double>::quiet_NaN();
    if (text == "Infinity")
        return std::numeric_limits<double>::infinity();
    return text == "-Infinity" ? -std::numeric_limits<double>::infinity() : text.toDouble();
}

void CodeValue(std::string& bytes, const std::optional<std::string>& value, StoreType type)
{
    bytes.clear();
    if (!value)
        return ChangeCoding::AppendNull(bytes);
    const QByteArray text = QByteArray::fromRawData(value->data(), int(value->size()));
    switch (type) {
    case StoreType::Flag:
        return ChangeCoding::AppendInteger(bytes, text == "t" ? 1 : 0);
    case StoreType::Whole:
        return ChangeCoding::AppendInteger(bytes, text.toLongLong());
    case StoreType::Real:
        return ChangeCoding::AppendReal(bytes, RealOf(text));
    default:
        return ChangeCoding::AppendText(bytes, *value);
    }
}

QByteArray NumbersOfColumns(const KnownTable& table)
{
    QByteArrayList numbers;
    for (const KnownColumn& column : table.columns)
        numbers << QByteArray::number(column.number);
    return numbers.join(',');
}

std::string KeyOfRow(const ChangedTable& table, const std::vector<std::string>& values)
{
    std::string key;
    for (const int column : table.keys)
        key += values[size_t(column)];
    return key;
}

} // namespace

QByteArrayList ServerChangeLog::Preparation()
{
    QByteArray making;
    for (const QByteArray& statement : NoteFunction::LogCreation())
        making += statement + "; ";
    return {
        "DO $$ BEGIN IF pg_catalog.has_database_privilege(pg_catalog.current_database(), 'TEMP') THEN "
            + making + "END IF; END $$",
        "SET orvane.records = 'on'", "SELECT pg_catalog.to_regclass('pg_temp.orvane_log') IS NOT NULL"};
}

void ServerChangeLog::TakePreparation(const ServerRows& rows)
{
    m_isPossible = rows.Flag(0, 0);
}

bool ServerChangeLog::IsInTransaction() const
{
    return m_connection.TransactionState() == ServerConnection::State::InTransaction;
}

int ServerChangeLog::Begin(Written written)
{
    Start start;
    if (written == Written::Perhaps && IsInTransaction()) {
        start.statement = m_connection.Run(PlaceQuery()).Number(0, 0);
    } else if (m_starts.empty()) {
        m_log.Clear();
        m_logged.clear();
    }
    start.place = m_log.Size();
    m_starts.emplace(++m_lastStart, start);
    return m_lastStart;
}

void ServerChangeLog::End(int number)
{
    m_starts.erase(number);
}

QByteArray ServerChangeLog::CommitQuery()
{
    return ChangesQuery({});
}

void ServerChangeLog::TakeCommitted(const ServerRows& rows)
{
    Add(rows, true);
}

QByteArray ServerChangeLog::PlaceQuery()
{
    return "SELECT coalesce(nullif(pg_catalog.current_setting('orvane.statements', true), ''), '0')";
}

void ServerChangeLog::GoBackTo(const ServerRows& place)
{
    for (auto& [number, start] : m_starts)
        start.statement = std::min(start.statement, place.Number(0, 0));
}

void ServerChangeLog::EndTransaction()
{
    PlaceStarts(std::numeric_limits<qint64>::max());
}

void ServerChangeLog::NoteGap()
{
    for (auto& [number, start] : m_starts)
        start.hasGaps = true;
}

void ServerChangeLog::RequireComplete(const Start& start) const
{
    if (!m_isPossible)
        throw m_connection.Errors().Failure(StoreTexts::CannotRecord);
    if (start.hasGaps)
        throw m_connection.Errors().Failure(StoreTexts::ChangesMissed);
}

Changeset ServerChangeLog::ChangesSince(int number)
{
    const Start start = m_starts.at(number);
    RequireComplete(start);
    if (!IsInTransaction())
        return m_log.ChangesSince(start.place);
    const ServerRows rows
        = m_connection.Run(ChangesQuery(" WHERE statement > $1"), {QByteArray::number(start.statement)});
    const size_t end = m_log.Size();
    const auto goBack = qScopeGuard([&] { m_log.GoBackTo(end); }); // it may still be rolled back
    Add(rows, false);
    return m_log.ChangesSince(start.place);
}

// A recorder that started within a transaction starts in the log after what the transaction had changed
// before.
void ServerChangeLog::PlaceStarts(qint64 statement)
{
    for (auto& [number, start] : m_starts) {
        if (start.statement > 0 && start.statement < statement) {
            start.place = m_log.Size();
            start.statement = 0;
        }
    }
}

void ServerChangeLog::Add(const ServerRows& rows, bool placeStarts)
{
    const LoggedTable* table = nullptr;
    for (int row = 0; row < rows.Count(); ++row) {
        if (rows.IsNull(row, LoggedColumns)) {
            if (table)
                AddRow(*table, rows, row);
            continue;
        }
        if (placeStarts)
            PlaceStarts(rows.Number(row, LoggedStatement));
        table = TableOf(rows, row);
    }
}

// Null for a table that is gone.
const ServerChangeLog::LoggedTable* ServerChangeLog::TableOf(const ServerRows& rows, int row)
{
    const auto number = quint32(rows.Number(row, LoggedTab));
    const QByteArray columns = rows.Text(row, LoggedColumns).toLatin1();
    const auto found = std::find_if(m_logged.begin(), m_logged.end(), [&](const LoggedTable& logged) {
        return logged.number == number && logged.columns == columns;
    });
    return found != m_logged.end() ? &*found : NewTable(number, columns);
}

const ServerChangeLog::LoggedTable* ServerChangeLog::NewTable(quint32 number, const QByteArray& columns)
{
    const KnownTable* known = m_tables.FindNumber(number);
    if (!known || NumbersOfColumns(*known) != columns) {
        m_tables.Forget(); // this transaction, or another program, has changed the table
        known = m_tables.FindNumber(number);
    }
    if (!known || !NumbersOfColumns(*known).startsWith(columns)) {
        NoteGap();
        return nullptr;
    }
    ChangedTable table{known->spelled.toStdString(), {}, known->keys};
    LoggedTable logged{number, columns, 0, {}};
    for (const KnownColumn& column : known->columns) {
        table.columns.push_back(column.spelled.toStdString());
        logged.types.push_back(column.type);
    }
    logged.position = m_log.AddTable(std::move(table));
    return &m_logged.emplace_back(std::move(logged));
}

bool ServerChangeLog::ReadCoded(
    const LoggedTable& table, const ServerRows& rows, int row, int column, RowValues& values,
    std::vector<std::string>& coded)
{
    coded.clear();
    if (rows.IsNull(row, column) || !ReadRowText(rows.Raw(row, column), values))
        return false;
    values.resize(table.types.size()); // a table that got columns in the same transaction
    coded.resize(values.size());
    for (size_t place = 0; place < values.size(); ++place)
        CodeValue(coded[place], values[place], table.types[place]);
    return true;
}

void ServerChangeLog::AddRow(const LoggedTable& table, const ServerRows& rows, int row)
{
    const bool wasThere = ReadCoded(table, rows, row, LoggedBefore, m_values, m_before);
    const bool isThere = ReadCoded(table, rows, row, LoggedAfter, m_values, m_after);
    const ChangedTable& described = m_log.Table(table.position);
    if (wasThere == isThere && !wasThere)
        return;
    const ChangeKind kind = !wasThere ? ChangeKind::Inserted
        : isThere                     ? ChangeKind::Updated
                                      : ChangeKind::Deleted;
    const std::vector<std::string>& values = isThere ? m_after : m_before;
    m_log.BeginRow(table.position, kind, KeyOfRow(described, values));
    for (size_t column = 0; column < values.size(); ++column) {
        if (kind != ChangeKind::Updated)
            m_log.AddColumn(int(column), values[column], values[column]);
        else if (m_before[column] != m_after[column])
            m_log.AddColumn(int(column), m_before[column], m_after[column]);
    }
    m_log.FinishRow();
}

} // namespace Orvane
