// SPDX-License-Identifier: MIT
#include "component/model/LayerStyleApplying.h"

#include "component/model/ChangesMeanwhile.h"
#include "component/model/CheckedColumns.h"
#include "component/model/LayerColour.h"
#include "component/model/LayerCursors.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/QuickModes.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

void WriteFlag(IRecordset& row, std::string_view columnName, const Value& flag)
{
    if (!flag.IsNull())
        row.SetField(columnName, ConvertedFor(row, columnName, flag, ToBoolean));
}

void WriteNumber(IRecordset& row, std::string_view columnName, const Value& number)
{
    if (number.IsNull())
        return;
    ConvertedFor(row, columnName, number, ToDouble); // a text would later be read as another value
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
            colour.IsNull() ? current : ConvertedFor(row, "Color", colour, ToInt32),
            useForSymbols.IsNull() ? UsesForSymbols(current)
                                   : ConvertedFor(row, "Color", useForSymbols, ToBoolean)));
}

// An index stands for many scales: one that the user did not touch was not meant to change.
bool KeepsScale(
    const IRecordset& row, std::string_view columnName, const StyleEdits& edits, qint16 slot, double scale)
{
    if (!edits.asRead.Compare(slot, edits.style.lsGet(slot)))
        return false;
    const Value stored = row.Field(columnName);
    return stored.IsNumber() && ToDouble(stored) != scale;
}

void WriteMinimum(
    IRecordset& row, const IStyleEditorClient& client, const StyleEdits& edits, const Value& minimum)
{
    if (minimum.IsNull())
        return;
    const double scale = client.DialogScaleToStored(ToInt32(minimum));
    if (!KeepsScale(row, "MinVisScale", edits, Slot::MinVisScale, scale))
        row.SetField("MinVisScale", scale);
}

void WriteMaximum(
    IRecordset& row, const IStyleEditorClient& client, const StyleEdits& edits, const Value& maximum)
{
    if (maximum.IsNull())
        return;
    const Value scale = client.DialogScaleToStored(ToInt32(maximum));
    const qint32 whole = ConvertedFor(row, "MaxVisScale", scale, ToInt32);
    if (!KeepsScale(row, "MaxVisScale", edits, Slot::MaxVisScale, whole))
        row.SetField("MaxVisScale", whole);
}

void WriteRendererStyle(IRecordset& row, const LayerStyle& style, const SelectedRendererStyle& selectedStyle)
{
    if (style.lsIsNull(Slot::RendererStyle))
        return;
    if (const Value number = selectedStyle(); !number.IsNull())
        row.SetField("Style", ConvertedFor(row, "Style", number, ToInt32));
}

void WriteRow(
    IRecordset& row, const IStyleEditorClient& client, const StyleEdits& edits, const RowEdits& rowEdits)
{
    const LayerStyle& style = rowEdits.style;
    WriteQuickMode(row, rowEdits.quickMode);
    WriteFlags(row, style);
    WriteNumber(row, "FillForeColor", style.lsGet(Slot::FillForeColour));
    WriteNumber(row, "FillBackColor", style.lsGet(Slot::FillBackColour));
    WriteColour(row, style.lsGet(Slot::LineColour), style.lsGet(Slot::UseForSymbols));
    WriteNumber(row, "OutlineStyle", style.lsGet(Slot::OutlineStyle));
    WriteNumber(row, "FillStyle", style.lsGet(Slot::FillStyle));
    WriteNumber(row, "LineThickness", style.lsGet(Slot::LineThickness));
    // The minimum is stored as the host converts it, the maximum as a whole number: hosts rely on both.
    WriteMinimum(row, client, edits, style.lsGet(Slot::MinVisScale));
    WriteMaximum(row, client, edits, style.lsGet(Slot::MaxVisScale));
    WriteNumber(row, "Priority", style.lsGet(Slot::DrawPriority));
    WriteRendererStyle(row, style, edits.selectedStyle);
}

/// Writes one layer after the other, as long as there is no conflict.
class LayerWriter
{
public:
    LayerWriter(IStyleEditorClient& client, const StyleEdits& edits)
        : m_client(client), m_edits(edits), m_changes(client, edits), m_layers(OpenLayersByID(client))
    {
    }

    void Write(qint32 layerID)
    {
        if (!SeekID(*m_layers, layerID))
            return;
        const RowEdits& edits = m_changes.EditsFor(*m_layers, layerID);
        if (m_changes.HasConflicts())
            return; // the other layers are only counted
        m_client.BeginLayerEdit(*m_layers);
        WriteRow(*m_layers, m_client, m_edits, edits);
        m_client.LayerChanged(IntegerColumn(*m_layers, "LayerID"));
        m_layers->Update();
        ++m_written;
    }

    ApplyResult Result() { return {m_written, m_changes.TakeConflicts(), m_changes.IsCodeChanged()}; }

private:
    IStyleEditorClient& m_client;
    const StyleEdits& m_edits;
    ChangesMeanwhile m_changes;
    std::unique_ptr<IRecordset> m_layers;
    int m_written = 0;
};

template <typename LayerIDs>
ApplyResult WriteTogether(IStyleEditorClient& client, LayerIDs readLayerIDs, const StyleEdits& edits)
{
    const std::vector<qint32> layerIDs = readLayerIDs();
    LayerWriter writer(client, edits);
    for (const qint32 layerID : layerIDs)
        writer.Write(layerID);
    return writer.Result();
}

template <typename LayerIDs>
ApplyResult ApplyTogether(IStyleEditorClient& client, LayerIDs readLayerIDs, const StyleEdits& edits)
{
    Transaction transaction(client.GetDatabase());
    ApplyResult result = WriteTogether(client, readLayerIDs, edits); // closes its cursors
    if (result.conflicts.empty())
        transaction.Commit();
    return result;
}

} // namespace

ApplyResult ApplyLayerStyle(IStyleEditorClient& client, qint32 layerID, const StyleEdits& edits)
{
    LayerWriter writer(client, edits);
    writer.Write(layerID);
    return writer.Result();
}

ApplyResult
ApplyLayersStyle(IStyleEditorClient& client, const std::vector<qint32>& layerIDs, const StyleEdits& edits)
{
    return ApplyTogether(
        client, [&] { return layerIDs; }, edits);
}

ApplyResult ApplyGroupStyle(IStyleEditorClient& client, qint32 groupID, const StyleEdits& edits)
{
    return ApplyTogether(
        client, [&] { return ReadMemberLayerIDs(client, groupID); }, edits);
}

void ApplyQuickModes(IStyleEditorClient& client, const std::vector<LayerMode>& modes)
{
    Transaction transaction(client.GetDatabase());
    for (const qint16 quickMode : {QuickMode::Normal, QuickMode::Backdrop, QuickMode::Hidden}) {
        StyleEdits edits;
        edits.quickMode = quickMode;
        LayerWriter writer(client, edits);
        for (const LayerMode& mode : modes) {
            if (mode.quickMode == quickMode)
                writer.Write(mode.layerID);
        }
    }
    transaction.Commit();
}

} // namespace Orvane
