// SPDX-License-Identifier: MIT
#include "store/postgres/RowUpdates.h"

#include "store/postgres/link/ArrayText.h"
#include "store/postgres/link/ServerPipeline.h"

#include <QByteArrayList>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

constexpr size_t FewRows = 3; // up to here a prepared statement for each is as fast

QByteArray Number(size_t number)
{
    return QByteArray::number(qulonglong(number));
}

// 1 / 0 if the update changes another number of rows.
QByteArray Counted(const QByteArray& update, size_t rows)
{
    return "WITH changed AS (" + update + " RETURNING 1) SELECT 1 / CAST(count(*) = " + Number(rows)
        + " AS integer) FROM changed";
}

StoredValue Stored(const ServerValue& value)
{
    if (!value)
        return {};
    return std::string_view(value->constData(), size_t(value->size()));
}

template <typename ValueOf> QByteArray ArrayOf(const std::vector<RowUpdate>& rows, ValueOf&& valueOf)
{
    ArrayText array;
    for (const RowUpdate& row : rows)
        array.Append(valueOf(row));
    return array.Text();
}

} // namespace

QByteArray UpdatedColumns::Statement() const
{
    QByteArrayList assignments;
    size_t number = 0;
    for (const Column& column : columns)
        assignments << column.name + " = $" + Number(++number);
    return "UPDATE " + table + " SET " + assignments.join(", ") + " WHERE " + keyColumn + " = $"
        + Number(number + 1);
}

void RowUpdates::Add(RowUpdate update)
{
    m_keys.insert(update.key);
    m_rows.push_back(std::move(update));
}

// By key, so that two programs that update the same rows rarely wait for each other.
void RowUpdates::SendInto(ServerPipeline& pipeline, Expect expect)
{
    std::sort(m_rows.begin(), m_rows.end(), [](const RowUpdate& left, const RowUpdate& right) {
        return left.key < right.key;
    });
    if (expect == Expect::ARow && m_rows.size() <= FewRows)
        SendSingly(pipeline);
    else
        pipeline.AddOnce(Counted(Statement(expect), m_rows.size()), Arrays(expect));
}

void RowUpdates::SendSingly(ServerPipeline& pipeline) const
{
    const QByteArray statement = Counted(m_columns->Statement(), 1);
    for (const RowUpdate& row : m_rows) {
        ServerValues values = row.values;
        values.emplace_back(QByteArray::number(row.key));
        pipeline.Add(statement, values);
    }
}

QByteArray RowUpdates::Statement(Expect expect) const
{
    QByteArrayList arrays{"$1::integer[]"};
    QByteArrayList names{"k"};
    QByteArrayList assignments;
    QByteArray condition = " WHERE t." + m_columns->keyColumn + " = v.k";
    const auto addArray = [&](const QByteArray& name, const QByteArray& type) {
        arrays << '$' + Number(size_t(arrays.size()) + 1) + "::" + type + "[]";
        names << name;
    };
    for (const UpdatedColumns::Column& column : m_columns->columns) {
        const QByteArray number = Number(size_t(assignments.size()));
        addArray('a' + number, column.type);
        assignments << column.name + " = v.a" + number;
        if (expect == Expect::ARow)
            continue;
        addArray('b' + number, column.type);
        condition += " AND t." + column.name + " IS NOT DISTINCT FROM v.b" + number;
    }
    return "UPDATE " + m_columns->table + " AS t SET " + assignments.join(", ") + " FROM unnest("
        + arrays.join(", ") + ") AS v (" + names.join(", ") + ')' + condition;
}

ServerValues RowUpdates::Arrays(Expect expect) const
{
    ServerValues arrays{ArrayOf(m_rows, [](const RowUpdate& row) { return StoredValue(qint64(row.key)); })};
    for (size_t column = 0; column < m_columns->columns.size(); ++column) {
        arrays.emplace_back(
            ArrayOf(m_rows, [&](const RowUpdate& row) { return Stored(row.values[column]); }));
        if (expect == Expect::AsRead)
            arrays.emplace_back(
                ArrayOf(m_rows, [&](const RowUpdate& row) { return Stored(row.before[column]); }));
    }
    return arrays;
}

} // namespace Orvane
