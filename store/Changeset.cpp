// SPDX-License-Identifier: MIT
#include "store/Changeset.h"

#include "store/ChangeMerger.h"
#include "store/ChangesetReader.h"

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

constexpr qsizetype Large = 16384; // bytes
constexpr int FastCompression = 1;

ChangeKind Opposite(ChangeKind kind)
{
    if (kind == ChangeKind::Updated)
        return kind;
    return kind == ChangeKind::Inserted ? ChangeKind::Deleted : ChangeKind::Inserted;
}

std::string Inverse(const ChangedRow& row)
{
    ChangedRow inverse = row;
    inverse.kind = Opposite(row.kind);
    for (ChangedRow::Column& column : inverse.columns)
        std::swap(column.before, column.after);
    std::string bytes;
    ChangedRows::Append(bytes, inverse);
    return bytes;
}

qint64 WholeKey(std::string_view key)
{
    const StoredValue value = ChangeBytes::Decoded(ChangeBytes(key).CodedValue());
    const auto* number = std::get_if<qint64>(&value);
    return number ? *number : 0;
}

// The positions of the other tables in the list; tables that are missing in it are added.
std::vector<size_t> Places(std::vector<ChangedTable>& tables, const std::vector<ChangedTable>& others)
{
    std::vector<size_t> places;
    for (const ChangedTable& other : others) {
        const auto found = std::find_if(
            tables.begin(), tables.end(), [&](const auto& table) { return table.name == other.name; });
        places.push_back(size_t(found - tables.begin()));
        if (found == tables.end())
            tables.push_back(other);
    }
    return places;
}

} // namespace

Changeset::Changeset(const std::vector<ChangedTable>& tables, std::string_view rows)
{
    if (rows.empty())
        return;
    std::string bytes;
    ChangedRows::Append(bytes, tables);
    bytes += rows;
    m_compressed = qsizetype(bytes.size()) >= Large;
    const QByteArray all = QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size()));
    m_kept
        = KeptBytes(m_compressed ? qCompress(all, FastCompression) : QByteArray(all.constData(), all.size()));
}

QByteArray Changeset::Bytes() const
{
    return m_compressed ? qUncompress(m_kept.Read()) : m_kept.Read();
}

// From back to front, because the last change must be undone first.
Changeset Changeset::Inverted() const
{
    ChangesetReader reader(*this);
    std::string rows(reader.BytesLeft(), '\0'); // an inverse is as long as its row
    size_t place = rows.size();
    while (reader.Next()) {
        const std::string inverse = Inverse(reader.Row());
        place -= inverse.size();
        rows.replace(place, inverse.size(), inverse);
    }
    return Changeset(reader.Tables(), rows);
}

Changeset Changeset::Then(const Changeset& next) const
{
    ChangesetReader first(*this);
    ChangesetReader second(next);
    ChangeMerger merger;
    while (first.Next())
        merger.Add(first.Row());
    std::vector<ChangedTable> tables = first.Tables();
    const std::vector<size_t> places = Places(tables, second.Tables());
    while (second.Next()) {
        ChangedRow row = second.Row();
        row.table = places[row.table];
        merger.Add(row);
    }
    return Changeset(tables, merger.Rows());
}

void Changeset::ForEachRow(const std::function<void(const RowChange& row)>& visitor) const
{
    ChangesetReader reader(*this);
    RowChange change;
    while (reader.Next()) {
        const ChangedRow& row = reader.Row();
        const ChangedTable& table = reader.Table();
        change.table = table.name;
        change.kind = row.kind;
        change.key = WholeKey(row.key);
        change.columns.clear();
        for (const ChangedRow::Column& column : row.columns) {
            if (row.kind == ChangeKind::Updated)
                change.columns.push_back(table.columns[size_t(column.position)]);
        }
        visitor(change);
    }
}

} // namespace Orvane
