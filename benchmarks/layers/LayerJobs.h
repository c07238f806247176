// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/Measurement.h"

#include <QString>

#include <functional>

namespace Orvane::Benchmarks {

/// The jobs on a map in a file that are measured at every level, from the bare loop to the dialog.
enum class Job {
    OpenFlatList,
    OpenGroupedTree,
    SelectGroup,
    ApplyToGroup, ///< one flag was changed; all properties that the layers share are written
    ScrollFlatList, ///< fifty pages from top to bottom, each painted
    FindInFlatList, ///< one key in the find field, until the list is painted
    FindInGroupedTree, ///< the same above the groups
    NewLayer, ///< until it is shown and chosen
    DeleteLayer,
    CreateScheme, ///< from all layers as they are
    SwitchScheme, ///< to one in which each layer has another colour
    ReadAfterSwitch, ///< the list that is shown for the first time after such a switch
    UndoSwitch,
};

/// The name of a job in the report.
const char* NameOf(Job job);

/// Makes a work on a map in a file. path: of the map with that many layers, which only the bare loops and the
/// levels of the same job may change; all values that they leave are the same in all layers.
using MakeWork = std::function<Work(const QString& path, const JobSize& size)>;

/// Has a job measured at a level and all sizes of the job; schemes also with a million layers.
///
///     const Registration flatList(Job::OpenFlatList, "model", [](const QString& path, const JobSize&) {
///         auto host = std::make_shared<Host>(path);
///         return [host] { ReloadLayerList(*host); };
///     });
class Registration
{
public:
    Registration(Job job, const char* level, const MakeWork& makeWork);
};

} // namespace Orvane::Benchmarks
