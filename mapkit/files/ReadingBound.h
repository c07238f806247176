// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>

namespace Orvane {

/// Bounds what GDAL reads on this thread, from its construction to its destruction. Once a bound is over,
/// GDAL opens no further file on this thread, and SQLite's statements there end with an error; both also
/// when a file names others. Bounds nest: an inner one is over when an outer one is.
///
///     const ReadingBound bound(progress.CancelledFlag());
///     const DataSource source(path); // ends soon after the user cancels
///
/// Does not end what a driver computes by itself without opening a file. Call PrepareGdal before reading.
/// For the thread that made it only.
class ReadingBound
{
public:
    /// How long reading may take without a gain.
    static constexpr std::chrono::seconds LongestWait{60};
    /// The same where nothing else happens meanwhile and the user cannot cancel.
    static constexpr std::chrono::seconds WhileUserWaits{10};

    /// Over when nothing was gained for that time.
    explicit ReadingBound(std::chrono::milliseconds wait = LongestWait);
    /// Over when cancelled is set, however long it takes. cancelled: not owned; outlives this object.
    explicit ReadingBound(const std::atomic<bool>& cancelled);
    ~ReadingBound();
    ReadingBound(const ReadingBound&) = delete;
    ReadingBound& operator=(const ReadingBound&) = delete;

    /// Something was gained: the time begins again. Outer bounds are not changed.
    void Renew();
    /// Whether this bound, or an outer one, is over; once true, it stays so.
    bool IsOver();

    /// Whether the innermost bound of this thread is over; false without one.
    static bool IsOverHere();
    /// Whether a bound of this thread is over because it was cancelled.
    static bool IsCancelledHere();
    /// Has SQLite ask this thread's bounds on each connection that is opened from now on while there is one.
    /// Called before each opening, because a library that GDAL uses takes it back.
    static void ReachSqlite();

private:
    bool IsCancelled() const;

    ReadingBound* m_outer;
    const std::atomic<bool>* m_cancelled = nullptr;
    std::chrono::milliseconds m_wait;
    std::chrono::steady_clock::time_point m_end;
    bool m_isOver = false;
};

} // namespace Orvane
