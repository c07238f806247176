// SPDX-License-Identifier: MIT
#include "store/postgres/PendingWrites.h"

#include "store/postgres/link/ServerPipeline.h"

#include <algorithm>
#include <numeric>

namespace Orvane {

namespace {

constexpr size_t ManyStatements = 4000;
constexpr size_t ManyRows = 10000;
constexpr int LooksBack = 16; // for updates that another one is sent with

} // namespace

void PendingWrites::Add(const QByteArray& sql, const ServerValues& values, int level)
{
    Write& write = m_writes.emplace_back();
    write.level = level;
    write.what.emplace<Statement>(sql, values);
}

void PendingWrites::Add(RowUpdate update, int level)
{
    RowUpdates* updates = UpdatesFor(update, level);
    if (!updates) {
        Write& write = m_writes.emplace_back();
        write.level = level;
        updates = &write.what.emplace<RowUpdates>(update.columns);
    }
    updates->Add(std::move(update));
}

// An update may pass those of other rows, but nothing else.
RowUpdates* PendingWrites::UpdatesFor(const RowUpdate& update, int level)
{
    int looks = LooksBack;
    for (auto write = m_writes.rbegin(); write != m_writes.rend() && looks > 0; ++write, --looks) {
        auto* updates = std::get_if<RowUpdates>(&write->what);
        if (!updates || write->level != level || updates->Holds(update.key))
            return nullptr;
        if (updates->HasColumnsOf(update))
            return updates;
    }
    return nullptr;
}

bool PendingWrites::AreMany() const
{
    if (m_writes.size() >= ManyStatements)
        return true;
    const size_t rows
        = std::accumulate(m_writes.begin(), m_writes.end(), size_t(0), [](size_t sum, const Write& write) {
              const auto* updates = std::get_if<RowUpdates>(&write.what);
              return sum + (updates ? updates->Count() : 1);
          });
    return rows >= ManyRows;
}

bool PendingWrites::MayBeginAgain() const
{
    return std::all_of(m_writes.begin(), m_writes.end(), [](const Write& write) {
        return std::holds_alternative<RowUpdates>(write.what);
    });
}

void PendingWrites::DropAbove(int level)
{
    std::erase_if(m_writes, [level](const Write& write) { return write.level > level; });
}

void PendingWrites::JoinAbove(int level)
{
    for (Write& write : m_writes)
        write.level = std::min(write.level, level);
}

void PendingWrites::Clear()
{
    m_writes.clear();
    m_expect = RowUpdates::Expect::ARow;
}

void PendingWrites::SendInto(ServerPipeline& pipeline, const std::function<void(int level)>& begin)
{
    for (Write& write : m_writes) {
        begin(write.level);
        if (auto* updates = std::get_if<RowUpdates>(&write.what))
            updates->SendInto(pipeline, m_expect);
        else
            pipeline.Add(std::get<Statement>(write.what).first, std::get<Statement>(write.what).second);
    }
}

} // namespace Orvane
