// SPDX-License-Identifier: MIT
#include "store/sqlite/ChangeWatch.h"

#include "store/ChangeCoding.h"
#include "store/StoreTexts.h"
#include "store/sqlite/engine/SqliteConnection.h"
#include "store/sqlite/engine/SqliteStatement.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <bit>
#include <map>
#include <optional>
#include <sqlite3.h>

namespace Orvane {

namespace {

constexpr int NoTable = -1; // instead of the position of a table

using ValueReader = int (*)(sqlite3*, int, sqlite3_value**);

// A value as SQLite reports it, in SQLite's own memory.
struct Seen {
    sqlite3_value* value = nullptr;
    int type = SQLITE_NULL;
    bool isReal = false; // SQLite stores and reports whole numbers of such columns as integers
};

// False when SQLite runs out of memory.
bool See(sqlite3* handle, ValueReader read, int column, const std::vector<char>& isReal, Seen& seen)
{
    if (read(handle, column, &seen.value) != SQLITE_OK || !seen.value)
        return false;
    seen.type = sqlite3_value_type(seen.value);
    seen.isReal = seen.type == SQLITE_FLOAT || (seen.type == SQLITE_INTEGER && isReal[size_t(column)]);
    return true;
}

std::optional<std::string_view> Content(sqlite3_value* value, const void* data)
{
    const auto size = size_t(sqlite3_value_bytes(value));
    if (!data && size > 0)
        return std::nullopt;
    return std::string_view(static_cast<const char*>(data), data ? size : 0);
}

std::optional<std::string_view> ContentAsStored(const Seen& seen)
{
    return Content(seen.value, sqlite3_value_blob(seen.value));
}

// Texts are compared as they are stored, in whatever encoding: the other functions would copy them.
bool AreSame(const Seen& one, const Seen& other)
{
    if (one.isReal && other.isReal)
        return std::bit_cast<quint64>(sqlite3_value_double(one.value))
            == std::bit_cast<quint64>(sqlite3_value_double(other.value));
    if (one.type != other.type)
        return false;
    if (one.type == SQLITE_INTEGER)
        return sqlite3_value_int64(one.value) == sqlite3_value_int64(other.value);
    if (one.type == SQLITE_NULL)
        return true;
    const auto content = ContentAsStored(one);
    return content && content == ContentAsStored(other);
}

// Appends the value. False when SQLite runs out of memory.
bool Code(std::string& bytes, const Seen& seen)
{
    if (seen.isReal) {
        ChangeCoding::AppendReal(bytes, sqlite3_value_double(seen.value));
    } else if (seen.type == SQLITE_INTEGER) {
        ChangeCoding::AppendInteger(bytes, sqlite3_value_int64(seen.value));
    } else if (seen.type == SQLITE_TEXT) {
        const auto text = Content(seen.value, sqlite3_value_text(seen.value));
        ChangeCoding::AppendText(bytes, text.value_or(std::string_view()));
        return text.has_value();
    } else if (seen.type == SQLITE_BLOB) {
        const auto blob = ContentAsStored(seen);
        ChangeCoding::AppendBlob(bytes, blob.value_or(std::string_view()));
        return blob.has_value();
    } else {
        ChangeCoding::AppendNull(bytes);
    }
    return true;
}

bool IsKey(const ChangedTable& table, int column)
{
    return std::find(table.keys.begin(), table.keys.end(), column) != table.keys.end();
}

// SQLite's rule for deriving the type of a column from its declaration.
bool NamesReal(const QString& type)
{
    const auto has
        = [&](const char* part) { return type.contains(QLatin1String(part), Qt::CaseInsensitive); };
    if (has("INT") || has("CHAR") || has("CLOB") || has("TEXT") || has("BLOB"))
        return false;
    return has("REAL") || has("FLOA") || has("DOUB");
}

ChangedTable ReadTable(SqliteConnection& connection, const char* name, std::vector<char>& isReal)
{
    ChangedTable table{name, {}, {}};
    std::map<qint32, int> keys; // by their position in the primary key
    SqliteStatement columns(
        connection, QStringLiteral("SELECT cid, name, pk, type FROM pragma_table_info(?1)"));
    columns.Bind(1, Value(QString::fromUtf8(name)));
    while (columns.Step()) {
        table.columns.push_back(ToText(columns.Column(1)).toStdString());
        isReal.push_back(NamesReal(ToText(columns.Column(3))));
        if (const qint32 place = ToInt32(columns.Column(2)); place > 0)
            keys.emplace(place, ToInt32(columns.Column(0)));
    }
    for (const auto& [place, column] : keys)
        table.keys.push_back(column);
    return table;
}

bool BelongsToTheHost(std::string_view database, std::string_view table)
{
    return database == "main" && table.substr(0, 7) != "sqlite_";
}

} // namespace

ChangeWatch::~ChangeWatch()
{
    sqlite3_preupdate_hook(m_connection.Handle(), nullptr, nullptr);
}

size_t ChangeWatch::Begin()
{
    m_connection.RequireUsable();
    if (m_watchers++ == 0) {
        ForgetRows();
        m_hasGaps = false;
        sqlite3_preupdate_hook(
            m_connection.Handle(),
            [](void* watch, sqlite3*, int operation, const char* database, const char* table, sqlite3_int64,
               sqlite3_int64) noexcept {
                if (BelongsToTheHost(database, table))
                    static_cast<ChangeWatch*>(watch)->Note(operation, table);
            },
            this);
    }
    return m_log.Size();
}

void ChangeWatch::End()
{
    if (--m_watchers == 0) {
        sqlite3_preupdate_hook(m_connection.Handle(), nullptr, nullptr);
        ForgetRows();
    }
}

// Keeps the log while a transaction is open, because transactions hold positions in it.
void ChangeWatch::ForgetRows()
{
    if (!m_connection.IsAutoCommit())
        return;
    m_log.Clear();
    m_isReal.clear();
    m_lastTable = NoTable;
}

Changeset ChangeWatch::ChangesSince(size_t place) const
{
    if (m_hasGaps)
        throw m_connection.Errors().Failure(StoreTexts::ChangesNotRecorded);
    return m_log.ChangesSince(place);
}

// Called by SQLite, so no exception may leave it.
void ChangeWatch::Note(int operation, const char* tableName) noexcept
{
    try {
        const int table = TableNamed(tableName);
        if (table == NoTable)
            return;
        if (operation == SQLITE_UPDATE)
            m_hasGaps |= !NoteUpdate(table);
        else
            m_hasGaps |= !NoteWholeRow(
                table, operation == SQLITE_INSERT ? ChangeKind::Inserted : ChangeKind::Deleted);
    } catch (const std::exception&) {
        m_hasGaps = true;
    }
}

int ChangeWatch::TableNamed(const char* name)
{
    const auto count = size_t(sqlite3_preupdate_count(m_connection.Handle()));
    const bool isLast = m_lastTable != NoTable && m_log.Table(m_lastTable).name == name;
    const int known = isLast ? m_lastTable : m_log.FindTable(name);
    const bool fits = known != NoTable && m_log.Table(known).columns.size() == count;
    m_lastTable = fits ? known : AddTable(name);
    return m_log.Table(m_lastTable).keys.empty() ? NoTable : m_lastTable;
}

int ChangeWatch::AddTable(const char* name)
{
    const StatementWatch::Pause whole(m_connection.Watch());
    std::vector<char> isReal;
    m_isReal.reserve(m_isReal.size() + 1); // both lists grow, or neither
    const int added = m_log.AddTable(ReadTable(m_connection, name, isReal));
    m_isReal.push_back(std::move(isReal));
    return added;
}

// Codes the key, and starts the row.
bool ChangeWatch::BeginRow(int table, ChangeKind kind, ValueReader read)
{
    const std::vector<char>& isReal = m_isReal[size_t(table)];
    m_key.clear();
    for (const int column : m_log.Table(table).keys) {
        Seen seen;
        if (!See(m_connection.Handle(), read, column, isReal, seen) || !Code(m_key, seen))
            return false;
    }
    m_log.BeginRow(table, kind, m_key);
    return true;
}

bool ChangeWatch::NoteWholeRow(int table, ChangeKind kind)
{
    const auto read = kind == ChangeKind::Inserted ? sqlite3_preupdate_new : sqlite3_preupdate_old;
    if (!BeginRow(table, kind, read))
        return false;
    const std::vector<char>& isReal = m_isReal[size_t(table)];
    for (int column = 0; column < int(isReal.size()); ++column) {
        Seen seen;
        m_value.clear();
        if (!See(m_connection.Handle(), read, column, isReal, seen) || !Code(m_value, seen))
            return false;
        m_log.AddColumn(column, m_value, m_value);
    }
    m_log.FinishRow();
    return true;
}

// Most columns of most rows stay as they are: they are only compared.
bool ChangeWatch::NoteUpdate(int table)
{
    sqlite3* const handle = m_connection.Handle();
    if (!BeginRow(table, ChangeKind::Updated, sqlite3_preupdate_old))
        return false;
    const std::vector<char>& isReal = m_isReal[size_t(table)];
    for (int column = 0; column < int(isReal.size()); ++column) {
        Seen before;
        Seen after;
        if (!See(handle, sqlite3_preupdate_old, column, isReal, before)
            || !See(handle, sqlite3_preupdate_new, column, isReal, after))
            return false;
        if (AreSame(before, after))
            continue;
        if (IsKey(m_log.Table(table), column)) // with another key it is another row
            return NoteWholeRow(table, ChangeKind::Deleted) && NoteWholeRow(table, ChangeKind::Inserted);
        m_value.clear();
        m_after.clear();
        if (!Code(m_value, before) || !Code(m_after, after))
            return false;
        m_log.AddColumn(column, m_value, m_after);
    }
    m_log.FinishRow();
    return true;
}

} // namespace Orvane
