// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/StatementPool.h"

#include <utility>

namespace Orvane {

namespace {

// Some queries contain IDs, so that the number of texts would otherwise have no limit.
constexpr size_t MaxTexts = 64;

} // namespace

std::unique_ptr<SqliteStatement> StatementPool::Take()
{
    std::unique_ptr<SqliteStatement> statement;
    if (m_idle.empty()) {
        statement = std::make_unique<SqliteStatement>(m_connection, m_sql);
        m_idle.reserve(size_t(m_lent) + 1);
    } else {
        statement = std::move(m_idle.back());
        m_idle.pop_back();
    }
    ++m_lent;
    return statement;
}

void StatementPool::Give(std::unique_ptr<SqliteStatement> statement) noexcept
{
    statement->ResetAndUnbind();
    m_idle.push_back(std::move(statement));
    --m_lent;
}

StatementLease& StatementLease::operator=(StatementLease&& other) noexcept
{
    if (this != &other) {
        Return();
        m_pool = other.m_pool;
        m_statement = std::move(other.m_statement);
    }
    return *this;
}

void StatementLease::Return() noexcept
{
    if (m_statement)
        m_pool->Give(std::move(m_statement));
}

StatementLease StatementCache::Lease(const QString& sql)
{
    auto found = m_pools.find(sql);
    if (found == m_pools.end()) {
        DropIdle();
        found = m_pools.emplace(sql, std::make_unique<StatementPool>(m_connection, sql)).first;
    }
    return StatementLease(*found->second);
}

void StatementCache::DropIdle()
{
    if (m_pools.size() < MaxTexts)
        return;
    std::erase_if(m_pools, [](const auto& entry) { return entry.second->IsIdle(); });
}

} // namespace Orvane
