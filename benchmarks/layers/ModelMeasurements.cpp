// SPDX-License-Identifier: MIT
#include "benchmarks/layers/BenchmarkMap.h"
#include "benchmarks/layers/LayerJobs.h"
#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleApplying.h"
#include "component/model/LayerStyleLoading.h"
#include "component/model/LayerTreeReader.h"
#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <benchmark/benchmark.h>

namespace Orvane::Benchmarks {

namespace {

/// A host like that of an application, on one map.
struct Host {
    explicit Host(const QString& path) : database(SqliteLayerDatabase::Open(path)) { }

    std::unique_ptr<SqliteLayerDatabase> database;
    StandardShellServices services;
    StandardClient client{*database, services};
};

Work FlatList(const QString& path, const JobSize&)
{
    return [host = std::make_shared<Host>(path)] {
        host->client.InvalidateLayerNames();
        benchmark::DoNotOptimize(ReloadLayerList(host->client, nullptr));
    };
}

Work GroupedTree(const QString& path, const JobSize&)
{
    return [host = std::make_shared<Host>(path)] {
        host->client.InvalidateLayerNames();
        benchmark::DoNotOptimize(LoadLayerTree(host->client, std::nullopt, {}));
    };
}

Work Select(const QString& path, const JobSize& size)
{
    return [host = std::make_shared<Host>(path), group = GroupOf(size.members)] {
        LayerStyle style;
        LoadGroupStyle(host->client, group, style);
    };
}

Work Apply(const QString& path, const JobSize& size)
{
    auto host = std::make_shared<Host>(path);
    LayerStyle style;
    LoadGroupStyle(host->client, GroupOf(size.members), style);
    return [host, style, group = GroupOf(size.members), visible = false]() mutable {
        visible = !visible;
        style.lsSet(Slot::Visible, visible);
        ApplyGroupStyle(host->client, group, {style, 1, [] { return Value(1); }});
        host->client.RedrawMap();
    };
}

const Registration Registrations[] = {
    {Job::OpenFlatList, "model", FlatList},
    {Job::OpenGroupedTree, "model", GroupedTree},
    {Job::SelectGroup, "model", Select},
    {Job::ApplyToGroup, "model", Apply},
};

} // namespace

} // namespace Orvane::Benchmarks
