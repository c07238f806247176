// SPDX-License-Identifier: MIT
#include "store/Changeset.h"

#include "store/ChangeLog.h"
#include "store/ChangesetMaker.h"
#include "store/ChangesetReader.h"

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

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

// The positions of the tables in the log; tables that are missing in it, or had other columns, are added.
std::vector<size_t> Places(ChangeLog& log, const std::vector<ChangedTable>& tables)
{
    std::vector<size_t> places;
    places.reserve(tables.size());
    for (const ChangedTable& table : tables) {
        const int known = log.FindTable(table.name);
        const bool isSame = known >= 0 && log.Table(known).columns == table.columns;
        places.push_back(size_t(isSame ? known : log.AddTable(table)));
    }
    return places;
}

void AddAll(ChangeLog& log, const Changeset& changes)
{
    ChangesetReader reader(changes);
    const std::vector<size_t> places = Places(log, reader.Tables());
    while (reader.Next()) {
        ChangedRow row = reader.Row();
        row.table = places[row.table];
        log.Add(row);
    }
}

// The inverse of each row, from back to front.
std::string InverseOfAll(const std::string& rows, const std::vector<ChangedTable>& tables)
{
    std::string inverses(rows.size(), '\0'); // an inverse is as long as its row
    size_t place = rows.size();
    ChangeBytes bytes(rows);
    ChangedRow row;
    while (!bytes.AtEnd()) {
        ChangedRows::Read(bytes, tables, row);
        const std::string inverse = Inverse(row);
        place -= inverse.size();
        inverses.replace(place, inverse.size(), inverse);
    }
    return inverses;
}

} // namespace

Changeset::Changeset(const std::vector<ChangedTable>& tables, std::string_view rows)
{
    ChangesetMaker maker(tables);
    ChangeBytes bytes(rows);
    ChangedRow row;
    while (!bytes.AtEnd()) {
        const size_t left = bytes.Left();
        ChangedRows::Read(bytes, tables, row);
        maker.Add(rows.substr(rows.size() - left, left - bytes.Left()));
    }
    *this = maker.Finish();
}

Changeset::Changeset(KeptBytes kept) : m_kept(std::move(kept))
{
}

QByteArray Changeset::Piece(size_t number) const
{
    const QByteArray piece = m_kept.Piece(number);
    const QByteArray content = QByteArray::fromRawData(piece.constData() + 1, piece.size() - 1);
    return piece.front() == Compressed ? qUncompress(content) : piece.mid(1);
}

QByteArray Changeset::Bytes() const
{
    QByteArray bytes;
    for (size_t number = 0; number < m_kept.PieceCount(); ++number)
        bytes += Piece(number);
    return bytes;
}

// From back to front, because the last change must be undone first.
Changeset Changeset::Inverted() const
{
    const ChangesetReader reader(*this);
    ChangesetMaker inverse(reader.Tables());
    for (size_t number = m_kept.PieceCount(); number-- > 1;)
        inverse.Add(InverseOfAll(Piece(number).toStdString(), reader.Tables()));
    return inverse.Finish();
}

Changeset Changeset::Then(const Changeset& next) const
{
    ChangeLog log;
    AddAll(log, *this);
    AddAll(log, next);
    return log.ChangesSince(0);
}

Changeset Changeset::Without(std::string_view table) const
{
    ChangesetReader reader(*this);
    const auto& tables = reader.Tables();
    if (std::none_of(tables.begin(), tables.end(), [&](const auto& known) { return known.name == table; }))
        return *this;
    ChangesetMaker others(tables);
    while (reader.Next()) {
        if (reader.Table().name != table)
            others.Add(reader.Row());
    }
    return others.Finish();
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
