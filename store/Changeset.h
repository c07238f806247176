// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <functional>
#include <string_view>
#include <vector>

namespace Orvane {

/// How one row changed.
struct RowChange {
    enum class Kind { Inserted, Deleted, Updated };

    std::string_view table; ///< valid only during the visitor call
    Kind kind = Kind::Updated;
    qint64 key = 0; ///< the first column of the primary key, 0 if that is not a number
    std::vector<int> columns; ///< of an updated row: positions of the columns whose value changed, from 0
};

/// The changes to the rows of a layer database, with the values before and after, once per row. An ordinary
/// value: it can be kept, inverted, and applied to the database that it comes from.
class Changeset
{
public:
    /// An empty changeset.
    Changeset() = default;
    /// bytes: in SQLite's changeset format. Large ones are kept compressed.
    explicit Changeset(const QByteArray& bytes);

    bool IsEmpty() const { return m_kept.isEmpty(); }
    /// The changeset that undoes this one.
    Changeset Inverted() const;
    /// This changeset and the next one combined.
    Changeset Then(const Changeset& next) const;
    /// Calls the visitor for each row, one table after another.
    void ForEachRow(const std::function<void(const RowChange& row)>& visitor) const;

    /// In SQLite's changeset format.
    QByteArray Bytes() const;
    /// How much memory it uses, in bytes.
    qsizetype KeptBytes() const { return m_kept.size(); }

private:
    QByteArray m_kept;
    bool m_compressed = false;
};

} // namespace Orvane
