// SPDX-License-Identifier: MIT
#include "component/model/LayerRowValues.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QHash>

#include <bit>

namespace Orvane {

namespace {

constexpr std::array ColumnNames{
    "Code",          "Visible",     "Selectable",    "locked",        "Hitable",      "SnapRequired",
    "Enquirable",    "Color",       "FillForeColor", "FillBackColor", "OutlineStyle", "FillStyle",
    "LineThickness", "MinVisScale", "MaxVisScale",   "Priority",      "Style",        "OverrideMode"};

quint64 Mixed(quint64 sum, quint64 next)
{
    return (sum ^ next) * 0x9E3779B97F4A7C15U + (sum >> 29);
}

quint64 NumberFor(const Value& value)
{
    if (value.IsNull() || value.IsEmpty())
        return quint64(value.Kind());
    if (const auto* text = value.Get<QString>())
        return quint64(qHash(*text, size_t(1)));
    return std::bit_cast<quint64>(ToDouble(value));
}

} // namespace

const char* NameOf(RowColumn column)
{
    return ColumnNames[std::size_t(column)];
}

LayerRowValues::LayerRowValues(const IRecordset& row)
{
    for (std::size_t column = 0; column < Count; ++column)
        m_values[column] = row.Field(ColumnNames[column]);
}

quint64 LayerRowValues::Fingerprint() const
{
    quint64 sum = Count;
    for (const Value& value : m_values)
        sum = Mixed(sum, NumberFor(value));
    return sum;
}

} // namespace Orvane
