// SPDX-License-Identifier: MIT
#pragma once

#include "sweep/AllocationCounter.h"
#include "sweep/IFault.h"

namespace Orvane::Testing {

/// Lets an allocation inside SQLite fail, on the thread that arms the fault. Other threads, and allocations
/// elsewhere, never fail.
///
/// SQLite takes its allocator only before it is first used: call Install, or make the first fault, before
/// anything opens a database or asks for a VFS. Several faults may exist; the one armed last counts.
class SqliteMemoryFault final : public IFault
{
public:
    /// Installs the allocator, see Install.
    explicit SqliteMemoryFault(Extent extent = Extent::One);
    ~SqliteMemoryFault() override;
    SqliteMemoryFault(const SqliteMemoryFault&) = delete;
    SqliteMemoryFault& operator=(const SqliteMemoryFault&) = delete;

    /// Puts an allocator that can fail into SQLite, for the rest of the program; does nothing the second
    /// time. Raises std::logic_error if SQLite was used before.
    static void Install();

    std::string Name() const override;
    void Arm(int number) override;
    void Disarm() override;
    bool HasFailed() const override { return m_counter.HasFailed(); }
    std::string FirstFailure() const override;

private:
    AllocationCounter m_counter;
};

} // namespace Orvane::Testing
