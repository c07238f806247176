// SPDX-License-Identifier: MIT
#include "mapkit/document/RenderingTable.h"

#include "store/ILayerStore.h"
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

QString NotNull(const QString& text)
{
    return text.isNull() ? QStringLiteral("") : text;
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

} // namespace

void RenderingTable::Create()
{
    m_database.PrepareTable(RenderingsTable());
}

std::map<qint32, LayerRendering> RenderingTable::All() const
{
    std::map<qint32, LayerRendering> all;
    const auto rows = m_database.OpenQuery(QStringLiteral("SELECT * FROM LayerRendering"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (const std::optional<qint32> layerID = Int32In(rows->Field("LayerID")))
            all[*layerID] = RenderingOfRow(*rows);
    }
    return all;
}

LayerRendering RenderingTable::Of(qint32 layerID) const
{
    const auto row
        = m_database.OpenQuery(QStringLiteral("SELECT * FROM LayerRendering WHERE LayerID = ?1"), {layerID});
    return row->AtEOF() ? LayerRendering() : RenderingOfRow(*row);
}

void RenderingTable::Set(qint32 layerID, const LayerRendering& rendering)
{
    m_database.Execute(
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
