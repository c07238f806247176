// SPDX-License-Identifier: MIT
#include "qgis/symbols/SymbolParts.h"

#include "qgis/symbols/AreaSymbol.h"
#include "qgis/symbols/PenLook.h"
#include "samples/BgrColour.h"

#include <qgsfillsymbollayer.h>
#include <qgslinesymbollayer.h>
#include <qgsmarkersymbollayer.h>
#include <qgssymbol.h>

namespace Orvane {

namespace {

constexpr quint32 TopByte = 0xFF000000U;

bool IsForSymbols(qint32 colour)
{
    return (quint32(colour) & TopByte) == 0;
}

qint32 WithTopByteOf(qint32 colour, const std::optional<qint32>& kept)
{
    return qint32(quint32(colour) | (quint32(kept.value_or(0)) & TopByte));
}

SymbolLook LookOfLine(const QgsSimpleLineSymbolLayer& line, const SymbolLook& kept)
{
    SymbolLook look = ReadPen(line);
    if (auto& colour = look[LookColumn::Color])
        *colour = WithTopByteOf(*colour, kept[LookColumn::Color]);
    return look;
}

SymbolLook LookOfMarker(const QgsSimpleMarkerSymbolLayer& marker, const SymbolLook& kept)
{
    SymbolLook look = ReadPen(marker);
    const QColor fill = marker.fillColor();
    if (!marker.dataDefinedProperties().isActive(QgsSymbolLayer::PropertyFillColor))
        look[LookColumn::FillForeColor] = fill.alpha() > 0 ? BgrFromQColor(fill) : TransparentColour;
    auto& colour = look[LookColumn::Color];
    if (colour && colour == look[LookColumn::FillForeColor])
        colour = WithTopByteOf(*colour, kept[LookColumn::Color]);
    else if (colour)
        colour = qint32(quint32(*colour) | TopByte);
    return look;
}

SymbolLook LookOfLayer(const QgsSymbolLayer& layer, const SymbolLook& kept)
{
    if (const auto* line = dynamic_cast<const QgsSimpleLineSymbolLayer*>(&layer))
        return LookOfLine(*line, kept);
    if (const auto* marker = dynamic_cast<const QgsSimpleMarkerSymbolLayer*>(&layer))
        return LookOfMarker(*marker, kept);
    return {};
}

QColor FillColour(const QColor& old, qint32 colour)
{
    if (IsTransparent(colour))
        return QColor(old.red(), old.green(), old.blue(), 0);
    QColor result = QColorFromBgr(colour);
    result.setAlpha(old.alpha() > 0 ? old.alpha() : 255);
    return result;
}

template <typename Layer> TakenColumns ChangeFillColour(Layer& layer, const SymbolLook& changes)
{
    TakenColumns taken;
    if (const auto fore = changes[LookColumn::FillForeColor]) {
        layer.setFillColor(FillColour(layer.fillColor(), *fore));
        taken.Add(LookColumn::FillForeColor);
    }
    return taken;
}

TakenColumns ChangeMarker(QgsSimpleMarkerSymbolLayer& marker, const SymbolLook& changes)
{
    TakenColumns taken = ChangePen(marker, changes);
    if (const auto colour = changes[LookColumn::Color]; colour && IsForSymbols(*colour))
        marker.setFillColor(FillColour(marker.fillColor(), *colour));
    taken.Add(ChangeFillColour(marker, changes));
    return taken;
}

TakenColumns ChangeLayer(QgsSymbolLayer& layer, const SymbolLook& changes)
{
    if (auto* line = dynamic_cast<QgsSimpleLineSymbolLayer*>(&layer))
        return ChangePen(*line, changes);
    if (auto* marker = dynamic_cast<QgsSimpleMarkerSymbolLayer*>(&layer))
        return ChangeMarker(*marker, changes);
    TakenColumns taken;
    if (auto* fill = dynamic_cast<QgsSimpleFillSymbolLayer*>(&layer)) {
        taken.Add(ChangePen(*fill, changes));
        taken.Add(ChangeFillColour(*fill, changes));
    }
    return taken;
}

} // namespace

SymbolLook ReadSymbol(QgsSymbol& symbol, const SymbolLook& kept)
{
    if (const std::optional<AreaSymbol> area = AreaSymbol::Of(symbol))
        return area->Look(kept);
    std::optional<SymbolLook> common;
    for (const QgsSymbolLayer* layer : symbol.symbolLayers()) {
        const SymbolLook look = LookOfLayer(*layer, kept);
        if (common)
            Intersect(*common, look);
        else
            common = look;
    }
    return common.value_or(SymbolLook());
}

TakenColumns ChangeSymbol(QgsSymbol& symbol, const SymbolLook& changes, const SymbolLook& kept)
{
    if (std::optional<AreaSymbol> area = AreaSymbol::Of(symbol))
        return area->Change(changes, kept);
    TakenColumns taken;
    for (QgsSymbolLayer* layer : symbol.symbolLayers())
        taken.Add(ChangeLayer(*layer, changes));
    return taken;
}

} // namespace Orvane
