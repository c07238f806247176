// SPDX-License-Identifier: MIT
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeDocument.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "hostkit/undo/UndoHistory.h"
#include "sweep/SweepCommand.h"
#include "sweep/SweepHost.h"

#include <OrvaneShellLib/Transaction.h>

namespace Orvane::Testing {

namespace {

using HostAct = std::function<void(SweepHost&)>;

const QString Day = QStringLiteral("Day");
const QString Night = QStringLiteral("Night");

// before: what was done without failures.
SweepCommand OnHost(
    const std::string& name, const HostAct& act, const HostAct& before = [](SweepHost&) {})
{
    return {name, [act, before](const SweepBench& bench) -> PreparedCommand {
                const auto host = std::make_shared<SweepHost>(bench.folder);
                before(*host);
                return {[host, act] { act(*host); }, host->store.get()};
            }};
}

IStyleEditorClient& ClientOf(SweepHost& host)
{
    return host.client;
}

void RecolourTwoLayers(SweepHost& host)
{
    host.client.RecordStep([&] {
        Transaction transaction(*host.store);
        host.store->Execute(QStringLiteral("UPDATE Layers SET Color = 99 WHERE LayerID = 1"));
        host.store->Execute(QStringLiteral("UPDATE Layers SET Color = 98 WHERE LayerID = 3"));
        transaction.Commit();
        return QStringLiteral("Change of Colours");
    });
}

void DeleteRivers(SweepHost& host)
{
    ClientOf(host).DeleteLayer(2);
}

void LoadNight(SweepHost& host)
{
    ClientOf(host).LoadScheme(Night);
}

void SaveToStartup(SweepHost& host)
{
    ClientOf(host).SaveSchemesToStartup();
}

void UndoLast(SweepHost& host)
{
    host.client.History().Undo();
}

void RedoLast(SweepHost& host)
{
    host.client.History().Redo();
}

HostAct AndUndo(const HostAct& act)
{
    return [act](SweepHost& host) {
        act(host);
        UndoLast(host);
    };
}

void Import(SweepHost& host)
{
    SchemeDocument scheme = SchemeExchange::Export(*host.store, Night);
    scheme.name = QStringLiteral("Dusk");
    host.client.ImportScheme(scheme);
}

// As the window for schemes does it.
HostAct OnSchemes(const std::function<void(LayerSchemes&)>& act)
{
    return [act](SweepHost& host) {
        host.client.RecordStep([&] {
            LayerSchemes schemes(*host.store);
            act(schemes);
            return QStringLiteral("Change of Schemes");
        });
    };
}

void RemoveNight(SweepHost& host)
{
    ClientOf(host).DeleteScheme(Night);
}

std::vector<SweepCommand> CommandsOnSchemes()
{
    return {
        OnHost(
            "host kit: create a scheme",
            [](SweepHost& host) { ClientOf(host).CreateScheme(QStringLiteral("Dusk")); }),
        OnHost(
            "host kit: save a scheme", [](SweepHost& host) { ClientOf(host).SaveScheme(Day); },
            RecolourTwoLayers),
        OnHost("host kit: load a scheme", LoadNight),
        OnHost("host kit: delete a scheme", RemoveNight),
        OnHost("host kit: import a scheme", Import),
        OnHost("host kit: add a partial scheme", OnSchemes([](LayerSchemes& schemes) {
                   schemes.Add(QStringLiteral("Locks"), SchemePart::Flags);
               })),
        OnHost("host kit: change what a scheme holds", OnSchemes([](LayerSchemes& schemes) {
                   schemes.SetHolds(Night, SchemePart::Scales);
               })),
        OnHost("host kit: reorder schemes", OnSchemes([](LayerSchemes& schemes) {
                   schemes.SetOrder({Night, Day});
               })),
        OnHost("host kit: save to startup", SaveToStartup),
        OnHost(
            "host kit: save to startup again", SaveToStartup,
            [](SweepHost& host) {
                SaveToStartup(host);
                RecolourTwoLayers(host);
                ClientOf(host).SaveScheme(Day);
            }),
        OnHost(
            "host kit: schemes from startup", [](SweepHost& host) { host.client.LoadSchemesFromStartup(); },
            [](SweepHost& host) {
                SaveToStartup(host);
                RemoveNight(host);
            }),
    };
}

std::vector<SweepCommand> CommandsOnLayers()
{
    return {
        OnHost("host kit: RecordStep", RecolourTwoLayers),
        OnHost("host kit: undo", UndoLast, RecolourTwoLayers),
        OnHost("host kit: redo", RedoLast, AndUndo(RecolourTwoLayers)),
        OnHost("host kit: undo a deletion", UndoLast, DeleteRivers),
        OnHost("host kit: redo a deletion", RedoLast, AndUndo(DeleteRivers)),
        OnHost("host kit: undo a loaded scheme", UndoLast, LoadNight),
        OnHost("host kit: create a layer", [](SweepHost& host) { ClientOf(host).CreateLayer(); }),
        OnHost("host kit: delete a layer", DeleteRivers),
        OnHost(
            "host kit: rename a layer",
            [](SweepHost& host) { ClientOf(host).RenameLayer(1, QStringLiteral("Streets")); }),
        OnHost(
            "host kit: rename a group",
            [](SweepHost& host) { ClientOf(host).RenameGroup(1, QStringLiteral("Traffic")); }),
    };
}

} // namespace

std::vector<SweepCommand> HostKitCommands()
{
    std::vector<SweepCommand> all = CommandsOnSchemes();
    const std::vector<SweepCommand> others = CommandsOnLayers();
    all.insert(all.end(), others.begin(), others.end());
    return all;
}

} // namespace Orvane::Testing
