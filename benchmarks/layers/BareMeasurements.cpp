// SPDX-License-Identifier: MIT
#include "benchmarks/layers/BareLoops.h"
#include "benchmarks/layers/BenchmarkMap.h"
#include "benchmarks/layers/LayerJobs.h"

namespace Orvane::Benchmarks {

namespace {

Work FlatList(const QString& path, const JobSize&)
{
    return [loops = std::make_shared<BareLoops>(path)] { loops->ReadFlatList(); };
}

Work GroupedTree(const QString& path, const JobSize&)
{
    return [loops = std::make_shared<BareLoops>(path)] { loops->ReadGroupedTree(); };
}

Work Select(const QString& path, const JobSize& size)
{
    return [loops = std::make_shared<BareLoops>(path), group = GroupOf(size.members)] {
        loops->ReadMembers(group);
    };
}

Work Apply(const QString& path, const JobSize& size)
{
    return [loops = std::make_shared<BareLoops>(path), group = GroupOf(size.members),
            visible = false]() mutable {
        visible = !visible;
        loops->WriteMembers(group, visible);
    };
}

const Registration Registrations[] = {
    {Job::OpenFlatList, BareLevel, FlatList},
    {Job::OpenGroupedTree, BareLevel, GroupedTree},
    {Job::SelectGroup, BareLevel, Select},
    {Job::ApplyToGroup, BareLevel, Apply},
};

} // namespace

} // namespace Orvane::Benchmarks
