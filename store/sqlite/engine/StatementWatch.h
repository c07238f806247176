// SPDX-License-Identifier: MIT
#pragma once

#include "store/shared/WorkWatch.h"

#include <chrono>
#include <optional>

struct sqlite3;

namespace Orvane {

/// Looks at the statements of one connection while they run, and ends them when their time is over or when
/// the watcher says so. They end with SQLITE_INTERRUPT then.
class StatementWatch : public WorkWatch
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// The connection to look at; call it before anything else.
    void Attach(sqlite3* handle) { m_handle = handle; }
    /// When statements end; nothing for never.
    void SetEnd(std::optional<Time> end);
    /// True when a statement was ended because its time was over, since SetEnd.
    bool IsOver() const { return m_isOver; }
    /// As WorkWatch, also while statements run.
    void SetWatcher(StoreWatcher watcher);

private:
    void Install();
    bool MayGoOn() noexcept;

    sqlite3* m_handle = nullptr;
    std::optional<Time> m_end;
    bool m_isOver = false;
};

} // namespace Orvane
