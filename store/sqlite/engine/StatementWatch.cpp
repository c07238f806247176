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
    WorkWatch::SetWatcher(std::move(watcher));
    Install();
}

void StatementWatch::Install()
{
    const auto look = [](void* watch) { return static_cast<StatementWatch*>(watch)->MayGoOn() ? 0 : 1; };
    if (m_end || HasWatcher())
        sqlite3_progress_handler(m_handle, StepsBetweenLooks, look, this);
    else
        sqlite3_progress_handler(m_handle, 0, nullptr, nullptr);
}

bool StatementWatch::MayGoOn() noexcept
{
    if (IsPaused())
        return true;
    m_isOver = m_isOver || (m_end && std::chrono::steady_clock::now() >= *m_end);
    return Ask() && !m_isOver;
}

} // namespace Orvane
