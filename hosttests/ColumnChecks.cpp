// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::HostTests {

namespace {

QString Place(const QString& where, qint32 layerID, const char* column)
{
    return QStringLiteral("%1, layer %2, %3").arg(where).arg(layerID).arg(QLatin1String(column));
}

void ExpectColumns(CheckRun& run, const QString& where, const IRecordset& row)
{
    const ContentsLayer& layer = run.Contents().Layer(ToInt32(row.Field("LayerID")));
    for (const LayerColumn& column : LayerColumns) {
        run.ExpectValue(
            Place(where, ToInt32(layer.Get("LayerID")), column.name), row.Field(column.name),
            layer.Get(column.name));
    }
}

void ExpectRows(CheckRun& run, const QString& where, const QString& query)
{
    int rows = 0;
    ComponentCalls::ForEachRow(run.Database(), query, [&](const IRecordset& row) {
        ++rows;
        ExpectColumns(run, where, row);
    });
    run.Expect(rows > 0, where + QStringLiteral(" has no rows"));
}

void CheckTreeColumns(CheckRun& run)
{
    ExpectRows(run, QStringLiteral("Tree"), LayerQueries::Tree(std::nullopt));
}

void CheckListColumns(CheckRun& run)
{
    ExpectRows(run, QStringLiteral("LayerList"), LayerQueries::LayerList());
    ExpectRows(run, QStringLiteral("OneLayer"), LayerQueries::OneLayer(TownLayer::Quoted));
}

void ExpectTableRows(CheckRun& run)
{
    const auto layers = ComponentCalls::OpenLayersByID(run.Client());
    for (const ContentsLayer& layer : run.Contents().layers) {
        const qint32 layerID = ToInt32(layer.Get("LayerID"));
        if (run.Expect(
                ComponentCalls::SeekID(*layers, layerID),
                QStringLiteral("Seek did not find layer %1").arg(layerID)))
            ExpectColumns(run, QStringLiteral("Layers"), *layers);
    }
}

void CheckGroupColumns(CheckRun& run)
{
    const auto table = ComponentCalls::OpenGroupsByID(run.Database());
    for (const ContentsGroup& group : run.Contents().groups) {
        const QString where = QStringLiteral("LayerGroups, group %1, ").arg(group.id);
        if (!run.Expect(ComponentCalls::SeekID(*table, group.id), where + QStringLiteral("was not found")))
            continue;
        run.ExpectValue(where + QStringLiteral("Name"), table->Field("Name"), group.name);
        run.ExpectValue(where + QStringLiteral("Pseudo"), table->Field("Pseudo"), group.pseudo);
        run.ExpectValue(where + QStringLiteral("Expanded"), table->Field("Expanded"), group.expanded);
    }
}

void CheckNameCase(CheckRun& run)
{
    const auto layers = run.Client().LayersTable();
    layers->Index("layeridIDX");
    layers->Seek("=", TownLayer::Roads);
    for (const char* spelling : {"Locked", "locked", "LOCKED"})
        run.ExpectValue(QString::fromLatin1(spelling), layers->Field(spelling), false);
    const auto rows = run.Database().OpenRecordset(LayerQueries::OneLayer(TownLayer::Roads));
    run.ExpectValue(QStringLiteral("LAYERID"), rows->Field("LAYERID"), TownLayer::Roads);
    run.ExpectValue(QStringLiteral("name"), rows->Field("name"), QStringLiteral("roads"));
}

void CheckReadTwice(CheckRun& run)
{
    for (const ContentsLayer& layer : run.Contents().layers) {
        const qint32 layerID = ToInt32(layer.Get("LayerID"));
        const auto first = ComponentCalls::OpenLayersByID(run.Client());
        const auto second = ComponentCalls::OpenLayersByID(run.Client());
        if (!ComponentCalls::SeekID(*first, layerID) || !ComponentCalls::SeekID(*second, layerID))
            continue;
        for (const LayerColumn& column : LayerColumns) {
            run.Expect(
                first->Field(column.name).IsIdenticalTo(second->Field(column.name)),
                Place(QStringLiteral("two readings differ"), layerID, column.name));
        }
    }
}

} // namespace

std::vector<HostCheck> ColumnChecks()
{
    constexpr const char* kinds
        = "Rows of Layers have all columns of LayerColumns: keys and whole numbers as numbers of any kind, "
          "flags as booleans or as 0 and 1, texts as texts, NULL as Null.";
    return {
        {"Columns", "TheTreeHasAllColumnsOfLayers", kinds, {}, Town, CheckTreeColumns},
        {"Columns", "TheListHasAllColumnsOfLayers", kinds, {}, Town, CheckListColumns},
        {"Columns", "TheTableHasAllColumnsOfLayers", kinds, {}, Town, ExpectTableRows},
        {"Columns", "NullIsReadAsNull", kinds, {Ability::NullValues}, WithNulls, ExpectTableRows},
        {"Columns",
         "ValuesAtTheLimitsAreReadWhole",
         "Whole numbers have 32 bits with a sign, real numbers are doubles, texts have any length.",
         {},
         AtTheLimits,
         ExpectTableRows},
        {"Columns",
         "GroupsHaveNameAndFlags",
         "LayerGroups has Name, Pseudo and Expanded, found by Seek on the index IDIDX.",
         {},
         Town,
         CheckGroupColumns},
        {"Columns",
         "NamesOfColumnsHaveNoCase",
         "Names of columns and indexes are compared without regard to upper and lower case.",
         {},
         Town,
         CheckNameCase},
        {"Columns",
         "ARowThatDidNotChangeIsReadTheSame",
         "Two readings of an unchanged row give the same values; otherwise the component sees a change that "
         "nobody made.",
         {},
         Town,
         CheckReadTwice},
    };
}

} // namespace Orvane::HostTests
