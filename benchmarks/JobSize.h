// SPDX-License-Identifier: MIT
#pragma once

#include <compare>

namespace Orvane::Benchmarks {

/// One size at which a job is measured.
struct JobSize {
    int layers; ///< of the map, or features where a job is about these
    int members; ///< of the group that the job works on; 0 for jobs on all layers

    bool operator==(const JobSize&) const = default;
    auto operator<=>(const JobSize&) const = default;

    /// How many things the job works on: its time and memory should grow with their number.
    int Worked() const { return members > 0 ? members : layers; }
};

} // namespace Orvane::Benchmarks
