// SPDX-License-Identifier: MIT
#include "hostkit/schemes/LayerMatch.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

constexpr qint32 Ambiguous = -1;

LayerIdentity IdentityAt(const IRecordset& row)
{
    LayerIdentity layer;
    layer.id = ToInt32(row.Field("LayerID"));
    const std::optional<double> code = NumberIn(row.Field("Code"));
    if (code && *code >= 0)
        layer.code = code;
    const Value name = row.Field("Name");
    layer.name = ToTextOrNone(name);
    return layer;
}

QHash<double, qint32> ByCode(const std::vector<LayerIdentity>& layers)
{
    QHash<double, qint32> byCode;
    for (const LayerIdentity& layer : layers) {
        if (layer.code)
            byCode[*layer.code] = byCode.contains(*layer.code) ? Ambiguous : layer.id;
    }
    return byCode;
}

QHash<QString, qint32> ByName(const std::vector<LayerIdentity>& layers)
{
    QHash<QString, qint32> byName;
    for (const LayerIdentity& layer : layers) {
        if (!byName.contains(layer.name))
            byName.insert(layer.name, layer.id);
    }
    return byName;
}

} // namespace

std::vector<LayerIdentity> IdentitiesOf(ILayerDatabase& database)
{
    std::vector<LayerIdentity> layers;
    const auto rows
        = database.OpenRecordset(QStringLiteral("SELECT LayerID, Code, Name FROM Layers ORDER BY LayerID"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (Int32In(rows->Field("LayerID"))) // nothing could refer to the layer
            layers.push_back(IdentityAt(*rows));
    }
    return layers;
}

QHash<qint32, qint32>
MatchLayers(const std::vector<LayerIdentity>& from, const std::vector<LayerIdentity>& to)
{
    const QHash<double, qint32> fromByCode = ByCode(from);
    const QHash<double, qint32> toByCode = ByCode(to);
    const QHash<QString, qint32> toByName = ByName(to);
    QHash<qint32, qint32> matches;
    for (const LayerIdentity& layer : from) {
        qint32 match = Ambiguous;
        if (layer.code && fromByCode.value(*layer.code) != Ambiguous)
            match = toByCode.value(*layer.code, Ambiguous);
        if (match == Ambiguous)
            match = toByName.value(layer.name, Ambiguous);
        if (match != Ambiguous)
            matches.insert(layer.id, match);
    }
    return matches;
}

QHash<qint32, qint32> MatchLayers(ILayerDatabase& from, ILayerDatabase& to)
{
    return MatchLayers(IdentitiesOf(from), IdentitiesOf(to));
}

} // namespace Orvane
