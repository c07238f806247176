// SPDX-License-Identifier: MIT
#include "benchmarks/layers/LayerJobs.h"

#include "benchmarks/layers/BenchmarkMap.h"

namespace Orvane::Benchmarks {

namespace {

constexpr int MillionLayers = 1000000;

// A function, because constants of other files call it before main.
std::vector<JobSize> SizesOf(Job job)
{
    if (job == Job::SelectGroup || job == Job::ApplyToGroup)
        return {{1000, 50}, {100000, 50}, {100000, 1000}, {100000, 10000}, {100000, 100000}};
    return {{1000, 0}, {10000, 0}, {100000, 0}};
}

bool IsAboutSchemes(Job job)
{
    return job == Job::CreateScheme || job == Job::SwitchScheme || job == Job::UndoSwitch;
}

} // namespace

const char* NameOf(Job job)
{
    switch (job) {
    case Job::OpenFlatList:
        return "Open flat list";
    case Job::OpenGroupedTree:
        return "Open grouped tree";
    case Job::SelectGroup:
        return "Select group";
    case Job::ApplyToGroup:
        return "Apply to group";
    case Job::ScrollFlatList:
        return "Scroll flat list";
    case Job::FindInFlatList:
        return "Find in flat list";
    case Job::FindInGroupedTree:
        return "Find in grouped tree";
    case Job::NewLayer:
        return "New layer";
    case Job::DeleteLayer:
        return "Delete layer";
    case Job::CreateScheme:
        return "Create scheme";
    case Job::SwitchScheme:
        return "Switch scheme";
    case Job::ReadAfterSwitch:
        return "Read after switch";
    case Job::UndoSwitch:
        return "Undo switch";
    }
    return "";
}

Registration::Registration(Job job, const char* level, const MakeWork& makeWork)
{
    const auto onMap = [makeWork](const JobSize& size) { return makeWork(BenchmarkMap(size.layers), size); };
    Announcement({NameOf(job), level, SizesOf(job), onMap});
    if (IsAboutSchemes(job))
        Announcement({NameOf(job), level, {{MillionLayers, 0}}, onMap}, true);
}

} // namespace Orvane::Benchmarks
