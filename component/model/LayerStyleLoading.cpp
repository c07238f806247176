// SPDX-License-Identifier: MIT
#include "component/model/LayerStyleLoading.h"

#include "component/model/CheckedColumns.h"
#include "component/model/LayerColour.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <bitset>
#include <utility>

namespace Orvane {

namespace {

/// Reads the rows of a node's layers, one after the other.
class NodeReader
{
public:
    explicit NodeReader(IStyleEditorClient& client) : m_client(client), m_layers(OpenLayersByID(client)) { }

    /// The layer's properties; nothing if it does not exist.
    std::optional<LayerStyle> Read(qint32 layerID)
    {
        if (!SeekID(*m_layers, layerID))
            return std::nullopt;
        LayerStyle style;
        ReadRow(*m_layers, style);
        return style;
    }

    /// Keeps the quick mode of the layer that was read last.
    void KeepMode(qint32 layerID)
    {
        Try([&] { m_result.modes.push_back({layerID, QuickModeColumn(*m_layers)}); });
    }

    /// Sets the slots to Null that could not be read in some layer.
    void DropUnread(LayerStyle& style) const
    {
        for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot) {
            if (m_unread.test(std::size_t(slot)))
                style.lsSet(slot, Value::Null());
        }
    }

    ReadingResult Result() { return std::move(m_result); }

private:
    void ReadRow(const IRecordset& row, LayerStyle& style)
    {
        style.lsSet(Slot::Name, row.Field("Name"));
        ReadNumber(row, "Code", style, Slot::Code);
        for (const SlotColumn& flag : FlagColumns)
            Try(style, flag.slot, [&] { return FlagColumn(row, flag.column); });
        ReadColour(row, style);
        ReadNumber(row, "FillForeColor", style, Slot::FillForeColour);
        ReadNumber(row, "FillBackColor", style, Slot::FillBackColour);
        ReadNumber(row, "OutlineStyle", style, Slot::OutlineStyle);
        ReadNumber(row, "FillStyle", style, Slot::FillStyle);
        ReadNumber(row, "LineThickness", style, Slot::LineThickness);
        ReadScale(row, "MinVisScale", style, Slot::MinVisScale);
        ReadScale(row, "MaxVisScale", style, Slot::MaxVisScale);
        ReadNumber(row, "Priority", style, Slot::DrawPriority);
        ReadNumber(row, "Style", style, Slot::RendererStyle);
    }

    void ReadNumber(const IRecordset& row, const char* column, LayerStyle& style, qint16 slot)
    {
        Try(style, slot, [&] { return NumberColumn(row, column); });
    }

    void ReadScale(const IRecordset& row, const char* column, LayerStyle& style, qint16 slot)
    {
        Try(style, slot, [&] {
            const Value stored = NumberColumn(row, column);
            return stored.IsNull() ? stored : Value(m_client.StoredScaleToDialog(ToDouble(stored)));
        });
    }

    void ReadColour(const IRecordset& row, LayerStyle& style)
    {
        Value colour = Value::Null();
        Try(style, Slot::LineColour, [&] {
            colour = Int32Column(row, "Color");
            return colour.IsNull() ? colour : Value(ColourPart(*colour.Get<qint32>()));
        });
        if (!colour.IsNull())
            style.lsSet(Slot::UseForSymbols, UsesForSymbols(*colour.Get<qint32>()));
        m_unread.set(Slot::UseForSymbols, m_unread.test(Slot::LineColour));
    }

    template <typename Reading> void Try(LayerStyle& style, qint16 slot, Reading read)
    {
        if (!Try([&] { style.lsSet(slot, read()); }))
            m_unread.set(std::size_t(slot));
    }

    template <typename Step> bool Try(Step step)
    {
        try {
            step();
            return true;
        } catch (const ColumnError& fault) {
            if (!m_result.fault)
                m_result.fault = fault;
            return false;
        }
    }

    IStyleEditorClient& m_client;
    std::unique_ptr<IRecordset> m_layers;
    ReadingResult m_result;
    std::bitset<LayerStyle::SlotCount> m_unread;
};

ReadingResult LoadMembers(IStyleEditorClient& client, const std::vector<qint32>& layerIDs, LayerStyle& style)
{
    if (layerIDs.empty())
        return {};
    NodeReader reader(client);
    style = reader.Read(layerIDs.front()).value_or(LayerStyle());
    for (const qint32 layerID : layerIDs) {
        if (const std::optional<LayerStyle> member = reader.Read(layerID)) {
            reader.KeepMode(layerID);
            style.Intersect(*member);
        }
    }
    reader.DropUnread(style);
    return reader.Result();
}

} // namespace

ReadingResult LoadLayerStyle(IStyleEditorClient& client, qint32 layerID, LayerStyle& style)
{
    NodeReader reader(client);
    if (const std::optional<LayerStyle> read = reader.Read(layerID)) {
        reader.KeepMode(layerID);
        style = *read;
    }
    return reader.Result();
}

ReadingResult LoadGroupStyle(IStyleEditorClient& client, qint32 groupID, LayerStyle& style)
{
    Transaction transaction(client.Database());
    LayerStyle common;
    ReadingResult result = LoadMembers(client, ReadMemberLayerIDs(client, groupID), common);
    transaction.Commit();
    style = std::move(common);
    return result;
}

} // namespace Orvane
