// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

#include <QString>
#include <qgsmaplayerstyle.h>

#include <array>
#include <string_view>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

/// How a layer looks in its named styles, whichever of them is current.
namespace StyleLooks {

/// The columns that a style says, besides whether it is a backdrop.
inline constexpr std::array<std::string_view, 8> Columns{"Color",        "FillForeColor", "FillBackColor",
                                                         "OutlineStyle", "FillStyle",     "LineThickness",
                                                         "MinVisScale",  "MaxVisScale"};

/// The row of the layer as it would be with that style, which must be one of its styles. present: its row
/// with the current style. Of a layer without vectors only the scales differ.
LayerValues
Read(const QgsMapLayer& layer, const QgsProject& project, const LayerValues& present, const QString& style);

/// True if the two rows look alike. What `wanted` does not know is not compared.
bool AreAlike(const LayerValues& wanted, const LayerValues& row);

/// A style like that one, which must be one of the layer's, but with the wanted looks as far as the layer
/// takes them. The layer itself and its tick stay as they are, and emit nothing. Raises what WriteLayer
/// raises.
QgsMapLayerStyle Make(QgsMapLayer& layer, const QString& like, const LayerValues& wanted);

} // namespace StyleLooks

} // namespace Orvane
