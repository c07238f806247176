// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Orvane::Benchmarks {

/// One size at which a job is measured.
struct JobSize {
    int layers; ///< in the database, in groups of 50
    int members; ///< of the group that the job works on; 0 for jobs on all layers
};

/// The jobs that are measured at every level, from the bare loop to the dialog. The names are those in the
/// report.
enum class Job {
    OpenFlatList,
    OpenGroupedTree,
    SelectGroup,
    ApplyToGroup, ///< one flag was changed; all properties that the layers share are written
    ScrollFlatList, ///< fifty pages from top to bottom, each painted
    FindInFlatList, ///< one key in the find field, until the list is painted
    FindInGroupedTree, ///< the same above the groups
};

/// How a job is done at one level. Made once for each size, outside the measured time; called for each run.
using Run = std::function<void()>;
using MakeRun = std::function<Run(const QString& mapPath, const JobSize& size)>;

/// Adds a job at a level to the report; each job has a level "bare", which the others are compared to.
///
///     const Registration flatList(Job::OpenFlatList, "model", [](const QString& path, const JobSize&) {
///         auto host = std::make_shared<Host>(path);
///         return [host] { ReloadLayerList(*host); };
///     });
class Registration
{
public:
    Registration(Job job, const char* level, const MakeRun& makeRun);
};

/// The name of a job in the report.
const char* NameOf(Job job);

} // namespace Orvane::Benchmarks
