// SPDX-License-Identifier: MIT
#include "store/Changeset.h"

#include <algorithm>
#include <memory>
#include <new>
#include <sqlite3.h>

namespace Orvane {

namespace {

constexpr qsizetype Large = 16384; // bytes
constexpr int FastCompression = 1;

struct MemoryCloser {
    void operator()(void* memory) const { sqlite3_free(memory); }
};

struct IteratorCloser {
    void operator()(sqlite3_changeset_iter* iterator) const { sqlite3changeset_finalize(iterator); }
};

using Iterator = std::unique_ptr<sqlite3_changeset_iter, IteratorCloser>;

void* Memory(QByteArray& bytes)
{
    return bytes.isEmpty() ? nullptr : bytes.data();
}

// The changes are SQLite's own work: it can only fail for want of memory.
QByteArray Taken(int result, int size, void* memory)
{
    const std::unique_ptr<void, MemoryCloser> owner(memory);
    if (result != SQLITE_OK)
        throw std::bad_alloc();
    return QByteArray(static_cast<const char*>(memory), size);
}

RowChange::Kind KindOf(int operation)
{
    if (operation == SQLITE_INSERT)
        return RowChange::Kind::Inserted;
    return operation == SQLITE_DELETE ? RowChange::Kind::Deleted : RowChange::Kind::Updated;
}

sqlite3_value* ValueBefore(sqlite3_changeset_iter* iterator, int column)
{
    sqlite3_value* value = nullptr;
    sqlite3changeset_old(iterator, column, &value);
    return value;
}

sqlite3_value* ValueAfter(sqlite3_changeset_iter* iterator, int column)
{
    sqlite3_value* value = nullptr;
    sqlite3changeset_new(iterator, column, &value);
    return value;
}

qint64 KeyOf(sqlite3_changeset_iter* iterator, RowChange::Kind kind)
{
    unsigned char* isKey = nullptr;
    int columns = 0;
    sqlite3changeset_pk(iterator, &isKey, &columns);
    const int column = int(std::find(isKey, isKey + columns, 1) - isKey);
    sqlite3_value* value
        = kind == RowChange::Kind::Inserted ? ValueAfter(iterator, column) : ValueBefore(iterator, column);
    return value ? sqlite3_value_int64(value) : 0;
}

void ReadRow(sqlite3_changeset_iter* iterator, RowChange& row)
{
    const char* table = nullptr;
    int columns = 0;
    int operation = 0;
    sqlite3changeset_op(iterator, &table, &columns, &operation, nullptr);
    row.table = table;
    row.kind = KindOf(operation);
    row.key = KeyOf(iterator, row.kind);
    row.columns.clear();
    for (int column = 0; row.kind == RowChange::Kind::Updated && column < columns; ++column) {
        if (ValueAfter(iterator, column))
            row.columns.push_back(column);
    }
}

} // namespace

Changeset::Changeset(const QByteArray& bytes)
    : m_kept(bytes.size() < Large ? bytes : qCompress(bytes, FastCompression)),
      m_compressed(bytes.size() >= Large)
{
}

QByteArray Changeset::Bytes() const
{
    return m_compressed ? qUncompress(m_kept) : m_kept;
}

Changeset Changeset::Inverted() const
{
    const QByteArray bytes = Bytes();
    int size = 0;
    void* memory = nullptr;
    const int result = sqlite3changeset_invert(int(bytes.size()), bytes.constData(), &size, &memory);
    return Changeset(Taken(result, size, memory));
}

Changeset Changeset::Then(const Changeset& next) const
{
    QByteArray first = Bytes();
    QByteArray second = next.Bytes();
    int size = 0;
    void* memory = nullptr;
    const int result = sqlite3changeset_concat(
        int(first.size()), Memory(first), int(second.size()), Memory(second), &size, &memory);
    return Changeset(Taken(result, size, memory));
}

void Changeset::ForEachRow(const std::function<void(const RowChange& row)>& visitor) const
{
    QByteArray bytes = Bytes();
    sqlite3_changeset_iter* started = nullptr;
    if (sqlite3changeset_start(&started, int(bytes.size()), Memory(bytes)) != SQLITE_OK)
        throw std::bad_alloc();
    const Iterator iterator(started);
    RowChange row;
    while (sqlite3changeset_next(started) == SQLITE_ROW) {
        ReadRow(started, row);
        visitor(row);
    }
}

} // namespace Orvane
