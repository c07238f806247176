// SPDX-License-Identifier: MIT
#include "component/dialog/session/PaperMap.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <cmath>

namespace Orvane::Testing::Paper {

namespace {

constexpr double noLimit = 256;

void ReadLayers(ILayerDatabase& database, Map& map)
{
    const auto rows = database.OpenRecordset(QStringLiteral("SELECT * FROM Layers"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        Layer& layer = map.layers[ToInt32(rows->Field("LayerID"))];
        layer.name = ToText(rows->Field("Name"));
        layer.isSystem = ToBoolean(rows->Field("SystemLayer"));
        for (int column = 0; column < ColumnCount; ++column)
            layer.columns[size_t(column)] = ToDouble(rows->Field(columnNames[size_t(column)]));
    }
}

void ReadGroups(ILayerDatabase& database, Map& map)
{
    const auto rows = database.OpenRecordset(QStringLiteral("SELECT * FROM LayerGroups"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        Group& group = map.groups[ToInt32(rows->Field("ID"))];
        group.name = ToText(rows->Field("Name"));
        group.ordering = ToInt32(rows->Field("GroupOrdering"));
        group.isExpanded = ToBoolean(rows->Field("Expanded"));
    }
    const auto members = database.OpenRecordset(
        QStringLiteral("SELECT * FROM LayerGroupMembers ORDER BY GroupID, Ordering, LayerID"));
    for (; !members->AtEOF(); members->MoveNext())
        map.groups[ToInt32(members->Field("GroupID"))].members.push_back(ToInt32(members->Field("LayerID")));
}

QString LayerText(const Layer& layer)
{
    QStringList parts{layer.name};
    for (int column = 0; column < ColumnCount; ++column) {
        const double value = layer.columns[size_t(column)];
        parts.append(QStringLiteral("%1=%2").arg(QLatin1String(columnNames[size_t(column)])).arg(value));
    }
    return parts.join(' ');
}

QString GroupText(const Group& group)
{
    QStringList members;
    for (qint32 layerID : group.members)
        members.append(QString::number(layerID));
    return QStringLiteral("%1 ordering=%2 expanded=%3 members=%4")
        .arg(group.name)
        .arg(group.ordering)
        .arg(group.isExpanded)
        .arg(members.join(','));
}

template <typename Rows, typename TextOf>
void Compare(const Rows& expected, const Rows& actual, const QString& kind, TextOf textOf, QStringList& lines)
{
    for (const auto& [id, row] : expected) {
        const auto found = actual.find(id);
        if (found == actual.end())
            lines.append(QStringLiteral("%1 %2 is missing").arg(kind).arg(id));
        else if (!(found->second == row))
            lines.append(QStringLiteral("%1 %2\n  expected %3\n  actual   %4")
                             .arg(kind)
                             .arg(id)
                             .arg(textOf(row), textOf(found->second)));
    }
    for (const auto& [id, row] : actual) {
        if (!expected.count(id))
            lines.append(QStringLiteral("%1 %2 should not be there").arg(kind).arg(id));
    }
}

double ScaleIndex(double storedScale)
{
    return std::clamp(std::round(storedScale / 1000), 0.0, noLimit);
}

Values ValuesOf(const Layer& layer)
{
    const auto color = quint32(qint32(layer.columns[Color]));
    Values values;
    for (int flag = IsVisible; flag <= IsEnquirable; ++flag)
        values[size_t(flag)] = layer.columns[size_t(flag)]; // in the order of the columns
    values[UsesForSymbols] = (color & 0xFF000000u) == 0;
    values[LineColour] = double(color & 0xFFFFFFu);
    values[FillForeColour] = layer.columns[FillForeColor];
    values[FillBackColour] = layer.columns[FillBackColor];
    values[LineStyle] = layer.columns[OutlineStyle];
    values[Thickness] = layer.columns[LineThickness];
    values[Fill] = layer.columns[FillStyle];
    values[MinScale] = ScaleIndex(layer.columns[MinVisScale]);
    values[MaxScale] = ScaleIndex(layer.columns[MaxVisScale]);
    values[DrawPriority] = layer.columns[Priority];
    values[RendererStyle] = layer.columns[Style];
    return values;
}

std::optional<double> AsListed(std::optional<double> colour)
{
    if (!colour)
        return colour;
    return (quint32(qint32(*colour)) & 0xFF000000u) ? transparent : *colour;
}

} // namespace

void Map::RemoveLayer(qint32 layerID)
{
    layers.erase(layerID);
    for (auto& [id, group] : groups)
        std::erase(group.members, layerID);
}

bool Map::HasCode(double code) const
{
    return std::any_of(
        layers.begin(), layers.end(), [&](const auto& entry) { return entry.second.columns[Code] == code; });
}

Map ReadMap(ILayerDatabase& database)
{
    Map map;
    ReadLayers(database, map);
    ReadGroups(database, map);
    return map;
}

QStringList Differences(const Map& expected, const Map& actual)
{
    QStringList lines;
    Compare(expected.layers, actual.layers, "layer", LayerText, lines);
    Compare(expected.groups, actual.groups, "group", GroupText, lines);
    return lines;
}

Values CommonValues(const std::vector<const Layer*>& layers)
{
    if (layers.empty())
        return {};
    Values common = ValuesOf(*layers.front());
    for (const Layer* layer : layers) {
        const Values values = ValuesOf(*layer);
        for (size_t property = 0; property < PropertyCount; ++property) {
            if (common[property] != values[property])
                common[property].reset();
        }
    }
    return common;
}

Values AsShown(const Values& record)
{
    Values shown = record;
    if (shown[MaxScale] == noLimit)
        shown[MaxScale] = 0;
    if (shown[MinScale] == noLimit)
        shown[MinScale] = 0;
    shown[FillForeColour] = AsListed(shown[FillForeColour]);
    shown[FillBackColour] = AsListed(shown[FillBackColour]);
    if (!shown[LineStyle] || !shown[Thickness])
        shown[LineStyle] = shown[Thickness] = std::nullopt;
    else if (shown[LineStyle] != 0.0)
        shown[Thickness] = 0;
    const auto& renderer = shown[RendererStyle];
    if (renderer
        && std::find(rendererStyles.begin(), rendererStyles.end(), *renderer) == rendererStyles.end())
        shown[RendererStyle].reset();
    return shown;
}

void Write(Layer& layer, const Values& shown)
{
    auto& columns = layer.columns;
    const auto take = [&](Column column, Property property, double factor = 1) {
        if (shown[property])
            columns[column] = *shown[property] * factor;
    };
    for (int flag = IsVisible; flag <= IsEnquirable; ++flag)
        take(Column(flag), Property(flag));
    const auto color = quint32(qint32(columns[Color]));
    const quint32 colour = shown[LineColour] ? quint32(*shown[LineColour]) : color & 0xFFFFFFu;
    const bool symbols = shown[UsesForSymbols] ? *shown[UsesForSymbols] != 0 : (color & 0xFF000000u) == 0;
    if (shown[LineColour] || shown[UsesForSymbols])
        columns[Color] = qint32(colour | (symbols ? 0 : 0xFF000000u));
    take(FillForeColor, FillForeColour);
    take(FillBackColor, FillBackColour);
    take(OutlineStyle, LineStyle);
    take(LineThickness, Thickness);
    take(FillStyle, Fill);
    take(MinVisScale, MinScale, 1000);
    take(MaxVisScale, MaxScale, 1000);
    take(Priority, DrawPriority);
    take(Style, RendererStyle);
}

} // namespace Orvane::Testing::Paper
