// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/symbols/SymbolLook.h"

class QgsSymbol;

namespace Orvane {

/// What a symbol of points, lines or areas looks like; where its symbol layers differ, nothing. A symbol with
/// other layers than simple ones is not known at all. A marker has a line colour (its outline), a fill fore
/// colour, a line style and a thickness; its colour is one for symbols when outline and fill are alike. kept:
/// the numbers that were last set for the layer; they only tell apart what looks the same.
SymbolLook ReadSymbol(QgsSymbol& symbol, const SymbolLook& kept);

/// Changes the columns that are set, in all simple layers of the symbol, and says which of them it could.
/// Raises 9 (subscript out of range) for a fill style that is none.
TakenColumns ChangeSymbol(QgsSymbol& symbol, const SymbolLook& changes, const SymbolLook& kept);

} // namespace Orvane
