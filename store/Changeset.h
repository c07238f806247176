// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/store/ChangedRow.h>
#include <orvane/store/KeptBytes.h>

#include <QByteArray>
#include <QtGlobal>

#include <functional>
#include <string_view>
#include <vector>

namespace Orvane {

/// How one row changed, for a visitor.
struct RowChange {
    std::string_view table; ///< valid only during the visitor call, as are the columns
    ChangeKind kind = ChangeKind::Updated; ///< inserted, deleted or updated
    qint64 key = 0; ///< the first column of the primary key, 0 if that is not a whole number
    std::vector<std::string_view> columns; ///< of an updated row: those whose value changed
};

/// The changes to the rows of a layer store, with the values before and after, once per row. An ordinary
/// value: it can be kept, inverted, and applied to the store that it comes from. It is independent of the
/// kind of store.
class Changeset
{
public:
    /// An empty changeset.
    Changeset() = default;
    /// rows: coded as ChangesetReader reads them, at most one for each key. They are kept in pieces, large
    /// ones compressed, as KeptBytes. Raises as that does.
    Changeset(const std::vector<ChangedTable>& tables, std::string_view rows);

    /// True if nothing changed.
    bool IsEmpty() const { return m_kept.IsEmpty(); }
    /// The changeset that undoes this one.
    Changeset Inverted() const;
    /// This changeset and the next one combined.
    Changeset Then(const Changeset& next) const;
    /// The same without the rows of that table; empty if there are no others.
    Changeset Without(std::string_view table) const;
    /// Calls the visitor for each row.
    void ForEachRow(const std::function<void(const RowChange& row)>& visitor) const;

    /// The tables and then all rows as bytes.
    QByteArray Bytes() const;
    /// How much is kept, in memory or in a file, in bytes.
    qsizetype KeptSize() const { return m_kept.Size(); }
    /// How much memory it uses, in bytes.
    qsizetype BytesInMemory() const { return m_kept.InMemory(); }

private:
    friend class ChangesetMaker;
    friend class ChangesetReader;

    static constexpr char Plain = 0; // the first byte of a piece
    static constexpr char Compressed = 1;

    explicit Changeset(KeptBytes kept);
    QByteArray Piece(size_t number) const;

    KeptBytes m_kept; // the tables, then pieces of rows
};

} // namespace Orvane
