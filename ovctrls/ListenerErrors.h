// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <memory>

namespace Orvane {

/// What becomes of an exception that a listener of a control raises: it must not reach the event loop.
class ListenerErrors
{
public:
    using Report = std::function<void(std::exception_ptr)>;

    /// Who is told; without a report, an error is a warning in the log. The report must not raise.
    void SetReport(Report report);

    /// Runs the action; an exception is reported. The action may destroy the owner of this object.
    template <typename Action> void Guard(const Action& action) const noexcept
    {
        const std::shared_ptr<const Report> report = m_report;
        try {
            action();
        } catch (...) {
            Tell(report.get(), std::current_exception());
        }
    }

private:
    static void Tell(const Report* report, const std::exception_ptr& error) noexcept;

    std::shared_ptr<const Report> m_report;
};

} // namespace Orvane
