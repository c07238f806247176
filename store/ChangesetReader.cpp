// SPDX-License-Identifier: MIT
#include "store/ChangesetReader.h"

namespace Orvane {

namespace {

std::string_view View(const QByteArray& bytes)
{
    return {bytes.constData(), size_t(bytes.size())};
}

std::string ReadName(ChangeBytes& bytes)
{
    return std::string(std::get<std::string_view>(ChangeBytes::Decoded(bytes.CodedValue())));
}

ChangedTable ReadTable(ChangeBytes& bytes)
{
    ChangedTable table;
    table.name = ReadName(bytes);
    table.columns.resize(bytes.Count());
    for (std::string& column : table.columns)
        column = ReadName(bytes);
    table.keys.resize(bytes.Count());
    for (int& key : table.keys)
        key = int(bytes.Count());
    return table;
}

// The bytes of several values in a row.
std::string_view ReadKey(ChangeBytes& bytes, size_t count)
{
    std::string_view key = bytes.CodedValue();
    for (size_t value = 1; value < count; ++value)
        key = {key.data(), key.size() + bytes.CodedValue().size()};
    return key;
}

} // namespace

ChangesetReader::ChangesetReader(const Changeset& changes) : m_changes(changes), m_bytes({})
{
    if (m_changes.IsEmpty())
        return;
    ReadPiece(0);
    m_tables = ChangedRows::ReadTables(m_bytes);
}

void ChangesetReader::ReadPiece(size_t number)
{
    m_content = m_changes.Piece(number);
    m_bytes = ChangeBytes(View(m_content));
    m_piece = number;
}

bool ChangesetReader::Next()
{
    if (m_bytes.AtEnd()) {
        if (m_piece + 1 >= m_changes.m_kept.PieceCount())
            return false;
        ReadPiece(m_piece + 1);
    }
    ChangedRows::Read(m_bytes, m_tables, m_row);
    return true;
}

// The pieces are about equally large.
double ChangesetReader::Done() const
{
    if (m_changes.IsEmpty())
        return 1;
    const double inPiece = m_content.isEmpty() ? 1 : 1 - double(m_bytes.Left()) / double(m_content.size());
    const auto rowPieces = double(m_changes.m_kept.PieceCount() - 1);
    return m_piece == 0 ? 0 : (double(m_piece - 1) + inPiece) / rowPieces;
}

void ChangedRows::Append(std::string& bytes, const std::vector<ChangedTable>& tables)
{
    ChangeCoding::AppendCount(bytes, tables.size());
    for (const ChangedTable& table : tables) {
        ChangeCoding::AppendText(bytes, table.name);
        ChangeCoding::AppendCount(bytes, table.columns.size());
        for (const std::string& column : table.columns)
            ChangeCoding::AppendText(bytes, column);
        ChangeCoding::AppendCount(bytes, table.keys.size());
        for (const int key : table.keys)
            ChangeCoding::AppendCount(bytes, quint64(key));
    }
}

std::vector<ChangedTable> ChangedRows::ReadTables(ChangeBytes& bytes)
{
    std::vector<ChangedTable> tables(bytes.Count());
    for (ChangedTable& table : tables)
        table = ReadTable(bytes);
    return tables;
}

void ChangedRows::AppendHead(
    std::string& bytes, size_t table, ChangeKind kind, std::string_view key, size_t columnCount)
{
    ChangeCoding::AppendCount(bytes, table);
    ChangeCoding::AppendCount(bytes, quint64(kind));
    bytes += key;
    ChangeCoding::AppendCount(bytes, columnCount);
}

void ChangedRows::AppendColumn(std::string& bytes, ChangeKind kind, const ChangedRow::Column& column)
{
    ChangeCoding::AppendCount(bytes, quint64(column.position));
    if (kind != ChangeKind::Inserted)
        bytes += column.before;
    if (kind != ChangeKind::Deleted)
        bytes += column.after;
}

void ChangedRows::Append(std::string& bytes, const ChangedRow& row)
{
    AppendHead(bytes, row.table, row.kind, row.key, row.columns.size());
    for (const ChangedRow::Column& column : row.columns)
        AppendColumn(bytes, row.kind, column);
}

void ChangedRows::ReadHead(ChangeBytes& bytes, const std::vector<ChangedTable>& tables, ChangedRow& row)
{
    row.table = size_t(bytes.Count());
    row.kind = ChangeKind(bytes.Count());
    row.key = ReadKey(bytes, tables[row.table].keys.size());
}

void ChangedRows::Read(ChangeBytes& bytes, const std::vector<ChangedTable>& tables, ChangedRow& row)
{
    ReadHead(bytes, tables, row);
    row.columns.resize(bytes.Count());
    for (ChangedRow::Column& column : row.columns) {
        column.position = int(bytes.Count());
        column.before = row.kind == ChangeKind::Inserted ? std::string_view() : bytes.CodedValue();
        column.after = row.kind == ChangeKind::Deleted ? std::string_view() : bytes.CodedValue();
    }
}

} // namespace Orvane
