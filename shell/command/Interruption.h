// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace Orvane {

/// While this object exists, Ctrl+C and the system's request to end the program are noted, so that a command
/// can stop and clean up. The second one ends the program at once. A request that the program was started to
/// ignore, such as by nohup, stays ignored. There is at most one such object.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// True once the program was asked to stop.
    bool IsAsked() const;

private:
    std::array<void (*)(int), 2> m_earlier{}; // the handlers of the two signals
};

} // namespace Orvane
