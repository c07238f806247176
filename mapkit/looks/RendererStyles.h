// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RendererStyle.h>

#include <vector>

namespace Orvane {

/// The renderer styles that Layers.Style stores besides 0, which is "Standard". Each style is a sum of these
/// parts.
namespace RendererStyles {

inline constexpr qint32 Labelled = 1; ///< an attribute is shown next to each feature
inline constexpr qint32 Graduated = 2; ///< coloured by the class of an attribute
inline constexpr qint32 Cased = 4; ///< lines have an edge in the line colour and a core in the fill colour

/// True when the style has the part. A number that is not a style counts as "Standard".
constexpr bool Has(qint32 style, qint32 part)
{
    constexpr qint32 all = Labelled | Graduated | Cased;
    return (style & ~all) == 0 && (style & part) != 0;
}

/// The styles that the layer control offers, with translated names.
std::vector<RendererStyle> Offered();

} // namespace RendererStyles

} // namespace Orvane
