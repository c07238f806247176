// SPDX-License-Identifier: MIT
#include "mapkit/document/MapDocument.h"
#include "shell/command/ImportCommand.h"
#include "shell/command/MapCheck.h"
#include "shell/map/DataImport.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"
#include "sweep/SweepCommand.h"
#include "sweep/SweepData.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QFile>
#include <QTextStream>

#include <sqlite3.h>

namespace Orvane::Testing {

namespace {

constexpr auto Other = "other.orvane";
void FillNewMap(MapDocument& map)
{
    NewLayer layer;
    layer.name = QStringLiteral("Only");
    map.AddMember(map.AddGroup(QStringLiteral("Group"), true), map.AddLayer(layer));
}

PreparedCommand PrepareNewMap(const SweepBench& bench)
{
    return {[path = bench.folder.PathOf("new.orvane")] {
        MapDocument::Make(path, IfExists::Refuse, FillNewMap);
    }};
}

PreparedCommand PrepareMapOverAnother(const SweepBench& bench)
{
    QFile::copy(bench.folder.OriginalMap(), bench.folder.PathOf(Other));
    return {[path = bench.folder.PathOf(Other)] { MapDocument::Make(path, IfExists::Replace, FillNewMap); }};
}

PreparedCommand PrepareSaveAs(const SweepBench& bench)
{
    const std::shared_ptr<MapDocument> map = MapDocument::Open(bench.folder.MapPath());
    return {[map, path = bench.folder.PathOf("new.orvane")] { map->SaveCopy(path); }, &map->Database()};
}

PreparedCommand PrepareSaveOver(const SweepBench& bench)
{
    MapDocument::Make(bench.folder.PathOf(Other), IfExists::Refuse, FillNewMap);
    const std::shared_ptr<MapDocument> map = MapDocument::Open(bench.folder.MapPath());
    return {[map, path = bench.folder.PathOf(Other)] { map->SaveCopy(path); }, &map->Database()};
}

PreparedCommand PrepareImport(const SweepBench& bench)
{
    const std::shared_ptr<MapDocument> map = MapDocument::Open(bench.folder.MapPath());
    return {[map, found = FindSweepData(bench.folder)] { AddToMap(*map, found); }, &map->Database()};
}

// Its first line of error is raised.
void RunImport(const QStringList& arguments)
{
    QString text;
    QTextStream out(&text);
    QTextStream errors(&text);
    if (ImportCommand(arguments, {out, errors}) != ExitCode::Done)
        throw RunTimeError(1, QStringLiteral("orvane import: ") + text);
}

CommandPreparation ImportTo(const char* map)
{
    return [map](const SweepBench& bench) -> PreparedCommand {
        const QStringList arguments{
            QStringLiteral("orvane"), QStringLiteral("import"), WriteSweepData(bench.folder),
            QStringLiteral("--to"), bench.folder.PathOf(map)};
        return {[arguments] { RunImport(arguments); }};
    };
}

// As another program does it, which respects neither references nor the kinds of values.
void RunSql(const QString& path, const char* sql)
{
    sqlite3* handle = nullptr;
    sqlite3_open(path.toUtf8().constData(), &handle);
    sqlite3_exec(handle, sql, nullptr, nullptr, nullptr);
    sqlite3_close(handle);
}

PreparedCommand PrepareRepair(const SweepBench& bench)
{
    const QString path = bench.folder.MapPath();
    RunSql(path, "DELETE FROM Layers WHERE LayerID = 2; UPDATE Layers SET Color = 'red' WHERE LayerID = 1");
    return {[path] { RepairMap(path); }};
}

// As the first version of the store made it. The map that takes the later edit is another one: opening the
// older map would finish what was not done.
PreparedCommand PrepareOlderMap(const SweepBench& bench)
{
    const QString path = bench.folder.PathOf("old.orvane");
    QFile::copy(bench.folder.OriginalMap(), path);
    RunSql(
        path,
        "DROP INDEX LayerNameIDX; DROP INDEX GroupOrderingIDX; DROP INDEX MemberOrderingIDX;"
        "DROP INDEX MemberLayerIDX; DELETE FROM sqlite_stat1; PRAGMA user_version = 1");
    return {[path] { LayerStores::Open(path); }};
}

} // namespace

std::vector<SweepCommand> MapCommands()
{
    return {
        {"map: create", PrepareNewMap},
        {"map: create over another", PrepareMapOverAnother},
        {"map: save as", PrepareSaveAs},
        {"map: save over another", PrepareSaveOver},
        {"map: import data", PrepareImport},
        {"map: orvane import", ImportTo("map.orvane")},
        {"map: orvane import to a new map", ImportTo("new.orvane")},
        {"map: orvane check --repair", PrepareRepair},
        {"map: open an older one", PrepareOlderMap},
    };
}

} // namespace Orvane::Testing
