// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/store/ChangeCoding.h>
#include <orvane/store/ChangedRow.h>

#include <QByteArray>

#include <string>
#include <string_view>
#include <vector>

namespace Orvane {

class Changeset;

/// Reads the rows of a changeset one after another.
///
///     ChangesetReader reader(changes);
///     while (reader.Next())
///         use(reader.Table(), reader.Row());
class ChangesetReader
{
public:
    /// Starts before the first row; keeps the bytes of the changeset. Raises as Changeset::Bytes does.
    explicit ChangesetReader(const Changeset& changes);

    /// Goes to the next row; false past the last one.
    bool Next();
    /// The size of the rows that are left to read.
    size_t BytesLeft() const { return m_bytes.Left(); }
    /// How much has been read, from 0 to 1.
    double Done() const;
    const ChangedRow& Row() const { return m_row; }
    const ChangedTable& Table() const { return m_tables[m_row.table]; }
    const std::vector<ChangedTable>& Tables() const { return m_tables; }

private:
    QByteArray m_kept;
    ChangeBytes m_bytes;
    std::vector<ChangedTable> m_tables;
    ChangedRow m_row;
};

/// Converts tables and rows to bytes and back.
namespace ChangedRows {

/// Appends the list of tables.
void Append(std::string& bytes, const std::vector<ChangedTable>& tables);
/// Reads what Append wrote.
std::vector<ChangedTable> ReadTables(ChangeBytes& bytes);

/// Appends a row.
void Append(std::string& bytes, const ChangedRow& row);
/// Appends the head of a row; columnCount columns must follow.
void AppendHead(std::string& bytes, size_t table, ChangeKind kind, std::string_view key, size_t columnCount);
void AppendColumn(std::string& bytes, ChangeKind kind, const ChangedRow::Column& column);
/// Reads one row. tables: those that the row may belong to.
void Read(ChangeBytes& bytes, const std::vector<ChangedTable>& tables, ChangedRow& row);

} // namespace ChangedRows

} // namespace Orvane
