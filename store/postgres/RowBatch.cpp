// SPDX-License-Identifier: MIT
#include "store/postgres/RowBatch.h"

#include "store/postgres/link/QuotedName.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/maps/KnownTables.h"

#include <algorithm>

namespace Orvane {

namespace {

std::vector<int> PositionsIn(const ChangedRow& row)
{
    std::vector<int> positions;
    positions.reserve(row.columns.size());
    for (const ChangedRow::Column& column : row.columns)
        positions.push_back(column.position);
    return positions;
}

} // namespace

RowBatch::RowBatch(const ChangedTable& table, const KnownTable& known, const ChangedRow& row)
    : m_table(QuotedName(known.name)), m_tablePosition(row.table), m_kind(row.kind),
      m_positions(PositionsIn(row))
{
    if (m_kind != ChangeKind::Inserted) {
        m_keyCount = table.keys.size();
        for (const int key : table.keys)
            Describe("k", table, known, key);
        for (const int position : m_positions)
            Describe("b", table, known, position);
    }
    if (m_kind != ChangeKind::Deleted) {
        for (const int position : m_positions)
            Describe("a", table, known, position);
    }
}

void RowBatch::Describe(const char* letter, const ChangedTable& table, const KnownTable& known, int position)
{
    const QString name = QString::fromStdString(table.columns[size_t(position)]);
    const KnownColumn& column = known.columns[size_t(known.Find(name))];
    m_values.push_back(
        {letter + QByteArray::number(int(m_values.size())), QuotedName(column.name), column.serverType});
}

bool RowBatch::Fits(const ChangedRow& row) const
{
    return row.table == m_tablePosition && row.kind == m_kind && row.columns.size() == m_positions.size()
        && std::equal(
               m_positions.begin(), m_positions.end(), row.columns.begin(),
               [](int position, const ChangedRow::Column& column) { return position == column.position; });
}

void RowBatch::Add(const ChangedRow& row)
{
    auto values = m_values.begin();
    if (m_kind != ChangeKind::Inserted) {
        for (ChangeBytes key(row.key); !key.AtEnd();)
            (values++)->array.Append(ChangeBytes::Decoded(key.CodedValue()));
        for (const ChangedRow::Column& column : row.columns)
            (values++)->array.Append(ChangeBytes::Decoded(column.before));
    }
    if (m_kind != ChangeKind::Deleted) {
        for (const ChangedRow::Column& column : row.columns)
            (values++)->array.Append(ChangeBytes::Decoded(column.after));
    }
    ++m_rowCount;
}

qsizetype RowBatch::Size() const
{
    qsizetype size = 0;
    for (const Values& values : m_values)
        size += values.array.Size();
    return size;
}

// The first parameters as rows.
QByteArray RowBatch::Source(size_t count) const
{
    QByteArrayList arrays;
    QByteArrayList names;
    for (size_t number = 0; number < count; ++number) {
        arrays << '$' + QByteArray::number(int(number) + 1) + "::" + m_values[number].type + "[]";
        names << m_values[number].name;
    }
    return "unnest(" + arrays.join(", ") + ") AS v (" + names.join(", ") + ')';
}

QByteArray RowBatch::KeyCondition() const
{
    QByteArrayList conditions;
    for (size_t key = 0; key < m_keyCount; ++key)
        conditions << "t." + m_values[key].column + " = v." + m_values[key].name;
    return conditions.join(" AND ");
}

// Requires exactly the former values; texts that differ only in case are different.
QByteArray RowBatch::Condition() const
{
    QByteArray condition = KeyCondition();
    for (size_t number = m_keyCount; number < m_keyCount + m_positions.size(); ++number) {
        const Values& before = m_values[number];
        condition += " AND t." + before.column + " IS NOT DISTINCT FROM v." + before.name;
    }
    return condition;
}

QByteArray RowBatch::Assignments() const
{
    QByteArrayList assignments;
    for (size_t number = m_keyCount + m_positions.size(); number < m_values.size(); ++number)
        assignments << m_values[number].column + " = v." + m_values[number].name;
    return assignments.join(", ");
}

QByteArray RowBatch::Inserting() const
{
    QByteArrayList columns;
    for (const Values& values : m_values)
        columns << values.column;
    return "INSERT INTO " + m_table + " (" + columns.join(", ") + ") OVERRIDING SYSTEM VALUE SELECT * FROM "
        + Source(m_values.size());
}

QByteArray RowBatch::Statement() const
{
    if (m_kind == ChangeKind::Inserted)
        return Inserting();
    const QByteArray source = Source(m_values.size());
    if (m_kind == ChangeKind::Deleted)
        return "DELETE FROM " + m_table + " AS t USING " + source + " WHERE " + Condition();
    return "UPDATE " + m_table + " AS t SET " + Assignments() + " FROM " + source + " WHERE " + Condition();
}

void RowBatch::SendInto(ServerPipeline& pipeline)
{
    ServerValues texts;
    texts.reserve(m_values.size());
    for (const Values& values : m_values)
        texts.push_back(values.array.Text());
    m_statement = pipeline.AddOnce(Statement(), texts);
    if (m_kind != ChangeKind::Deleted)
        return;
    texts.resize(m_keyCount);
    pipeline.AddOnce(
        "SELECT count(*) FROM " + m_table + " AS t JOIN " + Source(m_keyCount) + " ON " + KeyCondition(),
        texts);
}

bool RowBatch::IsDone(const ServerPipeline& pipeline) const
{
    if (m_kind == ChangeKind::Deleted)
        return pipeline.Answer(m_statement + 1).Number(0, 0) == 0;
    return pipeline.Answer(m_statement).Changed() == qint64(m_rowCount);
}

} // namespace Orvane
