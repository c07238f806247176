// SPDX-License-Identifier: MIT
#pragma once

#include "sweep/AllocationCounter.h"
#include "sweep/IFault.h"

namespace Orvane::Testing {

/// Lets operator new raise std::bad_alloc, on the thread that arms the fault. The program that links the
/// source gets its own operators new and delete, so list it only where they are wanted.
///
/// Covers what the program's own code and the standard library allocate, and the objects that Qt makes with
/// new (files, hash tables). It does not cover the contents of QString, QByteArray, QList and other
/// containers that use malloc: when that fails, Qt raises std::bad_alloc too, except in functions that it
/// declares noexcept, where the program ends. An insertion into a QHash is one of these and does use new:
/// code that is swept must not insert into a QHash. Use it for store/ and component/model/, not for windows.
class NewFault final : public IFault
{
public:
    explicit NewFault(Extent extent = Extent::One) : m_counter(extent) { }
    ~NewFault() override;
    NewFault(const NewFault&) = delete;
    NewFault& operator=(const NewFault&) = delete;

    std::string Name() const override;
    void Arm(int number) override;
    void Disarm() override;
    bool HasFailed() const override { return m_counter.HasFailed(); }
    std::string FirstFailure() const override;

private:
    AllocationCounter m_counter;
};

} // namespace Orvane::Testing
