// SPDX-License-Identifier: MIT
#include "store/postgres/PostgresTableCursor.h"

#include "store/StoreTexts.h"
#include "store/postgres/PostgresSession.h"
#include "store/postgres/SoughtRows.h"
#include "store/postgres/link/QuotedName.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace Orvane {

namespace {

constexpr size_t MostColumnSets = 16; // that are kept
constexpr qsizetype ShortText = 500; // which certainly fits into an index

QString NameText(std::string_view name)
{
    return QString::fromUtf8(name.data(), qsizetype(name.size()));
}

// A colour that is written as an unsigned number is stored as the number with the same bits.
Value Folded(const Value& value)
{
    const auto number = value.IsNumber() ? ToDouble(value) : 0.0;
    const bool isUnsigned = number > double(std::numeric_limits<qint32>::max())
        && number <= double(std::numeric_limits<quint32>::max());
    return isUnsigned ? Value(qint32(quint32(number))) : value;
}

bool IsWhole(const Value& value, double smallest, double largest)
{
    const double number = value.IsNumber() ? ToDouble(value) : std::nan("");
    return number >= smallest && number <= largest && number == std::floor(number);
}

// False if the server might refuse the value.
bool Fits(const Value& value, StoreType type)
{
    switch (type) {
    case StoreType::Flag:
        return value.Kind() == ValueKind::Boolean || IsWhole(value, 0, 1);
    case StoreType::Whole:
        return IsWhole(value, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max());
    case StoreType::Real:
        return value.IsNumber() && !std::isnan(ToDouble(value));
    case StoreType::Text:
        return value.Kind() == ValueKind::Text && value.Get<QString>()->size() <= ShortText;
    }
    return false;
}

bool HaveSame(const TableRow& one, const TableRow& other, int column)
{
    return one.rows.IsNull(one.number, column) == other.rows.IsNull(other.number, column)
        && one.rows.Raw(one.number, column) == other.rows.Raw(other.number, column);
}

} // namespace

PostgresTableCursor::PostgresTableCursor(PostgresSession& session, SoughtRows& rows)
    : m_session(session), m_rows(rows), m_table(rows.Table())
{
}

void PostgresTableCursor::IRecordset_Close()
{
    m_closed = true;
    DropEdit();
    m_hasRow = false;
    m_row = {};
}

void PostgresTableCursor::IRecordset_Index(std::string_view indexName)
{
    if (!SameName(indexName, m_table.indexName))
        throw m_session.Errors().Failure(StoreTexts::UnknownIndex, NameText(indexName));
    m_indexChosen = true;
}

void PostgresTableCursor::IRecordset_Seek(std::string_view comparison, qint32 key)
{
    const StoreErrors& errors = m_session.Errors();
    if (m_closed)
        throw errors.Failure(StoreTexts::CursorClosed);
    if (comparison != "=")
        throw errors.Failure(StoreTexts::SeekNotEqual, NameText(comparison));
    if (!m_indexChosen)
        throw errors.Failure(StoreTexts::NoIndexChosen);
    m_session.transactions.RequireIntact();
    m_session.connection->AskWatcher();
    DropEdit();
    m_hasRow = false;
    m_key = key;
    m_hasRow = Stand(m_rows.Ahead().Find(key));
    m_noMatch = !m_hasRow;
}

bool PostgresTableCursor::Stand(const std::optional<TableRow>& row) const
{
    if (!row)
        return false;
    m_row = *row;
    m_stamp = m_rows.Ahead().Stamp();
    if (m_columns.Count() != m_row.rows.ColumnCount())
        ReadColumns();
    return true;
}

void PostgresTableCursor::ReadColumns() const
{
    m_columns.Clear();
    for (int column = 0; column < m_row.rows.ColumnCount(); ++column)
        m_columns.Add(m_row.rows.ColumnName(column));
}

void PostgresTableCursor::IRecordset_MoveNext()
{
    RequireRow();
    DropEdit();
    m_hasRow = Stand(m_rows.Ahead().FindAfter(m_key));
    if (m_hasRow)
        m_key = m_rows.Ahead().KeyOf(m_row);
}

Value PostgresTableCursor::IRecordset_Field(std::string_view columnName) const
{
    RequireRow();
    const int position = PositionOf(columnName);
    if (const Value* value = m_edit.Find(position))
        return *value;
    if (SameName(columnName, m_table.keyColumn))
        return m_key;
    EnsureFresh();
    m_rows.NoteShown(m_stamp);
    return m_row.rows.At(m_row.number, position, m_columns.IsColour(position));
}

void PostgresTableCursor::IRecordset_SetField(std::string_view columnName, const Value& value)
{
    RequireEdit();
    if (value.IsEmpty())
        throw m_session.Errors().Error(ErrorNumber::TypeMismatch, StoreTexts::NothingToStore);
    m_edit.Set(PositionOf(columnName), value);
}

void PostgresTableCursor::IRecordset_Edit()
{
    RequireRow();
    DropEdit();
    m_session.RequireWritable();
    const bool isKnown = m_stamp == m_rows.Ahead().Stamp() && m_rows.MayBeKnown(m_stamp);
    m_session.transactions.PrepareWrite();
    if (isKnown && m_session.transactions.IsOpen() && m_stamp != m_rows.Ahead().Stamp())
        m_rowRead = m_row;
    m_editing = true;
}

void PostgresTableCursor::IRecordset_Update()
{
    RequireEdit();
    if (!m_edit.IsEmpty())
        StoreEdit();
    DropEdit();
}

// Mostly those of an edit before.
std::shared_ptr<const UpdatedColumns> PostgresTableCursor::ColumnsSet()
{
    const std::vector<PendingEdit::SetColumn>& set = m_edit.Columns();
    const auto isThisSet = [&](const ColumnSet& known) {
        return std::equal(
            set.begin(), set.end(), known.positions.begin(), known.positions.end(),
            [](const PendingEdit::SetColumn& column, int position) { return column.position == position; });
    };
    const auto known = std::find_if(m_columnSets.begin(), m_columnSets.end(), isThisSet);
    if (known != m_columnSets.end())
        return known->columns;
    if (m_columnSets.size() == MostColumnSets)
        m_columnSets.clear();
    m_columnSets.push_back(NewColumnSet());
    return m_columnSets.back().columns;
}

PostgresTableCursor::ColumnSet PostgresTableCursor::NewColumnSet() const
{
    ColumnSet result;
    UpdatedColumns columns{m_table.name, m_table.keyColumn, {}};
    columns.columns.reserve(m_edit.Columns().size());
    result.positions.reserve(m_edit.Columns().size());
    const KnownTable* known = m_session.tables.Find(QLatin1String(m_table.name));
    for (const PendingEdit::SetColumn& column : m_edit.Columns()) {
        const QString name = QString::fromStdString(m_columns.Name(column.position));
        const int place = known ? known->Find(name) : -1;
        const KnownColumn found = place < 0 ? KnownColumn() : known->columns[size_t(place)];
        columns.columns.push_back({QuotedName(name), found.serverType, found.type});
        result.positions.push_back(column.position);
    }
    result.columns = std::make_shared<const UpdatedColumns>(std::move(columns));
    return result;
}

RowUpdate PostgresTableCursor::UpdateOf(std::shared_ptr<const UpdatedColumns> columns) const
{
    RowUpdate update{std::move(columns), m_key, {}};
    update.values.reserve(m_edit.Columns().size());
    update.before.reserve(m_edit.Columns().size());
    for (const auto& [position, value] : m_edit.Columns()) {
        const Value& stored = m_columns.IsColour(position) ? Folded(value) : value;
        update.values.push_back(ToServerValue(stored, m_session.Errors()));
        const std::string_view before = m_row.rows.Raw(m_row.number, position);
        const bool isNull = m_row.rows.IsNull(m_row.number, position);
        update.before.push_back(isNull ? ServerValue() : QByteArray(before.data(), qsizetype(before.size())));
    }
    return update;
}

bool PostgresTableCursor::IsSureToFit(const UpdatedColumns& columns) const
{
    auto column = columns.columns.begin();
    for (const auto& [position, value] : m_edit.Columns()) {
        const bool isKey = SameName(m_columns.Name(position), m_table.keyColumn);
        const Value& stored = m_columns.IsColour(position) ? Folded(value) : value;
        if (isKey || column->type.isEmpty() || !Fits(stored, column->kind))
            return false;
        ++column;
    }
    return true;
}

// Within a transaction an update waits until something is read or committed, if nothing speaks against it.
void PostgresTableCursor::StoreEdit()
{
    if (m_session.transactions.IsOpen())
        EnsureFresh();
    RequireAsRead();
    const RowUpdate update = UpdateOf(ColumnsSet());
    m_session.Tell(update.columns->Statement());
    if (!IsSureToFit(*update.columns))
        StoreAtOnce(update);
    else if (!m_session.transactions.Update(update))
        throw m_session.Errors().Failure(StoreTexts::RowGone);
    m_rows.Ahead().NoteWritten(m_key);
    if (const Value* newKey = m_edit.Find(PositionOf(m_table.keyColumn)))
        m_key = ToInt32(*newKey);
}

void PostgresTableCursor::StoreAtOnce(const RowUpdate& update)
{
    ServerValues values = update.values;
    values.emplace_back(QByteArray::number(m_key));
    if (m_session.transactions.Write(update.columns->Statement(), values).Changed() == 0)
        throw m_session.Errors().Failure(StoreTexts::RowGone);
}

void PostgresTableCursor::DropEdit()
{
    m_edit.Clear();
    m_rowRead.reset();
    m_editing = false;
}

// The transaction began again after the caller had read the row.
void PostgresTableCursor::RequireAsRead() const
{
    if (!m_rowRead || m_rowRead->rows.ColumnCount() != m_row.rows.ColumnCount())
        return;
    for (const PendingEdit::SetColumn& column : m_edit.Columns()) {
        if (!HaveSame(*m_rowRead, m_row, column.position))
            throw m_session.Errors().Error(ErrorNumber::DatabaseLocked, StoreTexts::Locked);
    }
}

void PostgresTableCursor::EnsureFresh() const
{
    if (m_stamp != m_rows.Ahead().Stamp() && !Stand(m_rows.Ahead().Find(m_key)))
        throw m_session.Errors().Failure(StoreTexts::RowGone);
}

void PostgresTableCursor::RequireRow() const
{
    if (!m_hasRow)
        throw m_session.Errors().Failure(StoreTexts::NoCurrentRow);
}

void PostgresTableCursor::RequireEdit() const
{
    if (!m_editing)
        throw m_session.Errors().Failure(StoreTexts::NotEditing);
}

int PostgresTableCursor::PositionOf(std::string_view columnName) const
{
    const int position = m_columns.Find(columnName);
    if (position < 0)
        throw m_session.Errors().Failure(StoreTexts::UnknownColumn, NameText(columnName));
    return position;
}

} // namespace Orvane
