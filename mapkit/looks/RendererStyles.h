// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RendererStyle.h>

#include <vector>

namespace Orvane {

/// The ways of drawing that Layers.Style names, beside 0, which is "Standard": a sum of parts.
namespace RendererStyles {

inline constexpr qint32 Labelled = 1; ///< an attribute is written beside each feature
inline constexpr qint32 Graduated = 2; ///< coloured by the class of an attribute
inline constexpr qint32 Cased = 4; ///< lines have an edge in the line colour and a core in the fill colour

/// True when the style has the part. A number that no style has counts as "Standard".
constexpr bool Has(qint32 style, qint32 part)
{
    constexpr qint32 all = Labelled | Graduated | Cased;
    return (style & ~all) == 0 && (style & part) != 0;
}

/// What the layer control offers, named in the person's language.
std::vector<RendererStyle> Offered();

} // namespace RendererStyles

} // namespace Orvane
