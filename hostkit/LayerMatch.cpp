// SPDX-License-Identifier: MIT
#include "hostkit/LayerMatch.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QString>

#include <optional>
#include <vector>

namespace Orvane {

namespace {

struct Layer {
    qint32 id = 0;
    std::optional<double> code; // 0 or more
    QString name;
};

constexpr qint32 Ambiguous = -1;

Layer LayerAt(const IRecordset& row)
{
    Layer layer;
    layer.id = ToInt32(row.Field("LayerID"));
    const Value code = row.Field("Code");
    if (!code.IsNull() && ToDouble(code) >= 0)
        layer.code = ToDouble(code);
    const Value name = row.Field("Name");
    layer.name = name.IsNull() ? QString() : ToText(name);
    return layer;
}

std::vector<Layer> LayersOf(ILayerDatabase& database)
{
    std::vector<Layer> layers;
    const auto rows
        = database.OpenRecordset(QStringLiteral("SELECT LayerID, Code, Name FROM Layers ORDER BY LayerID"));
    for (; !rows->AtEOF(); rows->MoveNext())
        layers.push_back(LayerAt(*rows));
    return layers;
}

QHash<double, qint32> ByCode(const std::vector<Layer>& layers)
{
    QHash<double, qint32> byCode;
    for (const Layer& layer : layers) {
        if (layer.code)
            byCode[*layer.code] = byCode.contains(*layer.code) ? Ambiguous : layer.id;
    }
    return byCode;
}

QHash<QString, qint32> ByName(const std::vector<Layer>& layers)
{
    QHash<QString, qint32> byName;
    for (const Layer& layer : layers) {
        if (!byName.contains(layer.name))
            byName.insert(layer.name, layer.id);
    }
    return byName;
}

} // namespace

QHash<qint32, qint32> MatchLayers(ILayerDatabase& from, ILayerDatabase& to)
{
    const std::vector<Layer> wanted = LayersOf(from);
    const std::vector<Layer> present = LayersOf(to);
    const QHash<double, qint32> wantedByCode = ByCode(wanted);
    const QHash<double, qint32> presentByCode = ByCode(present);
    const QHash<QString, qint32> presentByName = ByName(present);
    QHash<qint32, qint32> matches;
    for (const Layer& layer : wanted) {
        qint32 match = Ambiguous;
        if (layer.code && wantedByCode.value(*layer.code) != Ambiguous)
            match = presentByCode.value(*layer.code, Ambiguous);
        if (match == Ambiguous)
            match = presentByName.value(layer.name, Ambiguous);
        if (match != Ambiguous)
            matches.insert(layer.id, match);
    }
    return matches;
}

} // namespace Orvane
