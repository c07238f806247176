// SPDX-License-Identifier: MIT
#include "mapkit/geopackage/PackageConnection.h"

#include <array>
#include <sqlite3.h>
#include <utility>

namespace Orvane {

namespace {

constexpr auto Switches = {
    std::pair(SQLITE_DBCONFIG_DEFENSIVE, 1),   std::pair(SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0),
    std::pair(SQLITE_DBCONFIG_ENABLE_VIEW, 0), std::pair(SQLITE_DBCONFIG_ENABLE_TRIGGER, 0),
    std::pair(SQLITE_DBCONFIG_DQS_DDL, 0),     std::pair(SQLITE_DBCONFIG_DQS_DML, 0),
};

// Far above what a statement here needs, far below what a crafted schema could use.
constexpr auto Limits = {
    std::pair(SQLITE_LIMIT_LENGTH, 100'000'000), // bytes of a value
    std::pair(SQLITE_LIMIT_SQL_LENGTH, 1'000'000), // bytes
    std::pair(SQLITE_LIMIT_EXPR_DEPTH, 200),       std::pair(SQLITE_LIMIT_COMPOUND_SELECT, 50),
    std::pair(SQLITE_LIMIT_VDBE_OP, 250'000),      std::pair(SQLITE_LIMIT_ATTACHED, 0),
    std::pair(SQLITE_LIMIT_WORKER_THREADS, 0),
};

} // namespace

void PackageConnection::Closer::operator()(sqlite3* handle) const
{
    sqlite3_close(handle);
}

PackageConnection::PackageConnection(const QString& path)
{
    sqlite3* handle = nullptr;
    constexpr int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX;
    const int result = sqlite3_open_v2(path.toUtf8().constData(), &handle, flags, nullptr);
    m_handle.reset(handle);
    if (result != SQLITE_OK)
        throw PackageDoubt();
    for (const auto& [what, value] : Switches)
        sqlite3_db_config(handle, what, value, nullptr);
    for (const auto& [what, most] : Limits)
        sqlite3_limit(handle, what, most);
    if (sqlite3_exec(handle, "PRAGMA cell_size_check = ON", nullptr, nullptr, nullptr) != SQLITE_OK)
        throw PackageDoubt();
}

PackageConnection::~PackageConnection() = default;

void PackageStatement::Finalizer::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

PackageStatement::PackageStatement(const PackageConnection& connection, const QByteArray& sql)
{
    sqlite3_stmt* statement = nullptr;
    const int result
        = sqlite3_prepare_v2(connection.Handle(), sql.constData(), int(sql.size() + 1), &statement, nullptr);
    m_statement.reset(statement);
    if (result != SQLITE_OK || !statement)
        throw PackageDoubt();
}

bool PackageStatement::Step()
{
    const int result = sqlite3_step(m_statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        throw PackageDoubt();
    return result == SQLITE_ROW;
}

void PackageStatement::RequireKind(int column, int kind) const
{
    if (sqlite3_column_type(m_statement.get(), column) != kind)
        throw PackageDoubt();
}

bool PackageStatement::IsNull(int column) const
{
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

qint64 PackageStatement::Whole(int column) const
{
    RequireKind(column, SQLITE_INTEGER);
    return sqlite3_column_int64(m_statement.get(), column);
}

QString PackageStatement::Text(int column) const
{
    RequireKind(column, SQLITE_TEXT);
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement.get(), column));
    if (!text)
        throw PackageDoubt();
    return QString::fromUtf8(text, sqlite3_column_bytes(m_statement.get(), column));
}

std::span<const uint8_t> PackageStatement::Bytes(int column) const
{
    RequireKind(column, SQLITE_BLOB);
    const auto* bytes = static_cast<const uint8_t*>(sqlite3_column_blob(m_statement.get(), column));
    return {bytes, bytes ? size_t(sqlite3_column_bytes(m_statement.get(), column)) : 0};
}

QByteArray NameInPackage(const QString& name)
{
    QByteArray text = name.toUtf8();
    text.replace('"', "\"\"");
    return '"' + text + '"';
}

} // namespace Orvane
