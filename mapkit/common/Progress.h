// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <atomic>
#include <exception>
#include <mutex>

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

    /// What is being worked on now, for example a file; empty until it is set.
    void SetSubject(const QString& subject)
    {
        const std::lock_guard lock(m_mutex);
        m_subject = subject;
    }
    QString Subject() const
    {
        const std::lock_guard lock(m_mutex);
        return m_subject;
    }

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
    mutable std::mutex m_mutex;
    QString m_subject;
};

} // namespace Orvane
