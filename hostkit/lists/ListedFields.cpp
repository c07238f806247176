// SPDX-License-Identifier: MIT
#include "hostkit/lists/ListedFields.h"

#include "hostkit/lists/ListedLayer.h"

#include <OrvaneShellLib/IRecordset.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <array>

namespace Orvane {

namespace {

struct ListedField {
    const char* column;
    Value (*get)(const ListedLayer& layer);
    void (*set)(ListedLayer& layer, const Value& value);
};

void Take(bool& field, const Value& value)
{
    field = ToBoolean(value);
}

void Take(qint32& field, const Value& value)
{
    field = ToInt32(value);
}

void Take(double& field, const Value& value)
{
    field = ToDouble(value);
}

void Take(QString& field, const Value& value)
{
    field = ToText(value);
}

template <auto Member> constexpr ListedField Plain(const char* column)
{
    return {
        column, [](const ListedLayer& layer) { return Value(layer.*Member); },
        [](ListedLayer& layer, const Value& value) { Take(layer.*Member, value); }};
}

constexpr quint32 SymbolByte = 0xFF000000U;

Value LineColourValue(const ListedLayer& layer)
{
    const quint32 colour = quint32(layer.lineColour) & ~SymbolByte;
    return qint32(layer.usedForSymbols ? colour : colour | SymbolByte);
}

void TakeLineColour(ListedLayer& layer, const Value& value)
{
    const auto colour = quint32(ToInt32(value));
    layer.lineColour = qint32(colour & ~SymbolByte);
    layer.usedForSymbols = (colour & SymbolByte) == 0;
}

constexpr std::array Fields{
    Plain<&ListedLayer::name>("Name"),
    Plain<&ListedLayer::code>("Code"),
    Plain<&ListedLayer::visible>("Visible"),
    Plain<&ListedLayer::selectable>("Selectable"),
    Plain<&ListedLayer::locked>("locked"),
    Plain<&ListedLayer::hitable>("Hitable"),
    Plain<&ListedLayer::snapRequired>("SnapRequired"),
    Plain<&ListedLayer::enquirable>("Enquirable"),
    ListedField{"Color", LineColourValue, TakeLineColour},
    Plain<&ListedLayer::fillForeColour>("FillForeColor"),
    Plain<&ListedLayer::fillBackColour>("FillBackColor"),
    Plain<&ListedLayer::outlineStyle>("OutlineStyle"),
    Plain<&ListedLayer::fillStyle>("FillStyle"),
    Plain<&ListedLayer::lineThickness>("LineThickness"),
    Plain<&ListedLayer::minVisScale>("MinVisScale"),
    Plain<&ListedLayer::maxVisScale>("MaxVisScale"),
    Plain<&ListedLayer::priority>("Priority"),
    Plain<&ListedLayer::rendererStyle>("Style"),
    Plain<&ListedLayer::overrideMode>("OverrideMode"),
    Plain<&ListedLayer::systemLayer>("SystemLayer"),
    Plain<&ListedLayer::pseudo>("Pseudo"),
};

} // namespace

ListedLayer ListedFields::Read(const IRecordset& row)
{
    ListedLayer layer;
    layer.id = Int32In(row.Field("LayerID")).value_or(0);
    for (const ListedField& field : Fields) {
        const Value value = row.Field(field.column);
        if (value.IsNull())
            continue;
        try {
            field.set(layer, value);
        } catch (const RunTimeError&) { // one value must not hide all layers
        }
    }
    return layer;
}

std::vector<ListedFields::ColumnValue> ListedFields::Columns(const ListedLayer& layer)
{
    std::vector<ColumnValue> columns;
    columns.reserve(Fields.size());
    for (const ListedField& field : Fields)
        columns.push_back({field.column, field.get(layer)});
    return columns;
}

std::vector<ListedFields::ColumnValue>
ListedFields::Differences(const ListedLayer& stored, const ListedLayer& wanted)
{
    if (stored == wanted)
        return {};
    std::vector<ColumnValue> columns;
    columns.reserve(Fields.size());
    for (const ListedField& field : Fields) {
        Value value = field.get(wanted);
        if (!value.IsIdenticalTo(field.get(stored)))
            columns.push_back({field.column, std::move(value)});
    }
    return columns;
}

} // namespace Orvane
