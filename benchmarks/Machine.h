// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Orvane::Benchmarks {

/// Processor, cores and the versions of what was measured, one a line.
std::string MachineDescription();

/// Lets the peak memory count from now on, where the system can do that.
void ResetPeakMemory();

/// The largest resident memory since the start or the last reset; 0 where the system does not tell.
double PeakMemoryInMegabytes();

} // namespace Orvane::Benchmarks
