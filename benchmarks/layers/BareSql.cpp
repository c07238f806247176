// SPDX-License-Identifier: MIT
#include "benchmarks/layers/BareSql.h"

#include <sqlite3.h>
#include <stdexcept>

namespace Orvane::Benchmarks {

namespace {

sqlite3* Opened(const QString& path)
{
    sqlite3* handle = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &handle) != SQLITE_OK)
        throw std::runtime_error("the benchmark's map cannot be opened");
    return handle;
}

} // namespace

void BareSql::Closer::operator()(sqlite3* handle) const
{
    sqlite3_close(handle);
}

void BareSql::Finalizer::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

BareSql::BareSql(const QString& mapPath) : m_handle(Opened(mapPath))
{
}

BareSql::Statement BareSql::Prepared(const QByteArray& sql) const
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_handle.get(), sql.constData(), -1, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_handle.get()));
    return Statement(statement);
}

void BareSql::Run(sqlite3_stmt* statement) const
{
    if (sqlite3_step(statement) != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(m_handle.get()));
    sqlite3_reset(statement);
}

void BareSql::RunAll(const std::vector<Statement>& statements) const
{
    Execute("BEGIN");
    for (const Statement& statement : statements)
        Run(statement.get());
    Execute("COMMIT");
}

void BareSql::Execute(const QByteArray& sql) const
{
    if (sqlite3_exec(m_handle.get(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_handle.get()));
}

} // namespace Orvane::Benchmarks
