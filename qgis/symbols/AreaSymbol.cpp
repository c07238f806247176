// SPDX-License-Identifier: MIT
#include "qgis/symbols/AreaSymbol.h"

#include "qgis/symbols/FillPicture.h"
#include "qgis/symbols/PenLook.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/LayerValues.h>

#include <qgsfillsymbollayer.h>
#include <qgslinesymbollayer.h>
#include <qgssymbol.h>

#include <memory>

namespace Orvane {

namespace {

constexpr qint32 DefaultBack = TransparentColour; // hollow then shows what lies below, as in QGIS

bool IsPlain(qint32 fillStyle)
{
    return fillStyle == SolidFill || fillStyle == HollowFill;
}

bool IsClear(const SymbolLook& look, LookColumn column)
{
    return look[column] && IsTransparent(*look[column]);
}

bool AreBothClear(const SymbolLook& look)
{
    return IsClear(look, LookColumn::FillForeColor) && IsClear(look, LookColumn::FillBackColor);
}

bool ChangesFill(const SymbolLook& changes)
{
    return changes[LookColumn::FillForeColor] || changes[LookColumn::FillBackColor]
        || changes[LookColumn::FillStyle];
}

template <typename Layer> Layer* TakeNext(const QgsSymbolLayerList& layers, int& next)
{
    Layer* layer = next < layers.size() ? dynamic_cast<Layer*>(layers.at(next)) : nullptr;
    if (layer)
        ++next;
    return layer;
}

// The colour of a plain fill that draws the look; nothing if it draws none.
std::optional<qint32> PaintOf(const SymbolLook& look)
{
    if (look[LookColumn::FillStyle] == HollowFill)
        return IsClear(look, LookColumn::FillBackColor) ? std::nullopt : look[LookColumn::FillBackColor];
    return IsClear(look, LookColumn::FillForeColor) ? std::nullopt : look[LookColumn::FillForeColor];
}

qint32 PlainColour(const std::optional<qint32>& colour)
{
    return colour.value_or(0) & 0xFFFFFF;
}

// The fore colour of a hollow fill, which QGIS does not show. colour: of the plain fill, which has the back
// colour while it is drawn.
qint32 HiddenFore(const SymbolLook& kept, qint32 colour, bool drawn)
{
    const bool usesKept = drawn || IsClear(kept, LookColumn::FillForeColor);
    return usesKept ? kept[LookColumn::FillForeColor].value_or(colour) : colour;
}

} // namespace

std::optional<AreaSymbol> AreaSymbol::Of(QgsSymbol& symbol)
{
    AreaSymbol area(symbol);
    if (symbol.type() != Qgis::SymbolType::Fill || !area.TakeLayers())
        return std::nullopt;
    return area;
}

bool AreaSymbol::TakeLayers()
{
    const QgsSymbolLayerList layers = m_symbol->symbolLayers();
    int next = 0;
    m_pattern = TakeNext<QgsRasterFillSymbolLayer>(layers, next);
    m_fill = TakeNext<QgsSimpleFillSymbolLayer>(layers, next);
    m_line = TakeNext<QgsSimpleLineSymbolLayer>(layers, next);
    if (next != layers.size() || (!m_fill && !m_line))
        return false;
    if (m_fill && m_line && m_fill->strokeStyle() != Qt::NoPen)
        return false;
    if (m_pattern && m_fill && HasPaint())
        return false;
    if (m_pattern && !FillPicture::Decoded(m_pattern->imageFilePath()))
        return false;
    for (const QgsSymbolLayer* layer : layers) {
        if (!layer->enabled())
            return false;
    }
    return true;
}

bool AreaSymbol::HasPaint() const
{
    return m_fill && m_fill->brushStyle() != Qt::NoBrush && m_fill->fillColor().alpha() > 0;
}

bool AreaSymbol::IsFillFromData() const
{
    return m_fill && m_fill->dataDefinedProperties().isActive(QgsSymbolLayer::PropertyFillColor);
}

SymbolLook AreaSymbol::Look(const SymbolLook& kept) const
{
    SymbolLook look = m_line ? ReadPen(*m_line) : ReadPen(*m_fill);
    ReadFill(look, kept);
    if (auto& colour = look[LookColumn::Color])
        *colour |= qint32(quint32(kept[LookColumn::Color].value_or(0)) & 0xFF000000U);
    return look;
}

void AreaSymbol::ReadFill(SymbolLook& look, const SymbolLook& kept) const
{
    if (!m_pattern)
        return ReadPlainFill(look, kept);
    const std::optional<FillPicture> picture = FillPicture::Decoded(m_pattern->imageFilePath());
    look[LookColumn::FillStyle] = picture->style;
    look[LookColumn::FillForeColor] = picture->fore;
    look[LookColumn::FillBackColor] = picture->back;
}

void AreaSymbol::ReadPlainFill(SymbolLook& look, const SymbolLook& kept) const
{
    const bool drawn = HasPaint();
    const qint32 keptBack = kept[LookColumn::FillBackColor].value_or(DefaultBack);
    const bool hollow = drawn
        ? kept[LookColumn::FillStyle] == HollowFill && !IsTransparent(keptBack)
        : kept[LookColumn::FillStyle] != SolidFill || !IsClear(kept, LookColumn::FillForeColor);
    const qint32 colour = m_fill ? BgrFromQColor(m_fill->fillColor()) : 0;
    const qint32 shown = drawn ? colour : TransparentColour;
    if (!drawn || m_fill->brushStyle() == Qt::SolidPattern)
        look[LookColumn::FillStyle] = hollow ? HollowFill : SolidFill;
    look[LookColumn::FillBackColor] = hollow ? shown : keptBack;
    look[LookColumn::FillForeColor] = hollow ? HiddenFore(kept, colour, drawn) : shown;
    if (drawn && IsFillFromData())
        look[hollow ? LookColumn::FillBackColor : LookColumn::FillForeColor].reset();
}

TakenColumns AreaSymbol::Change(const SymbolLook& changes, const SymbolLook& kept)
{
    const SymbolLook look = Merged(Look(kept), changes);
    if (NeedsDashes(changes[LookColumn::OutlineStyle]) && !m_line)
        AddLine();
    TakenColumns taken = m_line ? ChangePen(*m_line, changes) : ChangePen(*m_fill, changes);
    if (ChangesFill(changes) || (changes[LookColumn::Color] && AreBothClear(look)))
        SetFill(look);
    for (const LookColumn column :
         {LookColumn::FillForeColor, LookColumn::FillBackColor, LookColumn::FillStyle}) {
        if (changes[column])
            taken.Add(column);
    }
    return taken;
}

// Only a line has dashes of any length. What data define of the outline moves with it.
void AreaSymbol::AddLine()
{
    auto line = std::make_unique<QgsSimpleLineSymbolLayer>(m_fill->strokeColor(), m_fill->strokeWidth());
    line->setWidthUnit(m_fill->strokeWidthUnit());
    line->setWidthMapUnitScale(m_fill->strokeWidthMapUnitScale());
    line->setPenJoinStyle(m_fill->penJoinStyle());
    line->setPenCapStyle(Qt::FlatCap);
    line->setDataDefinedProperties(m_fill->dataDefinedProperties());
    m_fill->setStrokeStyle(Qt::NoPen);
    m_line = line.release();
    m_symbol->appendSymbolLayer(m_line);
}

void AreaSymbol::AddPlainFill()
{
    m_fill = new QgsSimpleFillSymbolLayer;
    m_fill->setStrokeStyle(Qt::NoPen);
    m_fill->setBrushStyle(Qt::NoBrush);
    m_symbol->insertSymbolLayer(0, m_fill);
}

void AreaSymbol::SetFill(const SymbolLook& look)
{
    if (!m_fill)
        AddPlainFill();
    const std::optional<qint32> style = look[LookColumn::FillStyle];
    if (style && !IsPlain(*style))
        return SetPattern(look);
    RemovePattern();
    if (style)
        return SetPlainFill(look);
    if (const auto fore = look[LookColumn::FillForeColor]; fore && !IsTransparent(*fore))
        RecolourPlainFill(*fore); // in a brush that has no number here
}

void AreaSymbol::SetPattern(const SymbolLook& look)
{
    const FillPicture picture{
        *look[LookColumn::FillStyle],
        look[LookColumn::FillForeColor].value_or(BgrFromQColor(m_fill->fillColor())),
        look[LookColumn::FillBackColor].value_or(DefaultBack)};
    const QString encoded = picture.Encoded(PlainColour(look[LookColumn::Color]));
    if (!m_pattern) {
        m_pattern = new QgsRasterFillSymbolLayer;
        m_pattern->setCoordinateMode(QgsRasterFillSymbolLayer::Viewport); // neighbours join
        m_pattern->setWidth(FillPictureWidth);
        m_pattern->setWidthUnit(QgsUnitTypes::RenderPoints);
        m_symbol->insertSymbolLayer(0, m_pattern);
    }
    m_pattern->setImageFilePath(encoded);
    if (!IsTransparent(picture.fore))
        RecolourPlainFill(picture.fore);
    m_fill->setBrushStyle(Qt::NoBrush);
}

void AreaSymbol::SetPlainFill(const SymbolLook& look)
{
    const std::optional<qint32> paint = PaintOf(look);
    const std::optional<qint32> colour = paint ? paint : look[LookColumn::FillForeColor];
    if (colour && !IsTransparent(*colour))
        RecolourPlainFill(PlainColour(colour));
    const bool draws = paint || (IsFillFromData() && look[LookColumn::FillStyle] == SolidFill);
    m_fill->setBrushStyle(draws ? Qt::SolidPattern : Qt::NoBrush);
}

void AreaSymbol::RemovePattern()
{
    if (m_pattern)
        m_symbol->deleteSymbolLayer(0);
    m_pattern = nullptr;
}

// Keeps how much shines through, unless it was nothing at all.
void AreaSymbol::RecolourPlainFill(qint32 colour)
{
    QColor result = QColorFromBgr(colour);
    const int alpha = m_fill->fillColor().alpha();
    result.setAlpha(alpha > 0 ? alpha : 255);
    m_fill->setFillColor(result);
}

} // namespace Orvane
