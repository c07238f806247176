// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace Orvane::Testing {

/// Which allocations fail.
enum class Extent {
    One, ///< only the nth
    FromThenOn, ///< the nth and all after it, until the fault is disarmed
};

/// Decides which allocation fails. Allocates nothing itself while it counts.
class AllocationCounter
{
public:
    explicit AllocationCounter(Extent extent) : m_extent(extent) { }

    /// Counts from now on; number: of the first allocation that fails, from 1.
    void Start(int number)
    {
        m_number = number;
        m_counted = 0;
        m_hasFailed = false;
    }

    /// To be asked once for each allocation of so many bytes; true if it is to fail.
    bool Fails(std::size_t bytes) noexcept
    {
        ++m_counted;
        if (m_counted < m_number || (m_counted > m_number && m_extent == Extent::One))
            return false;
        if (!m_hasFailed)
            m_firstSize = bytes;
        m_hasFailed = true;
        return true;
    }

    bool HasFailed() const { return m_hasFailed; }
    bool Lasts() const { return m_extent == Extent::FromThenOn; }
    /// "3, of 48 bytes"; empty while none has failed.
    std::string FirstFailure() const
    {
        if (!m_hasFailed)
            return {};
        return std::to_string(m_number) + ", of " + std::to_string(m_firstSize) + " bytes";
    }

private:
    Extent m_extent;
    int m_number = 1;
    int m_counted = 0;
    std::size_t m_firstSize = 0;
    bool m_hasFailed = false;
};

} // namespace Orvane::Testing
