// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreTable.h"
#include "store/postgres/link/ServerValue.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstddef>
#include <memory>
#include <unordered_set>
#include <vector>

namespace Orvane {

class ServerPipeline;

/// Columns of a table that are updated together.
struct UpdatedColumns {
    struct Column {
        QByteArray name; ///< quoted
        QByteArray type; ///< as the server names it; empty if it is not known
        StoreType kind = StoreType::Text;

        bool operator==(const Column&) const = default;
    };

    QByteArray table;
    QByteArray keyColumn;
    std::vector<Column> columns;

    /// The statement that updates one row: the parameters are the values of the columns, then the key.
    QByteArray Statement() const;

    bool operator==(const UpdatedColumns&) const = default;
};

/// What is stored in one row.
struct RowUpdate {
    std::shared_ptr<const UpdatedColumns> columns;
    qint32 key = 0;
    ServerValues values; ///< of the columns
    ServerValues before = {}; ///< what they held when the row was read
};

/// Updates of different rows in the same columns, sent as one statement.
class RowUpdates
{
public:
    /// How a row must be for its update.
    enum class Expect {
        ARow, ///< it exists
        AsRead, ///< it still holds what its columns held when it was read
    };

    /// For updates of these columns.
    explicit RowUpdates(std::shared_ptr<const UpdatedColumns> columns) : m_columns(std::move(columns)) { }

    /// True if one of the updates is of that row.
    bool Holds(qint32 key) const { return m_keys.count(key) > 0; }
    /// True if the update is of these columns. It may be added if the row is not among the others.
    bool HasColumnsOf(const RowUpdate& update) const
    {
        return update.columns == m_columns || *update.columns == *m_columns;
    }
    void Add(RowUpdate update);
    size_t Count() const { return m_rows.size(); }

    /// Adds the statements. The server refuses them, dividing by zero, if a row is not as expected.
    void SendInto(ServerPipeline& pipeline, Expect expect);
    /// The error of the server for that.
    static constexpr const char* NotAsExpected = "22012";

private:
    void SendSingly(ServerPipeline& pipeline) const;
    QByteArray Statement(Expect expect) const;
    ServerValues Arrays(Expect expect) const;

    std::shared_ptr<const UpdatedColumns> m_columns;
    std::vector<RowUpdate> m_rows;
    std::unordered_set<qint32> m_keys;
};

} // namespace Orvane
