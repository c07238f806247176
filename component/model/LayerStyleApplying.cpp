// SPDX-License-Identifier: MIT
#include "component/model/LayerStyleApplying.h"

#include "component/model/CheckedColumns.h"
#include "component/model/LayerColour.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerQueries.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

void WriteFlag(IRecordset& row, std::string_view columnName, const Value& flag)
{
    if (!flag.IsNull())
        row.SetField(columnName, ToBoolean(flag));
}

void WriteNumber(IRecordset& row, std::string_view columnName, const Value& number)
{
    if (number.IsNull())
        return;
    ToDouble(number); // a text in a number column would later be read as another value
    row.SetField(columnName, number);
}

void WriteQuickMode(IRecordset& row, qint16 quickMode)
{
    if (const auto overrideMode = OverrideModeFromQuickMode(quickMode))
        row.SetField("OverrideMode", *overrideMode);
}

void WriteFlags(IRecordset& row, const LayerStyle& style)
{
    for (const SlotColumn& flag : FlagColumns)
        WriteFlag(row, flag.column, style.lsGet(flag.slot));
}

// A row without a known colour counts as black, used for symbols.
qint32 CurrentColour(const IRecordset& row)
{
    const Value color = Int32Column(row, "Color");
    return color.IsNull() ? 0 : *color.Get<qint32>();
}

void WriteColour(IRecordset& row, const Value& colour, const Value& useForSymbols)
{
    if (colour.IsNull() && useForSymbols.IsNull())
        return;
    const bool whole = !colour.IsNull() && !useForSymbols.IsNull();
    const qint32 current = whole ? 0 : CurrentColour(row);
    row.SetField(
        "Color",
        JoinColour(
            colour.IsNull() ? current : ToInt32(colour),
            useForSymbols.IsNull() ? UsesForSymbols(current) : ToBoolean(useForSymbols)));
}

// The minimum is stored as the host converts it, the maximum as a whole number: hosts rely on both.
void WriteScales(IRecordset& row, const IStyleEditorClient& client, const LayerStyle& style)
{
    if (const Value minimum = style.lsGet(Slot::MinVisScale); !minimum.IsNull())
        row.SetField("MinVisScale", client.DialogScaleToStored(ToInt32(minimum)));
    if (const Value maximum = style.lsGet(Slot::MaxVisScale); !maximum.IsNull())
        row.SetField("MaxVisScale", ToInt32(client.DialogScaleToStored(ToInt32(maximum))));
}

void WriteRendererStyle(IRecordset& row, const LayerStyle& style, const SelectedRendererStyle& selectedStyle)
{
    if (style.lsIsNull(Slot::RendererStyle))
        return;
    if (const Value number = selectedStyle(); !number.IsNull())
        row.SetField("Style", ToInt32(number));
}

void WriteRow(
    IRecordset& row, const IStyleEditorClient& client, const LayerStyle& style, qint16 quickMode,
    const SelectedRendererStyle& selectedStyle)
{
    WriteQuickMode(row, quickMode);
    WriteFlags(row, style);
    WriteNumber(row, "FillForeColor", style.lsGet(Slot::FillForeColour));
    WriteNumber(row, "FillBackColor", style.lsGet(Slot::FillBackColour));
    WriteColour(row, style.lsGet(Slot::LineColour), style.lsGet(Slot::UseForSymbols));
    WriteNumber(row, "OutlineStyle", style.lsGet(Slot::OutlineStyle));
    WriteNumber(row, "FillStyle", style.lsGet(Slot::FillStyle));
    WriteNumber(row, "LineThickness", style.lsGet(Slot::LineThickness));
    WriteScales(row, client, style);
    WriteNumber(row, "Priority", style.lsGet(Slot::DrawPriority));
    WriteRendererStyle(row, style, selectedStyle);
}

void ApplyTo(
    IRecordset& layers, IStyleEditorClient& client, qint32 layerID, const LayerStyle& style, qint16 quickMode,
    const SelectedRendererStyle& selectedStyle)
{
    if (!SeekID(layers, layerID))
        return;
    client.BeginLayerEdit(layers);
    WriteRow(layers, client, style, quickMode, selectedStyle);
    client.LayerChanged(IntegerColumn(layers, "LayerID"));
    layers.Update();
}

} // namespace

void ApplyLayerStyle(
    IStyleEditorClient& client, qint32 layerID, const LayerStyle& style, qint16 quickMode,
    const SelectedRendererStyle& selectedStyle)
{
    ApplyTo(*OpenLayersByID(client), client, layerID, style, quickMode, selectedStyle);
}

void ApplyGroupStyle(
    IStyleEditorClient& client, qint32 groupID, const LayerStyle& style, qint16 quickMode,
    const SelectedRendererStyle& selectedStyle)
{
    Transaction transaction(client.Database());
    const std::vector<qint32> layerIDs = ReadMemberLayerIDs(client, groupID);
    {
        const auto layers = OpenLayersByID(client);
        for (const qint32 layerID : layerIDs)
            ApplyTo(*layers, client, layerID, style, quickMode, selectedStyle);
    }
    transaction.Commit();
}

} // namespace Orvane
