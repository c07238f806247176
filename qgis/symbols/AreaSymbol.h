// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/symbols/SymbolLook.h"

#include <optional>

class QgsRasterFillSymbolLayer;
class QgsSimpleFillSymbolLayer;
class QgsSimpleLineSymbolLayer;
class QgsSymbol;

namespace Orvane {

/// The symbol of an area that the layer control can describe: from bottom to top a pattern, a plain fill with
/// an outline, and a line, each at most once. Where there is a pattern, the plain fill draws its outline
/// alone; where there is a line, it has no outline. It is never removed, so what data define in it stays.
class AreaSymbol
{
public:
    /// Nothing if the symbol is not of that shape. symbol: outlives the result.
    static std::optional<AreaSymbol> Of(QgsSymbol& symbol);

    /// What it looks like. kept: the numbers that were last set; they only tell apart what looks the same,
    /// e.g. the back colour of a solid fill.
    SymbolLook Look(const SymbolLook& kept) const;

    /// Changes the columns that are set. kept: as for Look, before the change. Raises 9 (subscript out of
    /// range) for a fill style that is none.
    TakenColumns Change(const SymbolLook& changes, const SymbolLook& kept);

private:
    explicit AreaSymbol(QgsSymbol& symbol) : m_symbol(&symbol) { }
    bool TakeLayers();
    void ReadFill(SymbolLook& look, const SymbolLook& kept) const;
    void ReadPlainFill(SymbolLook& look, const SymbolLook& kept) const;
    bool IsFillFromData() const;
    bool HasPaint() const;
    void AddLine();
    void AddPlainFill();
    void SetFill(const SymbolLook& look);
    void SetPattern(const SymbolLook& look);
    void SetPlainFill(const SymbolLook& look);
    void RemovePattern();
    void RecolourPlainFill(qint32 colour);

    QgsSymbol* m_symbol;
    QgsRasterFillSymbolLayer* m_pattern = nullptr;
    QgsSimpleFillSymbolLayer* m_fill = nullptr;
    QgsSimpleLineSymbolLayer* m_line = nullptr;
};

} // namespace Orvane
