// SPDX-License-Identifier: MIT
#include "qgis/project/StyleLooks.h"

#include "qgis/layers/LayerReader.h"
#include "qgis/layers/LayerSilence.h"
#include "qgis/layers/LayerWriter.h"
#include "qgis/layers/OverrideMode.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QDomDocument>
#include <QScopeGuard>
#include <qgsmaplayerstylemanager.h>
#include <qgsproject.h>
#include <qgsrenderer.h>
#include <qgsvectorlayer.h>

#include <algorithm>
#include <memory>

namespace Orvane {

namespace {

QString GeometryName(const QgsVectorLayer& layer)
{
    switch (layer.geometryType()) {
    case QgsWkbTypes::PointGeometry:
        return QStringLiteral("Point");
    case QgsWkbTypes::LineGeometry:
        return QStringLiteral("LineString");
    case QgsWkbTypes::PolygonGeometry:
        return QStringLiteral("Polygon");
    default:
        return QStringLiteral("None");
    }
}

// A style can only be read by a layer of the same kind; an empty one emits nothing that anybody hears.
std::unique_ptr<QgsVectorLayer> Sample(const QgsVectorLayer& layer, const QgsMapLayerStyle& style)
{
    auto sample = std::make_unique<QgsVectorLayer>(
        GeometryName(layer) + QStringLiteral("?crs=EPSG:4326"), layer.name(), QStringLiteral("memory"));
    style.writeToLayer(sample.get());
    return sample;
}

void CopyColumns(LayerValues& to, const LayerValues& from)
{
    for (const std::string_view column : StyleLooks::Columns)
        SetValue(to, column, ValueOf(from, column));
}

void ReadScalesOf(LayerValues& row, const QgsMapLayerStyle& style)
{
    QDomDocument document;
    if (!document.setContent(style.xmlData()))
        return;
    const QDomElement root = document.documentElement();
    const bool isLimited = root.attribute(QStringLiteral("hasScaleBasedVisibilityFlag")).toInt() != 0;
    const auto scale
        = [&](const char* name) { return isLimited ? root.attribute(QLatin1String(name)).toDouble() : 0.0; };
    SetValue(row, "MinVisScale", scale("maxScale")); // QGIS calls the smaller number the maximum
    SetValue(row, "MaxVisScale", scale("minScale"));
}

bool IsBackdrop(const LayerValues& row)
{
    const Value& mode = ValueOf(row, "OverrideMode");
    return !mode.IsNull() && ToInt32(mode) == BackdropMode;
}

void SetBackdrop(LayerValues& row, bool isBackdrop)
{
    if (IsBackdrop(row) != isBackdrop)
        SetValue(row, "OverrideMode", isBackdrop ? BackdropMode : NormalMode);
}

} // namespace

LayerValues StyleLooks::Read(
    const QgsMapLayer& layer, const QgsProject& project, const LayerValues& present, const QString& style)
{
    if (style == layer.styleManager()->currentStyle())
        return present;
    LayerValues row = present;
    const QgsMapLayerStyle named = layer.styleManager()->style(style);
    if (const auto* vectors = qobject_cast<const QgsVectorLayer*>(&layer)) {
        const LayerValues read = ReadLayer(*Sample(*vectors, named), project);
        CopyColumns(row, read);
        SetBackdrop(row, IsBackdrop(read));
    } else {
        ReadScalesOf(row, named);
    }
    return row;
}

bool StyleLooks::AreAlike(const LayerValues& wanted, const LayerValues& row)
{
    const auto isAlike = [&](std::string_view column) {
        return ValueOf(wanted, column).IsNull() || ValueOf(row, column).IsNull()
            || !Differs(wanted, row, column);
    };
    return IsBackdrop(wanted) == IsBackdrop(row) && std::all_of(Columns.begin(), Columns.end(), isAlike);
}

QgsMapLayerStyle StyleLooks::Make(QgsMapLayer& layer, const QString& like, const LayerValues& wanted)
{
    const QgsProject none; // without the layer's node: a quick mode that ends would tick it
    const LayerSilence silence(&layer);
    QgsMapLayerStyle former;
    former.readFromLayer(&layer);
    const auto restore = qScopeGuard([&] { former.writeToLayer(&layer); });
    if (like != layer.styleManager()->currentStyle())
        layer.styleManager()->style(like).writeToLayer(&layer);
    const LayerValues before = ReadLayer(layer, none);
    LayerValues after = before;
    CopyColumns(after, wanted);
    SetBackdrop(after, IsBackdrop(wanted));
    WriteLayer(layer, none, before, after);
    QgsMapLayerStyle made;
    made.readFromLayer(&layer);
    return made;
}

} // namespace Orvane
