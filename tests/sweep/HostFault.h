// SPDX-License-Identifier: MIT
#pragma once

#include "sweep/IFault.h"

namespace Orvane::Testing {

class FailingClient;

/// A host in which one call of a member fails, whichever member it is. It fails only while a client is
/// attached.
class HostFault final : public IFault
{
public:
    /// client: not owned; nullptr before it is destroyed.
    void Attach(FailingClient* client);

    std::string Name() const override { return "AHostCallFails"; }
    void Arm(int number) override;
    void Disarm() override;
    bool HasFailed() const override { return !m_firstFailure.empty(); }
    std::string FirstFailure() const override { return m_firstFailure; }

private:
    FailingClient* m_client = nullptr;
    std::string m_firstFailure;
};

} // namespace Orvane::Testing
