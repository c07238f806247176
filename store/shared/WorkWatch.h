// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreWatcher.h"

namespace Orvane {

/// Calls the watcher of a store's work, and remembers whether it cancelled the work.
class WorkWatch
{
public:
    WorkWatch() = default;
    WorkWatch(const WorkWatch&) = delete;
    WorkWatch& operator=(const WorkWatch&) = delete;

    /// An empty function removes the watcher. The work is no longer cancelled.
    void SetWatcher(StoreWatcher watcher);
    bool HasWatcher() const { return bool(m_watcher); }
    /// What the watcher is told next; see StoreWatcher.
    void SetShare(double done) { m_share = done; }

    /// Calls the watcher, if there is one. False when the operation is cancelled, now or since SetWatcher.
    bool Ask() noexcept;
    /// True while the watcher runs: nothing may touch the store.
    bool IsAsking() const { return m_asking; }
    bool IsCancelled() const { return m_cancelled; }
    /// True while something runs that must not be ended.
    bool IsPaused() const { return m_pauses > 0; }

    /// During its lifetime nothing is ended: what must run as a whole.
    class Pause
    {
    public:
        explicit Pause(WorkWatch& watch) : m_watch(watch) { ++m_watch.m_pauses; }
        ~Pause() { --m_watch.m_pauses; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        WorkWatch& m_watch;
    };

private:
    StoreWatcher m_watcher;
    double m_share = UnknownShare;
    int m_pauses = 0;
    bool m_asking = false;
    bool m_cancelled = false;
};

} // namespace Orvane
