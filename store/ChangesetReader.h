// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/store/ChangeCoding.h>
#include <orvane/store/ChangedRow.h>
#include <orvane/store/Changeset.h>

#include <QByteArray>

#include <string>
#include <string_view>
#include <vector>

namespace Orvane {

/// Reads the rows of a changeset one after another.
///
///     ChangesetReader reader(changes);
///     while (reader.Next())
///         use(reader.Table(), reader.Row());
class ChangesetReader
{
public:
    /// Starts before the first row; keeps the bytes of the changeset. Raises as KeptBytes does, as does Next.
    explicit ChangesetReader(const Changeset& changes);

    /// Goes to the next row; false past the last one.
    bool Next();
    /// How much has been read, from 0 to 1.
    double Done() const;
    const ChangedRow& Row() const { return m_row; }
    const ChangedTable& Table() const { return m_tables[m_row.table]; }
    const std::vector<ChangedTable>& Tables() const { return m_tables; }

private:
    void ReadPiece(size_t number);

    Changeset m_changes;
    size_t m_piece = 0; // the one that is read
    QByteArray m_content; // of it
    ChangeBytes m_bytes; // of it, from the next row on
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
/// Reads the table, kind and key of a row; its columns follow. tables: those that the row may belong to.
void ReadHead(ChangeBytes& bytes, const std::vector<ChangedTable>& tables, ChangedRow& row);
/// Reads one whole row.
void Read(ChangeBytes& bytes, const std::vector<ChangedTable>& tables, ChangedRow& row);

} // namespace ChangedRows

} // namespace Orvane
