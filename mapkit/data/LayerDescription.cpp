// SPDX-License-Identifier: MIT
#include "mapkit/data/LayerDescription.h"

#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/data/GeometryKinds.h"
#include "mapkit/tables/RowGeometry.h"

#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

constexpr int RowsToMeasure = 100'000;

void AddExtent(Box& extent, const OGRGeometry& geometry)
{
    OGREnvelope envelope;
    geometry.getEnvelope(&envelope);
    if (!geometry.IsEmpty())
        extent.Add({envelope.MinX, envelope.MinY, envelope.MaxX, envelope.MaxY});
}

// kinds: the topmost first.
void SetKinds(SourceLayer& layer, const std::vector<FeatureKind>& kinds)
{
    layer.kinds = kinds;
    if (!kinds.empty())
        layer.kind = kinds.back();
}

// Layers of these formats come with the format, whether there is something in them or not.
bool MakesEmptyLayers(const QString& format)
{
    return QStringList{QStringLiteral("GPX"), QStringLiteral("KML"), QStringLiteral("LIBKML")}.contains(
        format);
}

// The points of tracks and routes are layers of their own.
QString WholeOfGpx(const QString& layer)
{
    return layer == QLatin1String("track_points") ? QStringLiteral("tracks")
        : layer == QLatin1String("route_points")  ? QStringLiteral("routes")
                                                  : QString();
}

} // namespace

SourceLayer DescribeLayer(OGRLayer& layer, const QString& format)
{
    SourceLayer found;
    found.name = QString::fromUtf8(layer.GetName());
    found.system = SystemText(layer.GetSpatialRef());
    found.isEmpty = MakesEmptyLayers(format) && !HasFeatures(layer);
    if (format == QLatin1String("GPX"))
        found.partsOf = WholeOfGpx(found.name);
    SetKinds(found, KindsOf(layer));
    return found;
}

SourceLayer DescribeTable(OGRLayer& table, const CoordinateColumns& columns)
{
    RowGeometry rows(*table.GetLayerDefn(), columns);
    KindCollector collector;
    SourceLayer found;
    for (int i = 0; i < RowsToMeasure && !rows.IsLacking(); ++i) {
        const OGRFeatureUniquePtr row(table.GetNextFeature());
        if (!row)
            break;
        if (const OGRGeometry* geometry = rows.Of(*row)) {
            collector.Add(*geometry);
            AddExtent(found.extent, *geometry);
        }
    }
    found.choice.columns = columns;
    SetKinds(found, collector.Kinds());
    return found;
}

} // namespace Orvane
