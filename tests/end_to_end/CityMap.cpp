// SPDX-License-Identifier: MIT
#include "end_to_end/CityMap.h"

#include "examples/sample_maps/GeoPackageWriter.h"
#include "examples/sample_maps/SampleMap.h"
#include "mapkit/document/MapDocument.h"
#include "samples/BgrColour.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/QuickModes.h>
#include <OrvaneShellLib/Transaction.h>

#include <QPointF>

#include <array>

namespace Orvane::Testing {

namespace {

constexpr auto System = "EPSG:32632";
constexpr int Columns = 10; // of districts, and of plots in one
constexpr double Width = 180; // metres, of a district
constexpr double Height = 110;
constexpr int PipePixels = 3;

QPointF CornerOf(int district)
{
    return {500'000 + district % Columns * Width, 5'300'000 + double(district / Columns) * Height};
}

bool HasPipe(int district)
{
    return district < CityMap::Pipes;
}

void AddPlot(FeatureSet& plots, int district, int plot)
{
    const double width = Width / Columns;
    const double height = Height * Columns / CityMap::LayersInDistrict;
    const QPointF corner
        = CornerOf(district) + QPointF(plot % Columns * width, double(plot / Columns) * height);
    const std::array<QPointF, 5> ring{
        corner, corner + QPointF(width, 0), corner + QPointF(width, height), corner + QPointF(0, height),
        corner};
    plots.BeginFeature(FeatureKind::Area);
    plots.AddPart(ring);
}

void AddPipe(FeatureSet& pipes, int district)
{
    const QPointF start = CornerOf(district) + QPointF(0, Height / 2);
    const std::array<QPointF, 2> line{start, start + QPointF(Width, 0)};
    pipes.BeginFeature(FeatureKind::Line);
    pipes.AddPart(line);
}

void WriteData(const QString& path)
{
    FeatureSet plots;
    FeatureSet pipes;
    for (int district = 0; district < CityMap::Districts; ++district) {
        for (int plot = 0; plot < CityMap::LayersInDistrict; ++plot)
            AddPlot(plots, district, plot);
        AddPipe(pipes, district);
    }
    GeoPackageWriter writer(path, QLatin1String(System));
    writer.AddLayer(QStringLiteral("plots"), plots);
    writer.AddLayer(QStringLiteral("pipes"), pipes);
}

NewLayer Pipe(int district)
{
    NewLayer layer;
    layer.name = QStringLiteral("Water pipe %1").arg(district + 1);
    layer.ogrLayer = QStringLiteral("pipes");
    layer.filter = QStringLiteral("fid = %1").arg(district + 1);
    layer.priority = 20;
    layer.values.lineThickness = -PipePixels;
    return layer;
}

NewLayer Plot(int district, int plot)
{
    NewLayer layer;
    layer.name = QStringLiteral("Plot %1-%2").arg(district + 1).arg(plot + 1);
    layer.ogrLayer = QStringLiteral("plots");
    layer.filter = QStringLiteral("fid = %1").arg(district * CityMap::LayersInDistrict + plot + 1);
    layer.values.color = Bgr(0xffb0b0b0);
    layer.values.fillForeColor = Bgr(CityMap::PlotColour);
    return layer;
}

void AddDistrict(MapDocument& map, int district, const QString& data)
{
    const qint32 groupID = map.AddGroup(QStringLiteral("District %1").arg(district + 1), false);
    for (int number = 0; number < CityMap::LayersInDistrict; ++number) {
        const bool isPipe = HasPipe(district) && number + 1 == CityMap::LayersInDistrict;
        NewLayer layer = isPipe ? Pipe(district) : Plot(district, number);
        layer.path = data;
        map.AddMember(groupID, map.AddLayer(layer));
    }
}

} // namespace

void CityMap::Make(const QString& mapPath)
{
    const QString data = GeneratedDataPath(mapPath);
    WriteData(data);
    const auto map = MapDocument::Create(mapPath);
    map->SetSystem(QLatin1String(System));
    Transaction transaction(map->Database());
    for (int district = 0; district < Districts; ++district)
        AddDistrict(*map, district, data);
    const auto setMode = [&](qint16 mode, const QString& names) {
        map->Database().Execute(
            QStringLiteral("UPDATE Layers SET OverrideMode = ?1 WHERE Name LIKE ?2"), {mode, names});
    };
    setMode(*OverrideModeFromQuickMode(QuickMode::Hidden), QStringLiteral("Plot 7-1_"));
    setMode(*OverrideModeFromQuickMode(QuickMode::Backdrop), QStringLiteral("Plot 8-1"));
    transaction.Commit();
}

} // namespace Orvane::Testing
