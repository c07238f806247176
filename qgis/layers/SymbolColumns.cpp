// SPDX-License-Identifier: MIT
#include "qgis/layers/SymbolColumns.h"

#include "qgis/layers/KeptValues.h"
#include "qgis/symbols/RendererLook.h"
#include "samples/StyleStrings.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <qgsrenderer.h>
#include <qgsvectorlayer.h>

namespace Orvane {

namespace {

constexpr quint32 TopByte = 0xFF000000U; // symbols keep their colours

constexpr std::array FillColumns{LookColumn::FillForeColor, LookColumn::FillBackColor, LookColumn::FillStyle};

const char* NameOf(LookColumn column)
{
    return LookColumnNames[std::size_t(column)];
}

SymbolLook KeptLook(const QgsMapLayer& layer)
{
    SymbolLook kept;
    for (std::size_t i = 0; i < kept.values.size(); ++i)
        kept.values[i] = KeptValues::Whole(layer, LookColumnNames[i]);
    return kept;
}

// A store may hold numbers that are no style.
bool IsStyle(const Value& value, const char* column)
{
    const double number = ToDouble(value);
    if (column == NameOf(LookColumn::FillStyle))
        return number >= SolidFill && number <= LastFillStyle;
    return column != NameOf(LookColumn::OutlineStyle) || (number >= 0 && number <= NoLineStyle);
}

// Where colours differ, the layer control joins black with a flag "for symbols" that the user has cleared.
bool IsFlagAlone(const LayerValues& before, const LayerValues& after)
{
    const Value& colour = ValueOf(after, NameOf(LookColumn::Color));
    return ValueOf(before, NameOf(LookColumn::Color)).IsNull() && colour.IsNumber()
        && ToInt32(colour) == TransparentColour;
}

SymbolLook ChangesOf(WrittenLayer& written, const LayerValues& before, const LayerValues& after)
{
    SymbolLook changes;
    for (std::size_t i = 0; i < changes.values.size(); ++i) {
        const Value& value = ValueOf(after, LookColumnNames[i]);
        if (value.IsNull() || !Differs(before, after, LookColumnNames[i]))
            continue;
        if (IsStyle(value, LookColumnNames[i]))
            changes.values[i] = ToInt32(value);
        else
            written.refused.emplace_back(LookColumnNames[i]);
    }
    if (IsFlagAlone(before, after))
        changes[LookColumn::Color].reset();
    return changes;
}

// Where the fills of markers differ, one colour for all symbols would merge the classes, for good.
void SpareFills(WrittenLayer& written, SymbolLook& changes, const SymbolLook& now)
{
    auto& colour = changes[LookColumn::Color];
    if (!colour || !now[LookColumn::Color] || now[LookColumn::FillForeColor]
        || (quint32(*colour) & TopByte) != 0)
        return;
    written.refused.emplace_back(NameOf(LookColumn::Color));
    colour = qint32(quint32(*colour) | TopByte);
}

// A hollow fill has one colour for the whole layer, the back, in place of those of the classes.
void SpareClasses(WrittenLayer& written, SymbolLook& changes, const SymbolLook& now)
{
    if (now[LookColumn::FillForeColor] || changes[LookColumn::FillStyle] != HollowFill)
        return;
    written.refused.emplace_back(NameOf(LookColumn::FillStyle));
    changes[LookColumn::FillStyle].reset();
}

void Keep(QgsMapLayer& layer, const SymbolLook& look, LookColumn column)
{
    if (look[column])
        KeptValues::Keep(layer, NameOf(column), *look[column]);
}

// A fill means what it does by its three columns together.
void KeepChanges(QgsMapLayer& layer, const SymbolLook& look, const SymbolLook& changes)
{
    if (changes[LookColumn::Color])
        Keep(layer, look, LookColumn::Color);
    const bool fills = changes[LookColumn::FillForeColor] || changes[LookColumn::FillBackColor]
        || changes[LookColumn::FillStyle];
    for (const LookColumn column : FillColumns) {
        if (fills)
            Keep(layer, look, column);
    }
}

void NoteRefusals(WrittenLayer& written, const SymbolLook& changes, const TakenColumns& taken)
{
    for (std::size_t i = 0; i < changes.values.size(); ++i) {
        if (changes.values[i] && !taken.taken[i])
            written.refused.emplace_back(LookColumnNames[i]);
    }
}

void SetRenderer(
    QgsVectorLayer& layer, std::unique_ptr<QgsFeatureRenderer> renderer, const RendererSetter& setter)
{
    if (setter)
        setter(layer, std::move(renderer));
    else
        layer.setRenderer(renderer.release());
}

} // namespace

void ReadSymbolColumns(LayerValues& values, const QgsMapLayer& layer)
{
    const auto* vectors = qobject_cast<const QgsVectorLayer*>(&layer);
    if (!vectors)
        return;
    const SymbolLook look = ReadRenderer(vectors->renderer(), KeptLook(layer));
    for (std::size_t i = 0; i < look.values.size(); ++i) {
        if (look.values[i])
            SetValue(values, LookColumnNames[i], *look.values[i]);
    }
}

void WriteSymbolColumns(
    WrittenLayer& written, QgsMapLayer& layer, const LayerValues& before, const LayerValues& after,
    const RendererSetter& setRenderer)
{
    SymbolLook changes = ChangesOf(written, before, after);
    auto* vectors = qobject_cast<QgsVectorLayer*>(&layer);
    if (!vectors)
        return NoteRefusals(written, changes, {});
    const SymbolLook kept = KeptLook(layer);
    if (vectors->geometryType() == QgsWkbTypes::PointGeometry)
        SpareFills(written, changes, ReadRenderer(vectors->renderer(), kept));
    if (vectors->renderer() && vectors->renderer()->type() != QLatin1String("singleSymbol"))
        SpareClasses(written, changes, ReadRenderer(vectors->renderer(), kept));
    ChangedRenderer changed = ChangeRenderer(vectors->renderer(), changes, kept);
    NoteRefusals(written, changes, changed.taken);
    if (!changed.renderer)
        return;
    KeepChanges(layer, Merged(ReadRenderer(vectors->renderer(), kept), changes), changes);
    SetRenderer(*vectors, std::move(changed.renderer), setRenderer);
}

} // namespace Orvane
