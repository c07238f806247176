// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreWatcher.h"

#include <chrono>
#include <optional>

struct sqlite3;

namespace Orvane {

/// Looks at the statements of one connection while they run, and ends them when their time is over or when
/// the watcher says so. They end with SQLITE_INTERRUPT then.
class StatementWatch
{
public:
    using Time = std::chrono::steady_clock::time_point;

    StatementWatch() = default;
    StatementWatch(const StatementWatch&) = delete;
    StatementWatch& operator=(const StatementWatch&) = delete;

    /// The connection to look at; call it before anything else.
    void Attach(sqlite3* handle) { m_handle = handle; }
    /// When statements end; nothing for never.
    void SetEnd(std::optional<Time> end);
    /// True when a statement was ended because its time was over, since SetEnd.
    bool IsOver() const { return m_isOver; }
    /// An empty function removes the watcher.
    void SetWatcher(StoreWatcher watcher);
    /// What the watcher is told next; see StoreWatcher.
    void SetShare(double done) { m_share = done; }

    /// Calls the watcher, if there is one. False when the operation is cancelled, now or since SetWatcher.
    bool Ask() noexcept;
    /// True while the watcher runs: nothing may touch the connection.
    bool IsAsking() const { return m_asking; }
    bool IsCancelled() const { return m_cancelled; }

    /// During its lifetime nothing is ended: what must run as a whole.
    class Pause
    {
    public:
        explicit Pause(StatementWatch& watch) : m_watch(watch) { ++m_watch.m_pauses; }
        ~Pause() { --m_watch.m_pauses; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        StatementWatch& m_watch;
    };

private:
    void Install();
    bool MayGoOn() noexcept;

    sqlite3* m_handle = nullptr;
    StoreWatcher m_watcher;
    std::optional<Time> m_end;
    double m_share = UnknownShare;
    int m_pauses = 0;
    bool m_asking = false;
    bool m_cancelled = false;
    bool m_isOver = false;
};

} // namespace Orvane
