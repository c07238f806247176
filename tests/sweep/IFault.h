// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Orvane::Testing {

/// One kind of failure, which can be set on the nth call of its kind.
class IFault
{
public:
    virtual ~IFault() = default;
    /// For the output: "OneCallFails".
    virtual std::string Name() const = 0;
    /// Counts from now on and lets call number n (from 1) fail.
    virtual void Arm(int number) = 0;
    /// Lets nothing fail any more; HasFailed and FirstFailure keep their values.
    virtual void Disarm() = 0;
    /// True when something has failed since the last call of Arm.
    virtual bool HasFailed() const = 0;
    /// What failed first, for messages: "xWrite map.ovl-wal".
    virtual std::string FirstFailure() const = 0;
};

} // namespace Orvane::Testing
