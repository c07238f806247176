// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Orvane::Benchmarks {

/// Processor, cores and the versions of the measured software, one per line.
std::string MachineDescription();

/// Gives free memory back to the system, where the system's allocator can do that.
void GiveMemoryBack();

/// Resets the peak memory count, where the system supports that.
void ResetPeakMemory();

/// The largest resident memory since the start or the last reset; 0 where the system does not report it.
double PeakMemoryInMegabytes();

} // namespace Orvane::Benchmarks
