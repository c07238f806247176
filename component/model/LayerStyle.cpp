// SPDX-License-Identifier: MIT
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

std::size_t Checked(qint16 index)
{
    if (index < 0 || index >= LayerStyle::SlotCount)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
    return std::size_t(index);
}

} // namespace

const char* ColumnOf(qint16 slot)
{
    static constexpr std::array<const char*, LayerStyle::SlotCount> columns{
        "Name",          "Code",         "Visible",      "Selectable", "locked",
        "Hitable",       "SnapRequired", "Enquirable",   "Color",      "FillForeColor",
        "FillBackColor", "Color",        "OutlineStyle", "FillStyle",  "LineThickness",
        "MinVisScale",   "MaxVisScale",  "Style",        "Priority"};
    return columns[Checked(slot)];
}

LayerStyle::LayerStyle()
{
    m_values.fill(Value::Null());
}

Value LayerStyle::lsGet(qint16 index) const
{
    return m_values[Checked(index)];
}

bool LayerStyle::lsIsNull(qint16 index) const
{
    return m_values[Checked(index)].IsNull();
}

bool LayerStyle::Compare(qint16 index, const Value& value) const
{
    const Value& own = m_values[Checked(index)];
    if (own.IsNull() || value.IsNull())
        return own.IsNull() && value.IsNull();
    return ValuesEqual(own, value);
}

void LayerStyle::lsSet(qint16 index, const Value& value)
{
    m_values[Checked(index)] = value;
}

bool LayerStyle::Intersect(const LayerStyle& other)
{
    if (&other == this)
        return false; // an Empty slot would differ from itself
    bool hasErased = false;
    for (std::size_t slot = 0; slot < m_values.size(); ++slot) {
        const Value& theirs = other.m_values[slot];
        if (m_values[slot].IsNull() || theirs.IsNull())
            continue;
        if (ValuesEqual(m_values[slot], theirs))
            continue;
        m_values[slot] = Value::Null();
        hasErased = true;
    }
    return hasErased;
}

} // namespace Orvane
