// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerStyle.h"

#include <utility>
#include <vector>

namespace Orvane::Testing {

inline constexpr qint32 redNotForSymbols = qint32(0xFF0000FFU);

/// All slots are Null except those named.
inline LayerStyle StyleWith(const std::vector<std::pair<qint16, Value>>& known)
{
    LayerStyle style;
    for (const auto& [slot, value] : known)
        style.lsSet(slot, value);
    return style;
}

/// Every slot known.
inline LayerStyle FullStyle()
{
    return StyleWith(
        {{Slot::Name, QStringLiteral("Other")},
         {Slot::Code, qint32(99)},
         {Slot::Visible, false},
         {Slot::Selectable, false},
         {Slot::Locked, true},
         {Slot::Hitable, false},
         {Slot::SnapRequired, true},
         {Slot::Enquirable, false},
         {Slot::LineColour, qint32(0x0000FF)},
         {Slot::FillForeColour, qint32(1)},
         {Slot::FillBackColour, qint32(2)},
         {Slot::UseForSymbols, false},
         {Slot::OutlineStyle, qint32(3)},
         {Slot::FillStyle, qint32(4)},
         {Slot::LineThickness, qint16(-5)},
         {Slot::MinVisScale, qint32(6)},
         {Slot::MaxVisScale, qint32(7)},
         {Slot::RendererStyle, qint32(8)},
         {Slot::DrawPriority, qint32(9)}});
}

/// A style list in which nothing is selected.
inline Value NoSelectedStyle()
{
    return Value::Null();
}

} // namespace Orvane::Testing
