// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerRows.h"

#include <QtGlobal>

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Orvane {

/// Where RowsAhead reads the rows of its table.
class ITableRows
{
public:
    /// What RowsAhead::NoteWritten has named since the state changed.
    enum class Written {
        Needed, ///< its rows must be as they are now
        Ignored, ///< its rows may be as they were before: they are not used
    };

    virtual ~ITableRows() = default;

    /// The rows with these keys, as far as there are any, in any order. A key may occur twice.
    virtual ServerRows Rows(const std::vector<qint32>& keys, Written written) = 0;
    /// The first rows from that key on, at most count of them, in the order of their keys.
    virtual ServerRows RowsFrom(qint32 key, int count, Written written) = 0;
    /// A number that grows when rows that were read before may be different now.
    virtual quint64 State() = 0;
    /// False if each row must be read when it is sought.
    virtual bool MayKeep() const = 0;
};

/// A row of a table; a copy shares it.
struct TableRow {
    ServerRows rows; ///< among others
    int number = 0; ///< in rows
};

/// The rows of one table, which are read before they are sought: a caller that seeks one row after the other
/// would otherwise wait for the server each time.
///
/// It reads more and more rows at once, in the order in which they will probably be sought: that of the keys
/// that a query gave last, or that were sought last, or of the table. A row is never older than State() of
/// the source, and never one that NoteWritten has named since it was read.
class RowsAhead
{
public:
    /// What a query gave.
    enum class Given {
        Keys, ///< only keys: whoever starts with the first one probably wants all of them
        Rows, ///< whole rows of the table: perhaps none of them will be sought
    };

    /// keyColumn: whose numbers are all different. The source outlives this object.
    RowsAhead(ITableRows& source, const char* keyColumn) : m_source(source), m_keyColumn(keyColumn) { }

    /// The row with that key; nothing if there is none. Raises what the source raises.
    std::optional<TableRow> Find(qint32 key);
    /// The row with the next larger key, which is always read.
    std::optional<TableRow> FindAfter(qint32 key);
    /// The key of a row.
    qint32 KeyOf(const TableRow& row) const;

    /// A query gave these keys, in this order.
    void NoteKeys(std::vector<qint32> keys, Given given);
    /// The row is not what it was.
    void NoteWritten(qint32 key);
    /// A number that grows when a row that was found before may be different now.
    quint64 Stamp() { return m_source.State() + m_writings; }

private:
    struct Place {
        int block;
        int row; // -1 if there is no such row
    };
    /// Keys in an order in which they may be sought.
    struct KeyList {
        bool isOfKeys = true;
        std::vector<qint32> keys = {};
        size_t last = 0; // where a key was found last
        bool wasRead = false; // rows of it, since the state changed
        size_t block = 0; // how many of them were read last, if somebody walks through it

        /// The position of the key; keys.size() if it is not among them.
        size_t PositionOf(qint32 key);
    };

    void Refresh();
    void NoteSought(qint32 key);
    void ReadFor(qint32 key);
    std::vector<qint32> KeysToRead(qint32 key);
    KeyList* ListWith(qint32 key, size_t& position);
    size_t NextBlock(KeyList& list, size_t position);
    void Grow();
    ServerRows Read(qint32 key, std::vector<qint32>& keys);
    void Take(const ServerRows& rows, const std::vector<qint32>& keys);
    void DropRows();
    int KeyColumnOf(const ServerRows& rows) const;

    ITableRows& m_source;
    std::string m_keyColumn;
    std::vector<ServerRows> m_blocks;
    std::unordered_map<qint32, Place> m_places; // of the rows that are held, by key
    KeyList m_givenKeys;
    KeyList m_givenRows{false};
    KeyList m_soughtBefore; // up to the last change of the state
    std::vector<qint32> m_sought; // since then
    std::unordered_set<qint32> m_written; // keys, since then
    quint64 m_state = 0;
    quint64 m_writings = 0;
    size_t m_misses = 0; // since the last change of the state
    size_t m_block = 1; // how many rows are read next where nothing better is known
};

} // namespace Orvane
