// SPDX-License-Identifier: MIT
#include "benchmarks/Measurement.h"
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
#include <string>

namespace Orvane::Benchmarks {

namespace {

using MakeOnServer = Work (*)(const ServerMap& map);

/// A host like that of an application, on the map in the server.
struct Host {
    explicit Host(const ServerMap& map) : database(PostgresLayerDatabase::Open(map.Place())) { }

    std::unique_ptr<PostgresLayerDatabase> database;
    StandardShellServices services;
    StandardClient client{*database, services};
};

Work BareList(const ServerMap& map)
{
    return [link = std::make_shared<BareLink>(map)] { link->ReadFlatList(); };
}

Work BareRead(const ServerMap& map)
{
    return [link = std::make_shared<BareLink>(map)] { link->ReadMembers(); };
}

Work BareWrite(const ServerMap& map)
{
    return [link = std::make_shared<BareLink>(map), visible = false]() mutable {
        visible = !visible;
        link->WriteMembers(visible);
    };
}

Work StoreList(const ServerMap& map)
{
    return [host = std::make_shared<Host>(map)] {
        const auto rows = host->database->OpenRecordset(LayerQueries::LayerList());
        for (; !rows->AtEOF(); rows->MoveNext()) {
            for (const char* column : {"LayerID", "Name", "Code", "OverrideMode", "SystemLayer", "Pseudo"})
                benchmark::DoNotOptimize(rows->Field(column));
        }
    };
}

Work ModelList(const ServerMap& map)
{
    return [host = std::make_shared<Host>(map)] {
        host->client.InvalidateLayerNames();
        benchmark::DoNotOptimize(ReloadLayerList(host->client, nullptr));
    };
}

Work ModelRead(const ServerMap& map)
{
    return [host = std::make_shared<Host>(map)] {
        LayerStyle style;
        LoadGroupStyle(host->client, ServerMap::Group, style);
    };
}

Work ModelWrite(const ServerMap& map)
{
    auto host = std::make_shared<Host>(map);
    LayerStyle style;
    LoadGroupStyle(host->client, ServerMap::Group, style);
    return [host, style, visible = false]() mutable {
        visible = !visible;
        style.lsSet(Slot::Visible, visible);
        ApplyGroupStyle(host->client, ServerMap::Group, {style, 1, [] { return Value(1); }});
    };
}

// The user waits for the server, so time on the clock counts.
bool Announce(const std::string& job, const char* level, MakeOnServer make)
{
    for (const Distance distance : {Distance::Local, Distance::Far}) {
        const std::string name = job + (distance == Distance::Far ? ", 20 ms" : ", local");
        const auto makeWork
            = [make, distance](const JobSize& size) { return make(ServerMap(size.layers, distance)); };
        Announcement(
            {name, level, {{2000, ServerMap::Members}, {100000, ServerMap::Members}}, makeWork, true});
    }
    return true;
}

const bool AreAnnounced = Announce("Server list", BareLevel, BareList)
    && Announce("Server list", "store", StoreList) && Announce("Server list", "model", ModelList)
    && Announce("Server read", BareLevel, BareRead) && Announce("Server read", "model", ModelRead)
    && Announce("Server apply", BareLevel, BareWrite) && Announce("Server apply", "model", ModelWrite);

} // namespace

} // namespace Orvane::Benchmarks
