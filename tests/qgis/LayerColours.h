// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <qgsfillsymbol.h>
#include <qgssinglesymbolrenderer.h>
#include <qgsvectorlayer.h>

namespace Orvane::Testing {

/// For fixtures: the fill of a layer with one symbol.
struct LayerColours {
    static void Paint(QgsVectorLayer& layer, const QColor& colour)
    {
        auto* symbol = QgsFillSymbol::createSimple({{"color", colour.name()}, {"outline_color", "#000000"}});
        layer.setRenderer(new QgsSingleSymbolRenderer(symbol));
    }

    /// Invalid for a layer with another renderer.
    static QColor FillOf(const QgsVectorLayer& layer)
    {
        const auto* renderer = dynamic_cast<const QgsSingleSymbolRenderer*>(layer.renderer());
        return renderer ? renderer->symbol()->color() : QColor();
    }
};

} // namespace Orvane::Testing
