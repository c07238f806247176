// SPDX-License-Identifier: MIT
#include "component/model/LayerRowReader.h"

#include "component/model/CheckedColumns.h"
#include "component/model/LayerColour.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

struct LayerRowReader::Target {
    const IRecordset& row; // for the names in errors
    const LayerRowValues& values;
    LayerStyle& style;
};

LayerStyle LayerRowReader::Read(const IRecordset& row, const LayerRowValues& values)
{
    LayerStyle style;
    const Target target{row, values, style};
    style.lsSet(Slot::Name, row.Field("Name"));
    ReadNumber(target, RowColumn::Code, Slot::Code);
    ReadFlags(target);
    ReadColour(target);
    ReadNumber(target, RowColumn::FillForeColor, Slot::FillForeColour);
    ReadNumber(target, RowColumn::FillBackColor, Slot::FillBackColour);
    ReadNumber(target, RowColumn::OutlineStyle, Slot::OutlineStyle);
    ReadNumber(target, RowColumn::FillStyle, Slot::FillStyle);
    ReadNumber(target, RowColumn::LineThickness, Slot::LineThickness);
    ReadScale(target, RowColumn::MinVisScale, Slot::MinVisScale);
    ReadScale(target, RowColumn::MaxVisScale, Slot::MaxVisScale);
    ReadNumber(target, RowColumn::Priority, Slot::DrawPriority);
    ReadNumber(target, RowColumn::Style, Slot::RendererStyle);
    return style;
}

std::optional<qint16> LayerRowReader::ReadMode(const IRecordset& row, const LayerRowValues& values)
{
    std::optional<qint16> mode;
    Try([&] { mode = QuickModeColumn(row, values[RowColumn::OverrideMode]); });
    return mode;
}

void LayerRowReader::DropUnread(LayerStyle& style) const
{
    for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot) {
        if (m_unread.test(std::size_t(slot)))
            style.lsSet(slot, Value::Null());
    }
}

void LayerRowReader::ReadFlags(const Target& target)
{
    for (std::size_t flag = 0; flag < FlagColumns.size(); ++flag) {
        const auto column = RowColumn(std::size_t(RowColumn::Visible) + flag);
        Set(target, FlagColumns[flag].slot,
            [&] { return FlagColumn(target.row, NameOf(column), target.values[column]); });
    }
}

void LayerRowReader::ReadColour(const Target& target)
{
    Value colour = Value::Null();
    Set(target, Slot::LineColour, [&] {
        colour = Int32Column(target.row, "Color", target.values[RowColumn::Color]);
        return colour.IsNull() ? colour : Value(ColourPart(*colour.Get<qint32>()));
    });
    if (!colour.IsNull())
        target.style.lsSet(Slot::UseForSymbols, UsesForSymbols(*colour.Get<qint32>()));
    m_unread.set(Slot::UseForSymbols, m_unread.test(Slot::LineColour));
}

void LayerRowReader::ReadNumber(const Target& target, RowColumn column, qint16 slot)
{
    Set(target, slot, [&] { return NumberColumn(target.row, NameOf(column), target.values[column]); });
}

void LayerRowReader::ReadScale(const Target& target, RowColumn column, qint16 slot)
{
    Set(target, slot, [&] {
        const Value stored = NumberColumn(target.row, NameOf(column), target.values[column]);
        return stored.IsNull() ? stored : Value(m_client.StoredScaleToDialog(ToDouble(stored)));
    });
}

template <typename Reading> void LayerRowReader::Set(const Target& target, qint16 slot, Reading read)
{
    if (!Try([&] { target.style.lsSet(slot, read()); }))
        m_unread.set(std::size_t(slot));
}

template <typename Step> bool LayerRowReader::Try(Step step)
{
    try {
        step();
        return true;
    } catch (const ColumnError& fault) {
        if (!m_fault)
            m_fault = fault;
        return false;
    }
}

} // namespace Orvane
