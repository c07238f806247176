// SPDX-License-Identifier: MIT
#pragma once

#include "store/sqlite/engine/SqliteStatement.h"

#include <QHash>
#include <QString>

#include <memory>
#include <unordered_map>
#include <vector>

namespace Orvane {

/// The prepared statements for one SQL text: each is prepared once and used repeatedly. Two cursors that are
/// open at the same time on the same text get one statement each.
class StatementPool
{
public:
    StatementPool(SqliteConnection& connection, const QString& sql) : m_connection(connection), m_sql(sql) { }

    std::unique_ptr<SqliteStatement> Take();
    void Give(std::unique_ptr<SqliteStatement> statement) noexcept;
    /// True while no statement is lent out.
    bool IsIdle() const { return m_lent == 0; }

private:
    SqliteConnection& m_connection;
    QString m_sql;
    std::vector<std::unique_ptr<SqliteStatement>> m_idle;
    int m_lent = 0;
};

/// A statement on loan from a pool, which must outlive it; it is returned reset and without bound values.
class StatementLease
{
public:
    /// Holds nothing.
    StatementLease() = default;
    explicit StatementLease(StatementPool& pool) : m_pool(&pool), m_statement(pool.Take()) { }
    StatementLease(StatementLease&& other) noexcept = default;
    StatementLease& operator=(StatementLease&& other) noexcept;
    ~StatementLease() { Return(); }

    explicit operator bool() const { return bool(m_statement); }
    SqliteStatement* operator->() const { return m_statement.get(); }
    SqliteStatement& operator*() const { return *m_statement; }
    /// Returns the statement to the pool early.
    void Return() noexcept;

private:
    StatementPool* m_pool = nullptr;
    std::unique_ptr<SqliteStatement> m_statement;
};

/// The pools for all recently run texts.
class StatementCache
{
public:
    explicit StatementCache(SqliteConnection& connection) : m_connection(connection) { }

    /// A statement for the text; raises if it cannot be prepared.
    StatementLease Lease(const QString& sql);

private:
    void DropIdle();

    SqliteConnection& m_connection;
    std::unordered_map<QString, std::unique_ptr<StatementPool>> m_pools;
};

} // namespace Orvane
