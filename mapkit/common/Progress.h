// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <exception>

namespace Orvane {

/// Raised by work that the person cancelled; no error, and not to be reported as one.
class Cancelled : public std::exception
{
public:
    const char* what() const noexcept override { return "cancelled"; }
};

/// How far a long piece of work has come, and whether it is still wanted. The worker reports, anybody else
/// looks or cancels; every member may be called on any thread.
class Progress
{
public:
    /// done: 0 to 1.
    void Report(double done) { m_done = done; }
    double Done() const { return m_done; }

    void Cancel() { m_cancelled = true; }
    bool IsCancelled() const { return m_cancelled; }
    /// For workers that look at a flag.
    const std::atomic<bool>& CancelledFlag() const { return m_cancelled; }
    /// Raises Cancelled when the work is no longer wanted.
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
