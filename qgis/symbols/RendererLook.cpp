// SPDX-License-Identifier: MIT
#include "qgis/symbols/RendererLook.h"

#include "qgis/symbols/SymbolParts.h"

#include <qgsrendercontext.h>
#include <qgsrenderer.h>
#include <qgssymbol.h>

#include <algorithm>

namespace Orvane {

namespace {

// The symbols of other renderers do not show how the layer looks.
bool ShowsItsSymbols(const QgsFeatureRenderer& renderer)
{
    static const QStringList known{
        QStringLiteral("singleSymbol"), QStringLiteral("categorizedSymbol"),
        QStringLiteral("graduatedSymbol"), QStringLiteral("RuleRenderer")};
    return known.contains(renderer.type());
}

QgsSymbolList SymbolsOf(const QgsFeatureRenderer* renderer)
{
    if (!renderer || !ShowsItsSymbols(*renderer))
        return {};
    QgsRenderContext context;
    return renderer->symbols(context);
}

bool IsAnySet(const SymbolLook& changes)
{
    return std::any_of(
        changes.values.begin(), changes.values.end(), [](const auto& value) { return value.has_value(); });
}

} // namespace

SymbolLook ReadRenderer(const QgsFeatureRenderer* renderer, const SymbolLook& kept)
{
    std::optional<SymbolLook> common;
    for (QgsSymbol* symbol : SymbolsOf(renderer)) {
        const SymbolLook look = ReadSymbol(*symbol, kept);
        if (common)
            Intersect(*common, look);
        else
            common = look;
    }
    return common.value_or(SymbolLook());
}

ChangedRenderer
ChangeRenderer(const QgsFeatureRenderer* renderer, const SymbolLook& changes, const SymbolLook& kept)
{
    ChangedRenderer changed;
    if (!renderer || !ShowsItsSymbols(*renderer) || !IsAnySet(changes))
        return changed;
    changed.renderer.reset(renderer->clone());
    for (QgsSymbol* symbol : SymbolsOf(changed.renderer.get()))
        changed.taken.Add(ChangeSymbol(*symbol, changes, kept));
    const auto& taken = changed.taken.taken;
    if (std::none_of(taken.begin(), taken.end(), [](bool column) { return column; }))
        changed.renderer.reset();
    return changed;
}

} // namespace Orvane
