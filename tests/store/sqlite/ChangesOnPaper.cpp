// SPDX-License-Identifier: MIT
#include "store/sqlite/ChangesOnPaper.h"

#include "store/ChangeCoding.h"
#include "store/ChangesetReader.h"

#include <gtest/gtest.h>
#include <set>
#include <sqlite3.h>

namespace Orvane::Testing {

namespace {

std::string CodedColumn(sqlite3_stmt* row, int column)
{
    std::string bytes;
    const auto content = [&] {
        const auto* data = static_cast<const char*>(sqlite3_column_blob(row, column));
        return std::string_view(data ? data : "", size_t(sqlite3_column_bytes(row, column)));
    };
    switch (sqlite3_column_type(row, column)) {
    case SQLITE_INTEGER:
        ChangeCoding::AppendInteger(bytes, sqlite3_column_int64(row, column));
        break;
    case SQLITE_FLOAT:
        ChangeCoding::AppendReal(bytes, sqlite3_column_double(row, column));
        break;
    case SQLITE_TEXT:
        ChangeCoding::AppendText(bytes, content());
        break;
    case SQLITE_BLOB:
        ChangeCoding::AppendBlob(bytes, content());
        break;
    default:
        ChangeCoding::AppendNull(bytes);
    }
    return bytes;
}

void Insert(PaperRows& rows, const PaperRows::key_type& key, const ChangedRow& change)
{
    std::vector<std::string> values;
    for (const ChangedRow::Column& column : change.columns) {
        EXPECT_EQ(size_t(column.position), values.size());
        values.emplace_back(column.after);
    }
    EXPECT_TRUE(rows.emplace(key, values).second) << "inserted, but there was such a row";
}

void Delete(PaperRows& rows, const PaperRows::key_type& key, const ChangedRow& change)
{
    std::vector<std::string> values;
    for (const ChangedRow::Column& column : change.columns)
        values.emplace_back(column.before);
    const auto found = rows.find(key);
    ASSERT_NE(found, rows.end()) << "deleted, but there was no such row";
    EXPECT_EQ(found->second, values);
    rows.erase(found);
}

void Alter(PaperRows& rows, const PaperRows::key_type& key, const ChangedRow& change)
{
    const auto found = rows.find(key);
    ASSERT_NE(found, rows.end()) << "updated, but there was no such row";
    EXPECT_FALSE(change.columns.empty());
    for (const ChangedRow::Column& column : change.columns) {
        std::string& value = found->second.at(size_t(column.position));
        EXPECT_EQ(value, column.before);
        EXPECT_NE(value, column.after);
        value = column.after;
    }
}

} // namespace

ChangesOnPaper::ChangesOnPaper(const QString& path)
{
    EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &m_handle), SQLITE_OK);
}

ChangesOnPaper::~ChangesOnPaper()
{
    sqlite3_close(m_handle);
}

PaperRows ChangesOnPaper::Read(const std::vector<std::pair<std::string, int>>& tables) const
{
    PaperRows rows;
    for (const auto& [table, keys] : tables)
        ReadTable(table, keys, rows);
    return rows;
}

void ChangesOnPaper::ReadTable(const std::string& table, int keys, PaperRows& rows) const
{
    sqlite3_stmt* row = nullptr;
    const std::string sql = "SELECT * FROM " + table;
    EXPECT_EQ(sqlite3_prepare_v2(m_handle, sql.c_str(), -1, &row, nullptr), SQLITE_OK)
        << sqlite3_errmsg(m_handle);
    while (sqlite3_step(row) == SQLITE_ROW) {
        std::string key;
        std::vector<std::string> values;
        values.reserve(size_t(sqlite3_column_count(row)));
        for (int column = 0; column < sqlite3_column_count(row); ++column) {
            values.push_back(CodedColumn(row, column));
            key += column < keys ? values.back() : std::string();
        }
        rows.emplace(std::pair(table, key), values);
    }
    sqlite3_finalize(row);
}

PaperRows ChangesOnPaper::After(PaperRows rows, const Changeset& changes)
{
    std::set<PaperRows::key_type> changed;
    for (ChangesetReader reader(changes); reader.Next();) {
        const ChangedRow& change = reader.Row();
        const PaperRows::key_type key(reader.Table().name, std::string(change.key));
        EXPECT_TRUE(changed.insert(key).second) << "there are two changes of a row";
        if (change.kind == ChangeKind::Inserted)
            Insert(rows, key, change);
        else if (change.kind == ChangeKind::Deleted)
            Delete(rows, key, change);
        else
            Alter(rows, key, change);
    }
    return rows;
}

} // namespace Orvane::Testing
