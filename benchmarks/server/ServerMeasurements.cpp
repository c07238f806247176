// SPDX-License-Identifier: MIT
#include "benchmarks/server/BareLink.h"
#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleApplying.h"
#include "component/model/LayerStyleLoading.h"
#include "component/model/LayerTreeReader.h"
#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "store/postgres/PostgresLayerDatabase.h"

#include <OrvaneShellLib/LayerQueries.h>

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

namespace Orvane::Benchmarks {

namespace {

using Run = std::function<void()>;
using MakeRun = Run (*)(Distance distance);

/// A host like that of an application, on the map in the server.
struct Host {
    explicit Host(Distance distance) : database(PostgresLayerDatabase::Open(ServerMap::Place(distance))) { }

    std::unique_ptr<PostgresLayerDatabase> database;
    StandardShellServices services;
    StandardClient client{*database, services};
};

Run BareList(Distance distance)
{
    return [link = std::make_shared<BareLink>(distance)] { link->ReadFlatList(); };
}

Run BareRead(Distance distance)
{
    return [link = std::make_shared<BareLink>(distance)] { link->ReadMembers(); };
}

Run BareWrite(Distance distance)
{
    return [link = std::make_shared<BareLink>(distance), visible = false]() mutable {
        visible = !visible;
        link->WriteMembers(visible);
    };
}

Run StoreList(Distance distance)
{
    return [host = std::make_shared<Host>(distance)] {
        const auto rows = host->database->OpenRecordset(LayerQueries::LayerList());
        for (; !rows->AtEOF(); rows->MoveNext()) {
            for (const char* column : {"LayerID", "Name", "Code", "OverrideMode", "SystemLayer", "Pseudo"})
                benchmark::DoNotOptimize(rows->Field(column));
        }
    };
}

Run ModelList(Distance distance)
{
    return [host = std::make_shared<Host>(distance)] {
        host->client.InvalidateLayerNames();
        benchmark::DoNotOptimize(ReloadLayerList(host->client, nullptr));
    };
}

Run ModelRead(Distance distance)
{
    return [host = std::make_shared<Host>(distance)] {
        LayerStyle style;
        LoadGroupStyle(host->client, ServerMap::Group, style);
    };
}

Run ModelWrite(Distance distance)
{
    auto host = std::make_shared<Host>(distance);
    LayerStyle style;
    LoadGroupStyle(host->client, ServerMap::Group, style);
    return [host, style, visible = false]() mutable {
        visible = !visible;
        style.lsSet(Slot::Visible, visible);
        ApplyGroupStyle(host->client, ServerMap::Group, {style, 1, [] { return Value(1); }});
    };
}

// The user waits for the server, so the time on the clock is measured.
void Measure(benchmark::State& state, MakeRun makeRun, Distance distance)
{
    const Run run = makeRun(distance);
    run();
    for ([[maybe_unused]] auto _ : state)
        run();
}

bool Register(const std::string& job, const char* level, MakeRun makeRun)
{
    for (const Distance distance : {Distance::Local, Distance::Far}) {
        const std::string name = job + (distance == Distance::Far ? ", 20 ms/" : ", local/") + level;
        auto* measured
            = benchmark::RegisterBenchmark(name.c_str(), [makeRun, distance](benchmark::State& state) {
                  Measure(state, makeRun, distance);
              });
        measured->Unit(benchmark::kMillisecond)->UseRealTime()->Args({ServerMap::Layers, ServerMap::Members});
    }
    return true;
}

const bool AreRegistered = Register("Server list", "bare", BareList)
    && Register("Server list", "store", StoreList) && Register("Server list", "model", ModelList)
    && Register("Server read", "bare", BareRead) && Register("Server read", "model", ModelRead)
    && Register("Server apply", "bare", BareWrite) && Register("Server apply", "model", ModelWrite);

} // namespace

} // namespace Orvane::Benchmarks
