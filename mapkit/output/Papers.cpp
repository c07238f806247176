// SPDX-License-Identifier: MIT
#include "mapkit/output/Papers.h"

#include <array>

namespace Orvane::Papers {

std::span<const Paper> All()
{
    static const std::array papers{
        Paper{QStringLiteral("A5"), {148, 210}},          Paper{QStringLiteral("A4"), {210, 297}},
        Paper{QStringLiteral("A3"), {297, 420}},          Paper{QStringLiteral("A2"), {420, 594}},
        Paper{QStringLiteral("A1"), {594, 841}},          Paper{QStringLiteral("A0"), {841, 1189}},
        Paper{QStringLiteral("Letter"), {215.9, 279.4}},  Paper{QStringLiteral("Legal"), {215.9, 355.6}},
        Paper{QStringLiteral("Tabloid"), {279.4, 431.8}},
    };
    return papers;
}

} // namespace Orvane::Papers
