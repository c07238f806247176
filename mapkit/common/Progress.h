// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <exception>

namespace Orvane {

/// Raised by work that the user cancelled. It is not an error; do not report it as one.
class Cancelled : public std::exception
{
public:
    const char* what() const noexcept override { return "cancelled"; }
};

/// The progress of a long task, and whether it was cancelled. The worker reports; other code reads the
/// progress or cancels. Every member may be called on any thread.
class Progress
{
public:
    /// done: 0 to 1.
    void Report(double done) { m_done = done; }
    double Done() const { return m_done; }

    void Cancel() { m_cancelled = true; }
    bool IsCancelled() const { return m_cancelled; }
    /// For workers that check a flag.
    const std::atomic<bool>& CancelledFlag() const { return m_cancelled; }
    /// Raises Cancelled if the work was cancelled.
    void StopIfCancelled() const
    {
        if (m_cancelled)
            throw Cancelled();
    }

private:
    std::atomic<double> m_done = 0;
    std::atomic<bool> m_cancelled = false;
};

} // namespace Orvane
