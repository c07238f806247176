// SPDX-License-Identifier: MIT
#include "component/model/LayerStyleLoading.h"

#include "component/model/CheckedColumns.h"
#include "component/model/LayerColour.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

void ReadFlags(const IRecordset& row, LayerStyle& style)
{
    for (const SlotColumn& flag : FlagColumns)
        style.lsSet(flag.slot, FlagColumn(row, flag.column));
}

void ReadColours(const IRecordset& row, LayerStyle& style)
{
    const Value colour = Int32Column(row, "Color");
    const bool known = !colour.IsNull();
    style.lsSet(Slot::LineColour, known ? Value(ColourPart(*colour.Get<qint32>())) : Value::Null());
    style.lsSet(Slot::FillForeColour, NumberColumn(row, "FillForeColor"));
    style.lsSet(Slot::FillBackColour, NumberColumn(row, "FillBackColor"));
    style.lsSet(Slot::UseForSymbols, known ? Value(UsesForSymbols(*colour.Get<qint32>())) : Value::Null());
}

Value ScaleIndex(const IStyleEditorClient& client, const Value& storedScale)
{
    return storedScale.IsNull() ? storedScale : Value(client.StoredScaleToDialog(ToDouble(storedScale)));
}

void ReadScales(const IStyleEditorClient& client, const IRecordset& row, LayerStyle& style)
{
    style.lsSet(Slot::MinVisScale, ScaleIndex(client, NumberColumn(row, "MinVisScale")));
    style.lsSet(Slot::MaxVisScale, ScaleIndex(client, NumberColumn(row, "MaxVisScale")));
}

LayerStyle ReadRow(const IStyleEditorClient& client, const IRecordset& row)
{
    LayerStyle style;
    style.lsSet(Slot::Name, row.Field("Name"));
    style.lsSet(Slot::Code, NumberColumn(row, "Code"));
    ReadFlags(row, style);
    ReadColours(row, style);
    style.lsSet(Slot::OutlineStyle, NumberColumn(row, "OutlineStyle"));
    style.lsSet(Slot::FillStyle, NumberColumn(row, "FillStyle"));
    style.lsSet(Slot::LineThickness, NumberColumn(row, "LineThickness"));
    ReadScales(client, row, style);
    style.lsSet(Slot::DrawPriority, NumberColumn(row, "Priority"));
    style.lsSet(Slot::RendererStyle, NumberColumn(row, "Style"));
    return style;
}

void LoadFrom(IRecordset& layers, const IStyleEditorClient& client, qint32 layerID, LayerStyle& style)
{
    if (SeekID(layers, layerID))
        style = ReadRow(client, layers);
}

LayerStyle CommonStyle(IStyleEditorClient& client, const std::vector<qint32>& layerIDs)
{
    LayerStyle common;
    if (layerIDs.empty())
        return common;
    const auto layers = OpenLayersByID(client);
    LoadFrom(*layers, client, layerIDs.front(), common);
    for (const qint32 layerID : layerIDs) {
        LayerStyle style;
        LoadFrom(*layers, client, layerID, style);
        common.Intersect(style);
    }
    return common;
}

} // namespace

void LoadLayerStyle(IStyleEditorClient& client, qint32 layerID, LayerStyle& style)
{
    LoadFrom(*OpenLayersByID(client), client, layerID, style);
}

void LoadGroupStyle(IStyleEditorClient& client, qint32 groupID, LayerStyle& style)
{
    Transaction transaction(client.Database());
    LayerStyle common = CommonStyle(client, ReadMemberLayerIDs(client, groupID));
    transaction.Commit();
    style = std::move(common);
}

} // namespace Orvane
