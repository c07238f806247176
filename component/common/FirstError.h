// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <utility>

namespace Orvane {

/// Runs steps that must all run, even if one of them raises, and raises the first error at the end.
class FirstError
{
public:
    template <typename Step> void Try(Step&& step) noexcept
    {
        try {
            std::forward<Step>(step)();
        } catch (...) {
            if (!m_error)
                m_error = std::current_exception();
        }
    }

    /// Raises the first error unchanged; does nothing when there was none.
    void Rethrow() const
    {
        if (m_error)
            std::rethrow_exception(m_error);
    }

private:
    std::exception_ptr m_error;
};

} // namespace Orvane
