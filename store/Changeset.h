// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <functional>
#include <string_view>
#include <vector>

namespace Orvane {

/// What became of one row.
struct RowChange {
    enum class Kind { Inserted, Deleted, Updated };

    std::string_view table; ///< valid while the row is visited
    Kind kind = Kind::Updated;
    qint64 key = 0; ///< the first column of the primary key, 0 where that is no number
    std::vector<int> columns; ///< of an updated row: those that have another value now, from 0
};

/// What changed in the rows of a layer database, with the values before and after, once for each row. An
/// ordinary value: it can be kept, turned round, and applied to the database that it comes from.
class Changeset
{
public:
    /// Nothing changed.
    Changeset() = default;
    /// bytes: in SQLite's changeset format. Large ones are kept compressed.
    explicit Changeset(const QByteArray& bytes);

    bool IsEmpty() const { return m_kept.isEmpty(); }
    /// The change that takes this one back.
    Changeset Inverted() const;
    /// This change and the next one as one.
    Changeset Then(const Changeset& next) const;
    /// Calls the visitor for each row, a table at a time.
    void ForEachRow(const std::function<void(const RowChange& row)>& visitor) const;

    /// In SQLite's changeset format.
    QByteArray Bytes() const;
    /// How much memory it holds.
    qsizetype KeptBytes() const { return m_kept.size(); }

private:
    QByteArray m_kept;
    bool m_compressed = false;
};

} // namespace Orvane
