// SPDX-License-Identifier: MIT
#include "mapkit/output/Legend.h"

#include "mapkit/output/ClassTexts.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/IRecordset.h>
#include <OrvaneShellLib/IShellServices.h>
#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace Orvane {

namespace {

// A layer that is in several groups is listed only in the first of them.
constexpr auto ListedLayers
    = "SELECT Layers.LayerID AS LayerID, Layers.Name AS LayerName, LayerGroups.ID AS GroupID,"
      " LayerGroups.Name AS GroupName FROM Layers"
      " LEFT JOIN LayerGroupMembers ON LayerGroupMembers.LayerID = Layers.LayerID"
      " LEFT JOIN LayerGroups ON LayerGroups.ID = LayerGroupMembers.GroupID"
      " ORDER BY LayerGroups.ID IS NULL, LayerGroups.GroupOrdering, LayerGroups.ID,"
      " LayerGroupMembers.Ordering, Layers.Name, Layers.LayerID";

bool IsPatterned(int fillStyle)
{
    return fillStyle > SolidFill && fillStyle <= LastFillStyle && fillStyle != HollowFill;
}

LegendRow RowOf(const MapLayer& layer, const QString& name, const IShellServices& services)
{
    LegendRow row;
    row.text = name;
    row.backdrop = layer.mode == DrawMode::Backdrop;
    row.values = layer.values;
    row.look = layer.look;
    row.raster = layer.raster;
    if (IsPatterned(layer.values.fillStyle))
        row.fillPattern = services.FillPattern(FillPatternKind, layer.values.fillStyle);
    if (layer.features && !layer.features->Features().empty())
        row.kind = layer.features->Features().front().kind;
    return row;
}

// The row of a class: like its layer, but with the differences that the map draws.
LegendRow RowOfClass(const LegendRow& layer, const ClassLook& look)
{
    LegendRow row = layer;
    const qint32 colour = BgrFromQColor(look.colour);
    row.values.fillForeColor = colour;
    row.look.fill = look.fill;
    row.look.symbol = look.colour;
    if (row.look.cased)
        row.look.cased->core.setColor(look.colour);
    if (row.kind != FeatureKind::Area || look.fill.style() == Qt::NoBrush) {
        row.values.color = colour;
        row.look.outline.setColor(look.colour);
    }
    return row;
}

// Features in no class are filled plainly, whatever the pattern of the others.
LegendRow RowOfUnclassed(const LegendRow& layer, const MapLayer& drawn)
{
    LegendRow row = RowOfClass(layer, UnclassedLook(drawn.values));
    if (row.look.fill.style() != Qt::NoBrush)
        row.values.fillStyle = SolidFill;
    return row;
}

LegendRow RowBelow(const QString& text, LegendRow row)
{
    row.text = text;
    row.indent = 1;
    return row;
}

// What the numbers are, the classes, and the features that are in none.
void AddClasses(std::vector<LegendRow>& rows, const LegendRow& row, const MapLayer& layer)
{
    if (!layer.classAttribute.isEmpty()) {
        rows.push_back(RowBelow(layer.classAttribute, row));
        rows.back().sample = false;
    }
    const std::vector<QString> texts = ClassTexts(*layer.classes);
    for (size_t i = 0; i < std::min(texts.size(), layer.classLooks.size()); ++i)
        rows.push_back(RowBelow(texts[i], RowOfClass(row, layer.classLooks[i])));
    if (layer.classes->HasUnclassed())
        rows.push_back(
            RowBelow(QCoreApplication::translate("Legend", "No data"), RowOfUnclassed(row, layer)));
}

// Adds the layer's row, and below it the rows of its classes.
void AddLayer(std::vector<LegendRow>& rows, const LegendRow& row, const MapLayer& layer)
{
    rows.push_back(row);
    const bool hasClasses = layer.classes && !layer.classLooks.empty();
    rows.back().sample = !hasClasses;
    if (hasClasses)
        AddClasses(rows, row, layer);
}

// The rows of one group, or of layers that belong to no group.
struct Block {
    Value groupID;
    QString name;
    int layers = 0;
    std::vector<LegendRow> rows;
};

void AddBlock(std::vector<LegendRow>& legend, Block&& block)
{
    const bool headed = !block.groupID.IsNull() && block.layers > 1;
    if (headed)
        legend.push_back(LegendRow::Heading(block.name));
    for (LegendRow& row : block.rows) {
        row.indent += headed ? 1 : 0;
        legend.push_back(std::move(row));
    }
}

bool Continues(const Block& block, const Value& groupID)
{
    return ValuesEqual(block.groupID, groupID) || (block.groupID.IsNull() && groupID.IsNull());
}

} // namespace

std::vector<LegendRow>
LegendOf(ILayerDatabase& database, const IShellServices& services, const std::vector<MapLayer>& layers)
{
    QHash<qint32, const MapLayer*> left;
    for (const MapLayer& layer : layers)
        left.insert(layer.layerID, &layer);
    std::vector<LegendRow> legend;
    Block block{Value::Null(), {}, 0, {}};
    const auto rows = database.OpenRecordset(QString::fromLatin1(ListedLayers));
    for (; !rows->AtEOF() && !left.isEmpty(); rows->MoveNext()) {
        const std::optional<qint32> layerID = Int32In(rows->Field("LayerID"));
        const MapLayer* layer = layerID ? left.take(*layerID) : nullptr;
        if (!layer)
            continue;
        const Value groupID = rows->Field("GroupID");
        if (!Continues(block, groupID)) {
            AddBlock(legend, std::move(block));
            block = {groupID, ToTextOrNone(rows->Field("GroupName")), 0, {}};
        }
        ++block.layers;
        AddLayer(block.rows, RowOf(*layer, ToTextOrNone(rows->Field("LayerName")), services), *layer);
    }
    AddBlock(legend, std::move(block));
    return legend;
}

} // namespace Orvane
