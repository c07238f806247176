// SPDX-License-Identifier: MIT
#include "benchmarks/layers/BenchmarkMap.h"
#include "benchmarks/layers/LayerJobs.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <benchmark/benchmark.h>
#include <string_view>

namespace Orvane::Benchmarks {

namespace {

using Database = std::shared_ptr<SqliteLayerDatabase>;

constexpr std::string_view Properties[]
    = {"Name",         "Code",          "Visible",     "Selectable",    "locked",        "Hitable",
       "SnapRequired", "Enquirable",    "Color",       "FillForeColor", "FillBackColor", "OutlineStyle",
       "FillStyle",    "LineThickness", "MinVisScale", "MaxVisScale",   "Priority",      "Style"};

constexpr std::string_view WrittenColumns[]
    = {"OverrideMode", "Selectable",    "locked",        "Hitable",  "SnapRequired",
       "Enquirable",   "FillForeColor", "FillBackColor", "Color",    "OutlineStyle",
       "FillStyle",    "LineThickness", "MaxVisScale",   "Priority", "Style"};

void ReadRow(const IRecordset& row)
{
    for (const std::string_view column : Properties)
        benchmark::DoNotOptimize(row.Field(column));
}

void ReadAll(SqliteLayerDatabase& database, const QString& sql)
{
    for (const auto rows = database.OpenRecordset(sql); !rows->AtEOF(); rows->MoveNext()) {
        ReadRow(*rows);
        benchmark::DoNotOptimize(rows->Field("LayerID"));
        benchmark::DoNotOptimize(rows->Field("OverrideMode"));
        benchmark::DoNotOptimize(rows->Field("SystemLayer"));
        benchmark::DoNotOptimize(rows->Field("Pseudo"));
    }
}

std::vector<qint32> MembersOf(SqliteLayerDatabase& database, qint32 groupID)
{
    std::vector<qint32> layerIDs;
    const auto sql = QStringLiteral("SELECT LayerID FROM LayerGroupMembers WHERE GroupID=%1").arg(groupID);
    for (const auto rows = database.OpenRecordset(sql); !rows->AtEOF(); rows->MoveNext())
        layerIDs.push_back(ToInt32(rows->Field("LayerID")));
    return layerIDs;
}

std::unique_ptr<IRecordset> Sought(SqliteLayerDatabase& database, qint32 layerID)
{
    auto layers = database.OpenRecordset(QStringLiteral("Layers"));
    layers->Index("LayerIDIDX");
    layers->Seek("=", layerID);
    return layers;
}

void ReadMembers(SqliteLayerDatabase& database, qint32 groupID)
{
    Transaction transaction(database);
    for (const qint32 layerID : MembersOf(database, groupID))
        ReadRow(*Sought(database, layerID));
    transaction.Commit();
}

void WriteMembers(SqliteLayerDatabase& database, qint32 groupID, bool visible)
{
    Transaction transaction(database);
    for (const qint32 layerID : MembersOf(database, groupID)) {
        const auto layer = Sought(database, layerID);
        layer->Edit();
        layer->SetField("Visible", visible);
        layer->SetField("MinVisScale", 500.5);
        for (const std::string_view column : WrittenColumns)
            layer->SetField(column, 1);
        layer->Update();
    }
    transaction.Commit();
}

Database Opened(const QString& path)
{
    return SqliteLayerDatabase::Open(path);
}

Work FlatList(const QString& path, const JobSize&)
{
    return [database = Opened(path)] {
        ReadAll(*database, QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name"));
    };
}

Work GroupedTree(const QString& path, const JobSize&)
{
    return [database = Opened(path)] {
        ReadAll(
            *database,
            QStringLiteral("SELECT Layers.*, LayerGroupMembers.GroupID, LayerGroupMembers.Ordering"
                           " FROM LayerGroupMembers, LayerGroups, Layers"
                           " WHERE LayerGroupMembers.LayerID=Layers.LayerID"
                           " AND   LayerGroupMembers.GroupID=LayerGroups.ID AND LayerGroups.Pseudo = False"
                           " ORDER BY LayerGroups.GroupOrdering, Ordering, Layers.LayerID "));
    };
}

Work Select(const QString& path, const JobSize& size)
{
    return [database = Opened(path), group = GroupOf(size.members)] { ReadMembers(*database, group); };
}

Work Apply(const QString& path, const JobSize& size)
{
    return [database = Opened(path), group = GroupOf(size.members), visible = false]() mutable {
        visible = !visible;
        WriteMembers(*database, group, visible);
    };
}

const Registration Registrations[] = {
    {Job::OpenFlatList, "store", FlatList},
    {Job::OpenGroupedTree, "store", GroupedTree},
    {Job::SelectGroup, "store", Select},
    {Job::ApplyToGroup, "store", Apply},
};

} // namespace

} // namespace Orvane::Benchmarks
