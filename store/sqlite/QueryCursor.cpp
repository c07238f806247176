// SPDX-License-Identifier: MIT
#include "store/sqlite/QueryCursor.h"

#include "store/StoreTexts.h"
#include "store/sqlite/SqliteSession.h"

namespace Orvane {

QueryCursor::QueryCursor(SqliteSession& session, StatementLease statement)
    : m_session(session), m_statement(std::move(statement))
{
    StepStatement();
    m_session.openRows.Add(this);
}

QueryCursor::~QueryCursor()
{
    IRecordset_Close();
}

void QueryCursor::IRecordset_Close()
{
    if (!m_statement)
        return;
    m_session.openRows.Remove(this);
    m_statement.Return();
    m_kept.clear();
    m_atEOF = true;
}

void QueryCursor::StepStatement()
{
    m_atEOF = true;
    if (m_statement->Step())
        m_atEOF = false;
    else
        m_statement->Reset();
}

void QueryCursor::IRecordset_MoveNext()
{
    if (m_atEOF)
        throw m_session.connection.Errors().Failure(StoreTexts::NoCurrentRow);
    if (m_kept.empty())
        return StepStatement();
    m_kept.pop_front();
    if (!m_kept.empty() || !m_released)
        return;
    m_atEOF = true;
    if (m_cutShort)
        std::rethrow_exception(m_cutShort);
}

Value QueryCursor::IRecordset_Field(std::string_view columnName) const
{
    if (m_atEOF)
        throw m_session.connection.Errors().Failure(StoreTexts::NoCurrentRow);
    const int position = m_statement->FindColumn(columnName);
    if (position < 0) {
        throw m_session.connection.Errors().Failure(
            StoreTexts::UnknownColumn, QString::fromUtf8(columnName.data(), qsizetype(columnName.size())));
    }
    return m_kept.empty() ? m_statement->Column(position) : m_kept.front()[size_t(position)];
}

void QueryCursor::ReleaseRow()
{
    if (m_released || m_atEOF)
        return;
    // If a row cannot be kept, the statement stays on it, and the rows before it stay in their order.
    do {
        m_kept.push_back(CurrentRow());
    } while (StepWhileKeeping());
    m_statement->Reset();
    m_released = true;
}

// After an error the statement has no rows any more: who reads on must not take that for the end.
bool QueryCursor::StepWhileKeeping()
{
    try {
        return m_statement->Step();
    } catch (...) {
        m_cutShort = std::current_exception();
        m_released = true;
        throw;
    }
}

std::vector<Value> QueryCursor::CurrentRow() const
{
    std::vector<Value> row;
    row.reserve(std::size_t(m_statement->ColumnCount()));
    for (int i = 0; i < m_statement->ColumnCount(); ++i)
        row.push_back(m_statement->Column(i));
    return row;
}

void QueryCursor::IRecordset_Index(std::string_view)
{
    RaiseReadOnly();
}

void QueryCursor::IRecordset_Seek(std::string_view, qint32)
{
    RaiseReadOnly();
}

void QueryCursor::IRecordset_SetField(std::string_view, const Value&)
{
    RaiseReadOnly();
}

void QueryCursor::IRecordset_Edit()
{
    RaiseReadOnly();
}

void QueryCursor::IRecordset_Update()
{
    RaiseReadOnly();
}

void QueryCursor::RaiseReadOnly() const
{
    throw m_session.connection.Errors().Failure(StoreTexts::NotATableCursor);
}

} // namespace Orvane
