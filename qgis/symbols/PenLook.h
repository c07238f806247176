// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/symbols/SymbolLook.h"

class QgsSimpleFillSymbolLayer;
class QgsSimpleLineSymbolLayer;
class QgsSimpleMarkerSymbolLayer;

namespace Orvane {

/// Of a SymbolLook, the columns Color (top byte 0), OutlineStyle and LineThickness of what draws a line. A
/// width is read as whole millimetres, otherwise as the nearest number of pixels at 96 per inch; one in map
/// units is not known. What data define is not known either.
SymbolLook ReadPen(const QgsSimpleLineSymbolLayer& line);
SymbolLook ReadPen(const QgsSimpleFillSymbolLayer& outline);
SymbolLook ReadPen(const QgsSimpleMarkerSymbolLayer& outline);

/// Changes the three columns as far as they are set; a transparent line colour counts as that colour.
/// Outlines of areas and markers know the line styles 0 to 4 and 15 only, and leave the others out.
TakenColumns ChangePen(QgsSimpleLineSymbolLayer& line, const SymbolLook& changes);
TakenColumns ChangePen(QgsSimpleFillSymbolLayer& outline, const SymbolLook& changes);
TakenColumns ChangePen(QgsSimpleMarkerSymbolLayer& outline, const SymbolLook& changes);

/// True for the line styles that only a line can have, not the outline of an area.
bool NeedsDashes(const std::optional<qint32>& lineStyle);

} // namespace Orvane
