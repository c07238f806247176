// SPDX-License-Identifier: MIT
#include "mapkit/drawing/LayerPainter.h"

#include "mapkit/drawing/FeaturePainter.h"
#include "mapkit/drawing/RasterPainter.h"

namespace Orvane {

namespace {

// Draws some of the features with one look. The passes of a layer are drawn one over another.
struct Pass {
    LayerLook look;
    std::function<bool(size_t feature)> isChosen; // empty for all
};

bool IsLine(const MapLayer& layer, size_t feature)
{
    return layer.features->Features()[feature].kind == FeatureKind::Line;
}

int ClassOf(const MapLayer& layer, size_t feature)
{
    return layer.classes->ClassOf(feature);
}

LayerLook ForLines(const LayerLook& look, const QPen& pen)
{
    LayerLook lines = look;
    lines.outline = pen;
    return lines;
}

// Filled areas keep the layer's outline; unfilled ones get the class's colour.
LayerLook AreasOfClass(const MapLayer& layer, const ClassLook& own)
{
    LayerLook look = layer.look;
    look.fill = own.fill;
    if (own.fill.style() == Qt::NoBrush)
        look.outline.setColor(own.colour);
    return look;
}

LayerLook LinesOfClass(const MapLayer& layer, const ClassLook& own)
{
    LayerLook look = ForLines(layer.look, layer.look.cased ? layer.look.cased->core : layer.look.outline);
    look.outline.setColor(own.colour);
    look.symbol = own.colour;
    return look;
}

// The areas of a class, or all that is not an area.
Pass PassOfClass(const MapLayer& layer, const ClassLook& own, int index, bool areas)
{
    return {
        areas ? AreasOfClass(layer, own) : LinesOfClass(layer, own), [&layer, index, areas](size_t feature) {
            const bool isArea = layer.features->Features()[feature].kind == FeatureKind::Area;
            return isArea == areas && ClassOf(layer, feature) == index;
        }};
}

std::vector<Pass> GraduatedPasses(const MapLayer& layer)
{
    std::vector<Pass> passes;
    for (const bool areas : {true, false}) {
        passes.push_back(PassOfClass(layer, UnclassedLook(layer.values), Classification::NoClass, areas));
        for (size_t i = 0; i < layer.classLooks.size(); ++i)
            passes.push_back(PassOfClass(layer, layer.classLooks[i], int(i), areas));
    }
    return passes;
}

// All casings are drawn below all cores, so that lines that meet are joined.
Pass CasingPass(const MapLayer& layer)
{
    return {ForLines(layer.look, layer.look.cased->casing), [&layer](size_t feature) {
                return IsLine(layer, feature);
            }};
}

std::vector<Pass> PlainPasses(const MapLayer& layer)
{
    if (!layer.look.cased)
        return {{layer.look, {}}};
    return {
        {layer.look, [&layer](size_t feature) { return !IsLine(layer, feature); }},
        {ForLines(layer.look, layer.look.cased->core),
         [&layer](size_t feature) { return IsLine(layer, feature); }}};
}

std::vector<Pass> PassesOf(const MapLayer& layer)
{
    std::vector<Pass> passes;
    if (layer.look.cased)
        passes.push_back(CasingPass(layer));
    const bool isGraduated = layer.classes && layer.classes->Count() > 0;
    for (Pass& pass : isGraduated ? GraduatedPasses(layer) : PlainPasses(layer))
        passes.push_back(std::move(pass));
    return passes;
}

} // namespace

void PaintLayer(
    QPainter& painter, const MapLayer& layer, const MapView& view, const std::atomic<bool>& cancelled)
{
    if (layer.raster)
        return PaintRaster(painter, *layer.raster, view, cancelled);
    for (const Pass& pass : PassesOf(layer))
        FeaturePainter(painter, view, pass.look).Paint(*layer.features, pass.isChosen, cancelled);
}

} // namespace Orvane
