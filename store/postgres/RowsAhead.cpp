// SPDX-License-Identifier: MIT
#include "store/postgres/RowsAhead.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Orvane {

namespace {

using Written = ITableRows::Written;

constexpr size_t SingleReads = 2; // rows that are read alone, before there is a sign of a walk
constexpr size_t FirstBlockOfAWalk = 1000;
constexpr size_t Growth = 8;
constexpr size_t LargestBlock = 32768;
constexpr size_t MostRows = 65536; // that are held
constexpr size_t MostSought = 100000; // keys that are remembered

} // namespace

std::optional<TableRow> RowsAhead::Find(qint32 key)
{
    Refresh();
    NoteSought(key);
    if (!m_source.MayKeep()) {
        const ServerRows rows = m_source.Rows({key}, Written::Needed);
        return rows.Count() > 0 ? std::optional(TableRow{rows}) : std::nullopt;
    }
    if (m_places.count(key) == 0)
        ReadFor(key);
    const Place place = m_places.at(key);
    if (place.row < 0)
        return std::nullopt;
    return TableRow{m_blocks[size_t(place.block)], place.row};
}

std::optional<TableRow> RowsAhead::FindAfter(qint32 key)
{
    if (key == std::numeric_limits<qint32>::max())
        return std::nullopt;
    const ServerRows rows = m_source.RowsFrom(key + 1, 1, Written::Needed);
    return rows.Count() > 0 ? std::optional(TableRow{rows}) : std::nullopt;
}

qint32 RowsAhead::KeyOf(const TableRow& row) const
{
    return qint32(row.rows.Number(row.number, KeyColumnOf(row.rows)));
}

void RowsAhead::NoteKeys(std::vector<qint32> keys, Given given)
{
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    if (keys.size() < 2)
        return;
    const bool isOfKeys = given == Given::Keys;
    (isOfKeys ? m_givenKeys : m_givenRows) = {isOfKeys, std::move(keys)};
}

// In a new state, so that the next search does not forget it with the old one.
void RowsAhead::NoteWritten(qint32 key)
{
    Refresh();
    m_places.erase(key);
    m_written.insert(key);
    ++m_writings;
}

// Forgets what may be different now.
void RowsAhead::Refresh()
{
    const quint64 state = m_source.State();
    if (state == m_state)
        return;
    m_state = state;
    DropRows();
    m_written.clear();
    if (m_sought.size() > 1)
        m_soughtBefore = {true, std::exchange(m_sought, {})};
    m_sought.clear();
    for (KeyList* list : {&m_givenKeys, &m_givenRows, &m_soughtBefore}) {
        list->wasRead = false;
        list->block = 0;
    }
    m_misses = 0;
    m_block = 1;
}

void RowsAhead::NoteSought(qint32 key)
{
    const bool isNew = m_sought.empty() || m_sought.back() != key;
    if (isNew && m_sought.size() < MostSought)
        m_sought.push_back(key);
}

// Reading may change the state: a transaction that begins again, or a connection that is made again.
void RowsAhead::ReadFor(qint32 key)
{
    std::vector<qint32> keys;
    const ServerRows rows = Read(key, keys);
    const bool isChanged = m_source.State() != m_state;
    if (isChanged || m_places.size() + size_t(rows.Count()) > MostRows)
        DropRows();
    if (isChanged)
        m_written.clear();
    m_state = m_source.State();
    Take(rows, keys);
}

// keys: gets those that were asked for.
ServerRows RowsAhead::Read(qint32 key, std::vector<qint32>& keys)
{
    keys = {key};
    if (m_written.count(key) > 0) {
        ServerRows rows = m_source.Rows(keys, Written::Needed);
        m_written.erase(key);
        return rows;
    }
    std::vector<qint32> listed = KeysToRead(key);
    if (listed.empty() && m_block > 1)
        return m_source.RowsFrom(key, int(m_block), Written::Ignored);
    if (!listed.empty())
        keys = std::move(listed);
    return m_source.Rows(keys, Written::Ignored);
}

// Nothing if the key is in no list. After its end a short list begins again, for a walk in another order.
std::vector<qint32> RowsAhead::KeysToRead(qint32 key)
{
    Grow();
    size_t position = 0;
    KeyList* list = ListWith(key, position);
    if (!list)
        return {};
    const size_t length = list->keys.size();
    const size_t count = std::min(NextBlock(*list, position), length);
    const size_t steps = length <= LargestBlock ? length : length - position;
    std::vector<qint32> keys;
    keys.reserve(count);
    for (size_t step = 0; step < steps && keys.size() < count; ++step) {
        const qint32 next = list->keys[(position + step) % length];
        if (m_places.count(next) == 0 && m_written.count(next) == 0)
            keys.push_back(next);
    }
    return keys;
}

// The shortest one.
RowsAhead::KeyList* RowsAhead::ListWith(qint32 key, size_t& position)
{
    KeyList* shortest = nullptr;
    for (KeyList* list : {&m_givenKeys, &m_soughtBefore, &m_givenRows}) {
        if (shortest && list->keys.size() >= shortest->keys.size())
            continue;
        const size_t found = list->PositionOf(key);
        if (found == list->keys.size())
            continue;
        shortest = list;
        position = found;
    }
    return shortest;
}

size_t RowsAhead::KeyList::PositionOf(qint32 key)
{
    const auto middle = keys.begin() + qint64(std::min(last, keys.size()));
    auto found = std::find(middle, keys.end(), key);
    if (found == keys.end()) {
        found = std::find(keys.begin(), middle, key);
        if (found == middle)
            return keys.size();
    }
    last = size_t(found - keys.begin());
    return last;
}

size_t RowsAhead::NextBlock(KeyList& list, size_t position)
{
    const bool isWalk = list.isOfKeys && (position == 0 || list.wasRead);
    list.wasRead = true;
    if (!isWalk)
        return m_block;
    list.block = list.block == 0 ? FirstBlockOfAWalk : std::min(list.block * Growth, LargestBlock);
    return list.block;
}

void RowsAhead::Grow()
{
    if (++m_misses > SingleReads)
        m_block = std::min(m_block * Growth, LargestBlock);
}

void RowsAhead::Take(const ServerRows& rows, const std::vector<qint32>& keys)
{
    const int block = int(m_blocks.size());
    m_blocks.push_back(rows);
    const int column = rows.Count() > 0 ? KeyColumnOf(rows) : 0;
    for (int row = 0; row < rows.Count(); ++row) {
        const auto key = qint32(rows.Number(row, column));
        if (m_written.count(key) == 0)
            m_places[key] = {block, row};
    }
    for (const qint32 key : keys)
        m_places.try_emplace(key, Place{block, -1});
}

void RowsAhead::DropRows()
{
    m_places.clear();
    m_blocks.clear();
}

int RowsAhead::KeyColumnOf(const ServerRows& rows) const
{
    int column = 0;
    while (column + 1 < rows.ColumnCount() && rows.ColumnName(column) != m_keyColumn)
        ++column;
    return column;
}

} // namespace Orvane
