// SPDX-License-Identifier: MIT
#include "store/postgres/PostgresQueryCursor.h"

#include "store/StoreTexts.h"
#include "store/postgres/PostgresSession.h"

namespace Orvane {

PostgresQueryCursor::PostgresQueryCursor(const PostgresSession& session, const ServerRows& rows)
    : m_session(session), m_rows(rows), m_end(rows.Count())
{
    for (int column = 0; column < m_rows.ColumnCount(); ++column)
        m_columns.Add(m_rows.ColumnName(column));
}

PostgresQueryCursor::PostgresQueryCursor(const PostgresSession& session, const ServerRows& rows, int number)
    : PostgresQueryCursor(session, rows)
{
    m_row = number;
    m_end = number + 1;
}

void PostgresQueryCursor::IRecordset_Close()
{
    m_rows = {};
    m_row = m_end = 0;
}

void PostgresQueryCursor::RequireRow() const
{
    if (IRecordset_AtEOF())
        throw m_session.Errors().Failure(StoreTexts::NoCurrentRow);
}

void PostgresQueryCursor::IRecordset_MoveNext()
{
    RequireRow();
    ++m_row;
}

Value PostgresQueryCursor::IRecordset_Field(std::string_view columnName) const
{
    RequireRow();
    const int position = m_columns.Find(columnName);
    if (position < 0) {
        throw m_session.Errors().Failure(
            StoreTexts::UnknownColumn, QString::fromUtf8(columnName.data(), qsizetype(columnName.size())));
    }
    return m_rows.At(m_row, position, m_columns.IsColour(position));
}

void PostgresQueryCursor::IRecordset_Index(std::string_view)
{
    RaiseReadOnly();
}

void PostgresQueryCursor::IRecordset_Seek(std::string_view, qint32)
{
    RaiseReadOnly();
}

void PostgresQueryCursor::IRecordset_SetField(std::string_view, const Value&)
{
    RaiseReadOnly();
}

void PostgresQueryCursor::IRecordset_Edit()
{
    RaiseReadOnly();
}

void PostgresQueryCursor::IRecordset_Update()
{
    RaiseReadOnly();
}

void PostgresQueryCursor::RaiseReadOnly() const
{
    throw m_session.Errors().Failure(StoreTexts::NotATableCursor);
}

} // namespace Orvane
