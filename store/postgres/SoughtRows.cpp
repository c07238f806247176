// SPDX-License-Identifier: MIT
#include "store/postgres/SoughtRows.h"

#include "store/postgres/PostgresSession.h"
#include "store/postgres/link/ArrayText.h"

#include <OrvaneShellLib/LayerColumns.h>

#include <string_view>

namespace Orvane {

namespace {

// -1 if there is none.
int ColumnNamed(const ServerRows& rows, std::string_view name)
{
    for (int column = 0; column < rows.ColumnCount(); ++column) {
        if (rows.ColumnName(column) == name)
            return column;
    }
    return -1;
}

std::vector<qint32> KeysIn(const ServerRows& rows, int column)
{
    std::vector<qint32> keys;
    keys.reserve(size_t(rows.Count()));
    for (int row = 0; row < rows.Count(); ++row) {
        const auto key = qint32(rows.Number(row, column));
        if (keys.empty() || keys.back() != key)
            keys.push_back(key);
    }
    return keys;
}

} // namespace

SoughtRows::SoughtRows(PostgresSession& session, const SoughtTable& table)
    : m_session(session), m_table(table), m_ahead(*this, table.keyColumn)
{
}

ServerRows SoughtRows::Rows(const std::vector<qint32>& keys, Written written)
{
    const QByteArray start
        = QByteArray("SELECT * FROM ") + m_table.name + " WHERE " + m_table.keyColumn + " = ";
    if (keys.size() == 1)
        return Read(start + "$1", {QByteArray::number(keys.front())}, written);
    ArrayText array;
    for (const qint32 key : keys)
        array.Append(qint64(key));
    return Read(start + "ANY ($1::integer[])", {array.Text()}, written);
}

ServerRows SoughtRows::RowsFrom(qint32 key, int count, Written written)
{
    const QByteArray column = m_table.keyColumn;
    return Read(
        QByteArray("SELECT * FROM ") + m_table.name + " WHERE " + column + " >= $1 ORDER BY " + column
            + " LIMIT $2",
        {QByteArray::number(key), QByteArray::number(count)}, written);
}

ServerRows SoughtRows::Read(const QByteArray& sql, const ServerValues& values, Written written)
{
    m_session.Tell(sql);
    PostgresTransactions& transactions = m_session.transactions;
    return written == Written::Needed ? transactions.Read(sql, values) : transactions.ReadBeside(sql, values);
}

// The first statement of a transaction has found the row itself.
bool SoughtRows::MayBeKnown(quint64 stamp) const
{
    return m_shown == stamp || m_session.transactions.Reads() > 1;
}

// Within a transaction it does not matter whether the action ends: others' changes do not show there.
quint64 SoughtRows::State()
{
    if (!m_session.transactions.IsOpen() && m_session.action.Present() != m_action) {
        m_action = m_session.action.Present();
        ++m_actions;
    }
    return m_session.transactions.State() + m_actions;
}

bool SoughtRows::MayKeep() const
{
    return m_session.transactions.IsOpen() || ActionNumber::HasEnd();
}

// Only from whole rows of layers, such as those of lists and trees, and from keys alone, such as those of a
// group's members: others are read for other purposes.
void NoteKeysIn(PostgresSession& session, const ServerRows& rows)
{
    const int layer = rows.Count() > 1 ? ColumnNamed(rows, SoughtLayers.keyColumn) : -1;
    if (layer < 0)
        return;
    if (rows.ColumnCount() == 1)
        session.layers.Ahead().NoteKeys(KeysIn(rows, layer), RowsAhead::Given::Keys);
    if (rows.ColumnCount() < int(LayerColumns.size()))
        return;
    session.layers.Ahead().NoteKeys(KeysIn(rows, layer), RowsAhead::Given::Rows);
    if (const int group = ColumnNamed(rows, "groupid"); group >= 0)
        session.groups.Ahead().NoteKeys(KeysIn(rows, group), RowsAhead::Given::Keys);
}

} // namespace Orvane
