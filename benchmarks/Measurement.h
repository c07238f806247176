// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/FigureTable.h"
#include "benchmarks/JobSize.h"

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Orvane::Benchmarks {

/// How a job is done at one level. Made once for each repetition, outside the measured time.
struct Work {
    /// Without anything before. Implicit, because most jobs are just a lambda.
    template <typename Callable, typename = std::enable_if_t<!std::is_same_v<std::decay_t<Callable>, Work>>>
    Work(Callable&& callable) : act(std::forward<Callable>(callable))
    {
    }
    /// prepare: becomes before.
    Work(std::function<void()> prepare, std::function<void()> measured)
        : before(std::move(prepare)), act(std::move(measured))
    {
    }

    std::function<void()> before; ///< runs before each act, and is not measured; may be empty
    std::function<void()> act; ///< what is measured
};

/// One job at one level and all its sizes.
struct Measured {
    std::string job;
    std::string level; ///< BareLevel, or what is compared to it
    std::vector<JobSize> sizes; ///< the smallest first
    std::function<Work(const JobSize& size)> makeWork;
    /// Others wait meanwhile, such as for a server: time on the clock decides how often it is repeated.
    bool isOnTheClock = false;
};

/// What the command line chooses.
struct Choice {
    bool isSmoke = false; ///< only the smallest size of each job, once
    bool isMillion = false; ///< a million layers, too
};

/// Has a job measured at one level, as a constant beside the functions that do it:
///
///     const Announcement reading({"Read a layer", BareLevel, {{1000, 0}}, [](const JobSize& size) {
///         return [data = Data(size.layers)] { Read(data); };
///     }});
class Announcement
{
public:
    /// isLarge: only a run with a million layers measures it.
    explicit Announcement(Measured measured, bool isLarge = false);
};

/// Hands all announced jobs to Google Benchmark. table: gets the memory that they need; outlives the run.
void RegisterAnnounced(const Choice& choice, FigureTable& table);

} // namespace Orvane::Benchmarks
