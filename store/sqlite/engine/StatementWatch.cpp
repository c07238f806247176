// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/StatementWatch.h"

#include <sqlite3.h>
#include <utility>

namespace Orvane {

namespace {

constexpr int StepsBetweenLooks = 1000; // a look at the clock takes as long as a few steps

} // namespace

void StatementWatch::SetEnd(std::optional<Time> end)
{
    m_end = end;
    m_isOver = false;
    Install();
}

void StatementWatch::SetWatcher(StoreWatcher watcher)
{
    m_watcher = std::move(watcher);
    m_cancelled = false;
    m_share = UnknownShare;
    Install();
}

void StatementWatch::Install()
{
    const auto look = [](void* watch) { return static_cast<StatementWatch*>(watch)->MayGoOn() ? 0 : 1; };
    if (m_end || m_watcher)
        sqlite3_progress_handler(m_handle, StepsBetweenLooks, look, this);
    else
        sqlite3_progress_handler(m_handle, 0, nullptr, nullptr);
}

bool StatementWatch::MayGoOn() noexcept
{
    if (m_pauses > 0)
        return true;
    m_isOver = m_isOver || (m_end && std::chrono::steady_clock::now() >= *m_end);
    return Ask() && !m_isOver;
}

bool StatementWatch::Ask() noexcept
{
    if (!m_watcher || m_cancelled || m_asking)
        return !m_cancelled;
    m_asking = true;
    try {
        m_cancelled = !m_watcher(m_share);
    } catch (...) { // an exception must not pass through SQLite's frames
    }
    m_asking = false;
    return !m_cancelled;
}

} // namespace Orvane
