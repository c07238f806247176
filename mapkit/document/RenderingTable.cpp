// SPDX-License-Identifier: MIT
#include "mapkit/document/RenderingTable.h"

#include "mapkit/document/NotNull.h"
#include "store/ILayerStore.h"
#include "store/KeyLists.h"
#include "store/StoreTable.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>

namespace Orvane {

namespace {

StoreTable RenderingsTable()
{
    using Nulls = StoreColumn::Nulls;
    const QString layers = QStringLiteral("Layers");
    const QString layerID = QStringLiteral("LayerID");
    const QString noText = QStringLiteral("''");
    return {
        QStringLiteral("LayerRendering"),
        {{layerID, StoreType::Whole, Nulls::Allowed, {}, layers, layerID},
         {QStringLiteral("LabelAttribute"), StoreType::Text, Nulls::Refused, noText},
         {QStringLiteral("ClassAttribute"), StoreType::Text, Nulls::Refused, noText},
         {QStringLiteral("Division"), StoreType::Whole, Nulls::Refused, QStringLiteral("0")},
         {QStringLiteral("ClassCount"), StoreType::Whole, Nulls::Refused, QStringLiteral("5")},
         {QStringLiteral("Ramp"), StoreType::Text, Nulls::Refused, noText},
         {QStringLiteral("RampReversed"), StoreType::Flag, Nulls::Refused, QStringLiteral("FALSE")}},
        {layerID}};
}

LayerRendering RenderingOfRow(const IRecordset& row)
{
    LayerRendering rendering;
    rendering.labelAttribute = ToText(row.Field("LabelAttribute"));
    rendering.classAttribute = ToText(row.Field("ClassAttribute"));
    if (Int32In(row.Field("Division")) == int(ClassDivision::EqualSteps))
        rendering.division = ClassDivision::EqualSteps;
    if (const std::optional<qint32> count = Int32In(row.Field("ClassCount")))
        rendering.classCount = std::clamp(int(*count), Classification::MinCount, Classification::MaxCount);
    rendering.ramp = ToText(row.Field("Ramp"));
    rendering.isRampReversed = Int32In(row.Field("RampReversed")).value_or(0) != 0;
    return rendering;
}

void TakeRenderings(std::map<qint32, LayerRendering>& renderings, IRecordset& rows)
{
    for (; !rows.AtEOF(); rows.MoveNext()) {
        if (const std::optional<qint32> layerID = Int32In(rows.Field("LayerID")))
            renderings[*layerID] = RenderingOfRow(rows);
    }
}

} // namespace

void RenderingTable::Create()
{
    m_database.PrepareTable(RenderingsTable());
}

std::map<qint32, LayerRendering> RenderingTable::All() const
{
    std::map<qint32, LayerRendering> all;
    TakeRenderings(all, *m_database.OpenQuery(QStringLiteral("SELECT * FROM LayerRendering")));
    return all;
}

std::map<qint32, LayerRendering> RenderingTable::Of(const std::vector<qint32>& layerIDs) const
{
    std::map<qint32, LayerRendering> renderings;
    KeyLists::ForEachBlock(layerIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
        const auto rows = m_database.OpenQuery(
            QStringLiteral("SELECT * FROM LayerRendering WHERE LayerID IN ") + list, values);
        TakeRenderings(renderings, *rows);
    });
    return renderings;
}

LayerRendering RenderingTable::Of(qint32 layerID) const
{
    const std::map<qint32, LayerRendering> found = Of(std::vector{layerID});
    return found.empty() ? LayerRendering() : found.begin()->second;
}

void RenderingTable::Set(qint32 layerID, const LayerRendering& rendering)
{
    m_database.Send(
        QStringLiteral(
            "INSERT INTO LayerRendering"
            " (LayerID, LabelAttribute, ClassAttribute, Division, ClassCount, Ramp,"
            " RampReversed) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7) ON CONFLICT (LayerID) DO UPDATE SET"
            " LabelAttribute = excluded.LabelAttribute, ClassAttribute = excluded.ClassAttribute,"
            " Division = excluded.Division, ClassCount = excluded.ClassCount,"
            " Ramp = excluded.Ramp, RampReversed = excluded.RampReversed"),
        {layerID, NotNull(rendering.labelAttribute), NotNull(rendering.classAttribute),
         int(rendering.division), rendering.classCount, NotNull(rendering.ramp), rendering.isRampReversed});
}

} // namespace Orvane
