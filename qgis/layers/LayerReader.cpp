// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerReader.h"

#include "qgis/layers/KeptValues.h"
#include "qgis/layers/LayerFlags.h"
#include "qgis/layers/LayerScales.h"
#include "qgis/layers/LayerSnap.h"
#include "qgis/layers/LayerTick.h"
#include "qgis/layers/OverrideMode.h"
#include "qgis/layers/SymbolColumns.h"

#include <qgsmaplayer.h>

#include <array>

namespace Orvane {

namespace {

void ReadFlags(LayerValues& values, const QgsMapLayer& layer, const LayerNodes& nodes)
{
    const PointingFlags pointing = ReadPointing(layer);
    SetValue(values, "Visible", ReadVisible(layer, nodes));
    SetValue(values, "Selectable", KeptValues::Flag(layer, "Selectable").value_or(true));
    SetValue(values, "locked", ReadLocked(layer));
    SetValue(values, "Hitable", pointing.hitable);
    SetValue(values, "SnapRequired", ReadSnap(layer, nodes.Project()));
    SetValue(values, "Enquirable", pointing.enquirable);
}

// QGIS 3.22 saves neither the flags, the scales nor the custom properties of annotations.
constexpr std::array forgotten{"Selectable",  "Hitable",     "Enquirable",
                               "MinVisScale", "MaxVisScale", "OverrideMode"};

bool IsForgotten(const QgsMapLayer& layer)
{
    return layer.type() == QgsMapLayerType::AnnotationLayer;
}

} // namespace

LayerValues ReadLayer(const QgsMapLayer& layer, const LayerNodes& nodes)
{
    LayerValues values = UnknownLayerValues();
    SetValue(values, "Code", KeptValues::Whole(layer, "Code").value_or(0)); // without one it is not listed
    if (!layer.isValid()) {
        SetValue(values, "Visible", ReadVisible(layer, nodes));
        return values;
    }
    const LayerScales scales = ReadScales(layer);
    ReadFlags(values, layer, nodes);
    ReadSymbolColumns(values, layer);
    SetValue(values, "MinVisScale", scales.minimum);
    SetValue(values, "MaxVisScale", scales.maximum);
    SetValue(values, "OverrideMode", ReadOverrideMode(layer, nodes));
    for (const char* column : forgotten) {
        if (IsForgotten(layer))
            SetValue(values, column, Value::Null());
    }
    return values;
}

} // namespace Orvane
