// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeComparison.h"

#include "hostkit/common/StoredScale.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <string>
#include <string_view>

namespace Orvane {

namespace {

constexpr auto Layers = "Layers";
constexpr auto FromValues = "FromValues";
constexpr auto ToValues = "ToValues";

QString Fields(SchemeParts parts, const char* table, const char* prefix)
{
    QString fields;
    for (const LayerColumn& column : SchemeColumns::All)
        fields += !parts.testFlag(PartOf(column))
            ? QString()
            : QStringLiteral(", %1.%2 AS %3%2")
                  .arg(QLatin1String(table), QLatin1String(column.name), QLatin1String(prefix));
    return fields;
}

QString Join(const char* table, const char* schemeID)
{
    return QStringLiteral(" LEFT JOIN LayerSchemeValues AS %1"
                          " ON %1.SchemeID = %2 AND %1.LayerID = Layers.LayerID")
        .arg(QLatin1String(table), QLatin1String(schemeID));
}

// Scheme ?1 is compared with scheme ?2, or with the layers, in what both hold.
QString ComparisonQuery(bool withLayers, SchemeParts parts)
{
    const char* from = withLayers ? Layers : FromValues;
    return QStringLiteral("SELECT Layers.LayerID AS LayerID, %1.LayerID AS FromLayer, %2.LayerID AS ToLayer")
               .arg(QLatin1String(from), QLatin1String(ToValues))
        + Fields(parts, from, "From") + Fields(parts, ToValues, "To") + QStringLiteral(" FROM Layers")
        + (withLayers ? QString() : Join(FromValues, "?2")) + Join(ToValues, "?1")
        + QStringLiteral(" WHERE %1.LayerID IS DISTINCT FROM %2.LayerID OR ")
              .arg(QLatin1String(from), QLatin1String(ToValues))
        + SchemeColumns::Difference(parts, from, ToValues)
        + QStringLiteral(" ORDER BY Layers.Name, Layers.LayerID");
}

std::optional<double> NumberOf(const IRecordset& row, const std::string& field, const LayerColumn& column)
{
    const std::optional<double> number = NumberIn(row.Field(field));
    const bool isNoLimit
        = number && column.name == std::string_view("MaxVisScale") && *number >= StoredScale::BeyondAllScales;
    return isNoLimit ? StoredScale::NoLimit : number;
}

void AddValues(
    std::vector<SchemeDifference>& differences, const IRecordset& row, qint32 layerID, SchemeParts parts)
{
    for (std::size_t position = 0; position < SchemeColumns::Count; ++position) {
        const LayerColumn& column = SchemeColumns::All.at(position);
        if (!parts.testFlag(PartOf(column)))
            continue;
        const std::string name = column.name;
        SchemeDifference difference{layerID, SchemeDifference::Kind::Value, position, {}, {}};
        difference.from = NumberOf(row, "From" + name, column);
        difference.to = NumberOf(row, "To" + name, column);
        if (difference.from != difference.to)
            differences.push_back(difference);
    }
}

void AddLayer(std::vector<SchemeDifference>& differences, const IRecordset& row, SchemeParts parts)
{
    using Kind = SchemeDifference::Kind;
    const qint32 layerID = ToInt32(row.Field("LayerID"));
    if (row.Field("FromLayer").IsNull())
        differences.push_back({layerID, Kind::NotInFirst, 0, {}, {}});
    else if (row.Field("ToLayer").IsNull())
        differences.push_back({layerID, Kind::NotInSecond, 0, {}, {}});
    else
        AddValues(differences, row, layerID, parts);
}

SchemeParts HeldBy(ILayerStore& map, const QString& scheme)
{
    return SchemeTables(map).HoldsOf(LayerSchemes(map).IDOf(scheme));
}

} // namespace

SchemeParts
SchemeComparison::CommonParts(ILayerStore& map, const std::optional<QString>& from, const QString& to)
{
    if (map.IsReadOnly() && !SchemeTables(map).HaveSchemes())
        return WholeScheme;
    return (from ? HeldBy(map, *from) : WholeScheme) & HeldBy(map, to);
}

std::vector<SchemeDifference>
SchemeComparison::Compare(ILayerStore& map, const std::optional<QString>& from, const QString& to)
{
    if (map.IsReadOnly() && !SchemeTables(map).HaveSchemes())
        return {}; // "Standard" is only what the layers are
    LayerSchemes schemes(map);
    std::vector<Value> schemeIDs{schemes.IDOf(to)};
    if (from)
        schemeIDs.push_back(schemes.IDOf(*from));
    const SchemeParts parts = CommonParts(map, from, to);
    std::vector<SchemeDifference> differences;
    const auto rows = map.OpenQuery(ComparisonQuery(!from, parts), schemeIDs);
    for (; !rows->AtEOF(); rows->MoveNext()) {
        AddLayer(differences, *rows, parts);
        map.AskWatcher();
    }
    return differences;
}

} // namespace Orvane
