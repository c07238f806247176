// SPDX-License-Identifier: MIT
#include "store/sqlite/TableCursor.h"

#include "store/StoreTexts.h"
#include "store/sqlite/SqliteSession.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <sqlite3.h>

namespace Orvane {

namespace {

QString Text(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

} // namespace

TableCursor::TableCursor(SqliteSession& session, TableAccess& table)
    : m_session(session), m_table(table), m_row(table.LeaseSeek())
{
    m_keyPosition = m_row->FindColumn(table.KeyColumn());
    m_session.openRows.Add(this);
}

TableCursor::~TableCursor()
{
    IRecordset_Close();
}

void TableCursor::IRecordset_Close()
{
    if (m_closed)
        return;
    m_closed = true;
    DropEdit();
    LeaveRow();
    m_row.Return();
    m_probe.Return();
    m_session.openRows.Remove(this);
}

void TableCursor::IRecordset_Index(std::string_view indexName)
{
    if (!SameName(indexName, m_table.IndexName()))
        throw m_session.connection.Errors().Failure(StoreTexts::UnknownIndex, Text(indexName));
    m_indexChosen = true;
}

void TableCursor::IRecordset_Seek(std::string_view comparison, qint32 key)
{
    const StoreErrors& errors = m_session.connection.Errors();
    if (m_closed)
        throw errors.Failure(StoreTexts::CursorClosed);
    if (comparison != "=")
        throw errors.Failure(StoreTexts::SeekNotEqual, Text(comparison));
    if (!m_indexChosen)
        throw errors.Failure(StoreTexts::NoIndexChosen);
    DropEdit();
    m_noMatch = !GoTo(key);
}

bool TableCursor::GoTo(qint32 key)
{
    LeaveRow();
    m_key = key;
    return m_table.ExpectsReading() ? ReadRow() : Probe(key);
}

void TableCursor::LeaveRow()
{
    if (m_state != RowState::None)
        m_table.ExpectReading(m_wasRead);
    m_wasRead = false;
    ReleaseRow();
    m_state = RowState::None;
}

bool TableCursor::Probe(qint32 key)
{
    if (!m_probe)
        m_probe = m_table.LeaseProbe();
    m_probe->Bind(1, key);
    const bool found = m_probe->Step();
    m_probe->Reset();
    m_state = found ? RowState::Released : RowState::None;
    return found;
}

bool TableCursor::ReadRow() const
{
    m_row->Bind(1, m_key);
    if (m_row->Step()) {
        m_state = RowState::Live;
        return true;
    }
    m_row->Reset();
    m_state = RowState::None;
    return false;
}

void TableCursor::IRecordset_MoveNext()
{
    RequireRow();
    DropEdit();
    const StatementLease next = m_table.LeaseNextKey();
    next->Bind(1, m_key);
    if (!next->Step()) {
        LeaveRow();
        return;
    }
    GoTo(ToInt32(next->Column(0)));
}

Value TableCursor::IRecordset_Field(std::string_view columnName) const
{
    RequireRow();
    const int position = PositionOf(columnName);
    if (const Value* value = m_edit.Find(position))
        return *value;
    if (position == m_keyPosition)
        return m_key;
    EnsureLive();
    return m_row->Column(position);
}

void TableCursor::IRecordset_SetField(std::string_view columnName, const Value& value)
{
    RequireEdit();
    if (value.IsEmpty())
        throw m_session.connection.Errors().Error(ErrorNumber::TypeMismatch, StoreTexts::NothingToStore);
    m_edit.Set(PositionOf(columnName), value);
}

void TableCursor::IRecordset_Edit()
{
    RequireRow();
    DropEdit();
    m_session.transactions.PrepareWrite();
    m_editing = true;
}

void TableCursor::IRecordset_Update()
{
    RequireEdit();
    if (!m_edit.IsEmpty())
        StoreEdit();
    DropEdit();
}

void TableCursor::StoreEdit()
{
    SqliteStatement& update = m_table.UpdateOf(m_edit, *m_row);
    int number = 0;
    for (const auto& column : m_edit.Columns())
        update.Bind(++number, column.value);
    update.Bind(number + 1, m_key);
    ReleaseRow();
    m_session.transactions.RunWrite(update);
    if (sqlite3_changes(m_session.connection.Handle()) == 0)
        throw m_session.connection.Errors().Failure(StoreTexts::RowGone);
    if (const Value* newKey = m_edit.Find(m_keyPosition))
        m_key = ToInt32(*newKey);
}

void TableCursor::DropEdit()
{
    m_edit.Clear();
    m_editing = false;
}

void TableCursor::ReleaseRow()
{
    if (m_state != RowState::Live)
        return;
    m_row->Reset();
    m_state = RowState::Released;
}

void TableCursor::EnsureLive() const
{
    m_wasRead = true;
    if (m_state == RowState::Released && !ReadRow())
        throw m_session.connection.Errors().Failure(StoreTexts::RowGone);
}

void TableCursor::RequireRow() const
{
    if (m_state == RowState::None)
        throw m_session.connection.Errors().Failure(StoreTexts::NoCurrentRow);
}

void TableCursor::RequireEdit() const
{
    if (!m_editing)
        throw m_session.connection.Errors().Failure(StoreTexts::NotEditing);
}

int TableCursor::PositionOf(std::string_view columnName) const
{
    const int position = m_row->FindColumn(columnName);
    if (position < 0)
        throw m_session.connection.Errors().Failure(StoreTexts::UnknownColumn, Text(columnName));
    return position;
}

} // namespace Orvane
