// SPDX-License-Identifier: MIT
#include "benchmarks/BareLoops.h"
#include "benchmarks/BenchmarkMap.h"
#include "benchmarks/Measurement.h"

namespace Orvane::Benchmarks {

namespace {

Run FlatList(const QString& path, const JobSize&)
{
    return [loops = std::make_shared<BareLoops>(path)] { loops->ReadFlatList(); };
}

Run GroupedTree(const QString& path, const JobSize&)
{
    return [loops = std::make_shared<BareLoops>(path)] { loops->ReadGroupedTree(); };
}

Run Select(const QString& path, const JobSize& size)
{
    return [loops = std::make_shared<BareLoops>(path), group = GroupOf(size.members)] {
        loops->ReadMembers(group);
    };
}

Run Apply(const QString& path, const JobSize& size)
{
    return [loops = std::make_shared<BareLoops>(path), group = GroupOf(size.members),
            visible = false]() mutable {
        visible = !visible;
        loops->WriteMembers(group, visible);
    };
}

const Registration Registrations[] = {
    {Job::OpenFlatList, "bare", FlatList},
    {Job::OpenGroupedTree, "bare", GroupedTree},
    {Job::SelectGroup, "bare", Select},
    {Job::ApplyToGroup, "bare", Apply},
};

} // namespace

} // namespace Orvane::Benchmarks
