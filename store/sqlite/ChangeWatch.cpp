// SPDX-License-Identifier: MIT
#include "store/sqlite/ChangeWatch.h"

#include "store/ChangeCoding.h"
#include "store/StoreTexts.h"
#include "store/sqlite/engine/SqliteConnection.h"
#include "store/sqlite/engine/SqliteStatement.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <map>
#include <optional>
#include <sqlite3.h>

namespace Orvane {

namespace {

constexpr int NoKey = -1; // instead of the position of a table

using ValueReader = int (*)(sqlite3*, int, sqlite3_value**);

std::optional<std::string_view> Content(sqlite3_value* value, const void* data)
{
    const auto size = size_t(sqlite3_value_bytes(value));
    if (!data && size > 0)
        return std::nullopt;
    return std::string_view(static_cast<const char*>(data), data ? size : 0);
}

// False when SQLite runs out of memory.
bool Code(std::string& bytes, sqlite3_value* value, bool isReal)
{
    bytes.clear();
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        if (isReal) // SQLite stores and reports whole numbers as integers
            ChangeCoding::AppendReal(bytes, sqlite3_value_double(value));
        else
            ChangeCoding::AppendInteger(bytes, sqlite3_value_int64(value));
        return true;
    case SQLITE_FLOAT:
        ChangeCoding::AppendReal(bytes, sqlite3_value_double(value));
        return true;
    case SQLITE_TEXT: {
        const auto text = Content(value, sqlite3_value_text(value));
        ChangeCoding::AppendText(bytes, text.value_or(std::string_view()));
        return text.has_value();
    }
    case SQLITE_BLOB: {
        const auto blob = Content(value, sqlite3_value_blob(value));
        ChangeCoding::AppendBlob(bytes, blob.value_or(std::string_view()));
        return blob.has_value();
    }
    default:
        ChangeCoding::AppendNull(bytes);
        return true;
    }
}

// False when SQLite runs out of memory.
bool ReadAll(
    sqlite3* handle, ValueReader read, const std::vector<bool>& isReal, std::vector<std::string>& values)
{
    values.resize(isReal.size());
    for (size_t column = 0; column < values.size(); ++column) {
        sqlite3_value* value = nullptr;
        if (read(handle, int(column), &value) != SQLITE_OK || !value)
            return false;
        if (!Code(values[column], value, isReal[column]))
            return false;
    }
    return true;
}

std::string Key(const ChangedTable& table, const std::vector<std::string>& values)
{
    std::string key;
    for (const int column : table.keys)
        key += values[size_t(column)];
    return key;
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

ChangedTable ReadTable(SqliteConnection& connection, const char* name, std::vector<bool>& isReal)
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
        if (table == NoKey)
            return;
        if (operation == SQLITE_UPDATE)
            NoteUpdate(table);
        else
            NoteWholeRow(table, operation == SQLITE_INSERT ? ChangeKind::Inserted : ChangeKind::Deleted);
    } catch (const std::exception&) {
        m_hasGaps = true;
    }
}

int ChangeWatch::TableNamed(const char* name)
{
    const int count = sqlite3_preupdate_count(m_connection.Handle());
    const int known = m_log.FindTable(name);
    if (known >= 0 && int(m_log.Table(known).columns.size()) == count)
        return m_log.Table(known).keys.empty() ? NoKey : known;
    const StatementWatch::Pause whole(m_connection.Watch());
    std::vector<bool> isReal;
    m_isReal.reserve(m_isReal.size() + 1); // both lists grow, or neither
    const int added = m_log.AddTable(ReadTable(m_connection, name, isReal));
    m_isReal.push_back(std::move(isReal));
    return m_log.Table(added).keys.empty() ? NoKey : added;
}

void ChangeWatch::NoteWholeRow(int table, ChangeKind kind)
{
    const bool isNew = kind == ChangeKind::Inserted;
    std::vector<std::string>& values = isNew ? m_after : m_before;
    const ValueReader read = isNew ? sqlite3_preupdate_new : sqlite3_preupdate_old;
    if (!ReadAll(m_connection.Handle(), read, m_isReal[size_t(table)], values)) {
        m_hasGaps = true;
        return;
    }
    NoteRow(table, kind);
}

void ChangeWatch::NoteUpdate(int table)
{
    const ChangedTable& described = m_log.Table(table);
    const std::vector<bool>& isReal = m_isReal[size_t(table)];
    if (!ReadAll(m_connection.Handle(), sqlite3_preupdate_old, isReal, m_before)
        || !ReadAll(m_connection.Handle(), sqlite3_preupdate_new, isReal, m_after)) {
        m_hasGaps = true;
        return;
    }
    if (Key(described, m_before) == Key(described, m_after))
        return NoteRow(table, ChangeKind::Updated);
    NoteRow(table, ChangeKind::Deleted); // with another key it is another row
    NoteRow(table, ChangeKind::Inserted);
}

void ChangeWatch::NoteRow(int table, ChangeKind kind)
{
    const bool isNew = kind == ChangeKind::Inserted;
    const auto& values = isNew ? m_after : m_before;
    m_log.BeginRow(table, kind, Key(m_log.Table(table), values));
    for (size_t column = 0; column < values.size(); ++column) {
        if (kind != ChangeKind::Updated)
            m_log.AddColumn(int(column), values[column], values[column]);
        else if (m_before[column] != m_after[column])
            m_log.AddColumn(int(column), m_before[column], m_after[column]);
    }
    m_log.FinishRow();
}

} // namespace Orvane
