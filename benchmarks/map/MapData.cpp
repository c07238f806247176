// SPDX-License-Identifier: MIT
#include "benchmarks/map/MapData.h"

#include "mapkit/document/MapDocument.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <gdal_priv.h>
#include <numbers>
#include <ogrsf_frmts.h>
#include <random>

namespace Orvane::Benchmarks::MapData {

namespace {

constexpr double Side = 100000; // metres, of the square in which everything lies
constexpr double West = 400000;
constexpr double South = 5500000;
constexpr int Corners = 9;
constexpr int LayersBehindHidden = 20;

void Require(bool succeeded)
{
    if (!succeeded)
        qFatal("the data of the benchmark cannot be written: %s", CPLGetLastErrorMsg());
}

/// Areas that look random and are the same on every machine.
class AreaMaker
{
public:
    /// count: how many there will be; the more, the smaller they are.
    explicit AreaMaker(int count) : m_radius(Side / std::sqrt(double(count)) / 2) { }

    OGRPolygon Next()
    {
        const double x = West + Part() * Side;
        const double y = South + Part() * Side;
        OGRLinearRing ring;
        for (int corner = 0; corner < Corners; ++corner) {
            const double angle = 2 * std::numbers::pi * corner / Corners;
            const double radius = m_radius * (0.5 + Part());
            ring.addPoint(x + radius * std::cos(angle), y + radius * std::sin(angle));
        }
        ring.closeRings();
        OGRPolygon area;
        area.addRing(&ring);
        return area;
    }

private:
    double Part() { return double(m_random()) / double(std::mt19937::max()); }

    double m_radius;
    std::mt19937 m_random{7};
};

void FillLayer(OGRLayer& layer, int areaCount, AreaMaker& areas)
{
    for (int number = 0; number < areaCount; ++number) {
        const OGRPolygon area = areas.Next();
        OGRFeature feature(layer.GetLayerDefn());
        feature.SetField(0, number);
        Require(feature.SetGeometry(&area) == OGRERR_NONE && layer.CreateFeature(&feature) == OGRERR_NONE);
    }
}

NewLayer MapLayerOf(int number, const QString& file, int layersInFile)
{
    NewLayer layer;
    layer.name = QStringLiteral("Layer %1").arg(number);
    layer.path = file;
    layer.ogrLayer = LayerName(number % layersInFile);
    layer.values.color = 0x404040;
    layer.values.fillForeColor = (number * 7919) & 0xffffff;
    layer.values.fillBackColor = 0xffffff;
    return layer;
}

enum class Layers { Visible, Hidden };

void WriteMap(const QString& path, int layerCount, Layers layers)
{
    const bool isVisible = layers == Layers::Visible;
    const int layersInFile = isVisible ? layerCount : std::min(layerCount, LayersBehindHidden);
    const QString file = isVisible ? File(layerCount) : FileOfHidden(layerCount);
    MapDocument::Make(path, IfExists::Refuse, [&](MapDocument& map) {
        std::vector<NewLayer> added;
        added.reserve(size_t(layerCount));
        for (int number = 0; number < layerCount; ++number) {
            added.push_back(MapLayerOf(number, file, layersInFile));
            added.back().visible = isVisible;
        }
        map.SetSystem(System);
        map.AddLayers(added);
    });
}

} // namespace

QString PathOf(const QString& name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

QString LayerName(int number)
{
    return QStringLiteral("layer %1").arg(number);
}

void WriteFile(const QString& path, int layerCount, int areasOfLayer)
{
    GDALAllRegister();
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("GPKG");
    Require(driver);
    const GDALDatasetUniquePtr file(driver->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
    Require(file != nullptr);
    OGRSpatialReference system;
    Require(system.SetFromUserInput(System.toUtf8().constData()) == OGRERR_NONE);
    OGRFieldDefn field("number", OFTInteger);
    AreaMaker areas(layerCount * areasOfLayer);
    Require(file->StartTransaction() == OGRERR_NONE);
    for (int number = 0; number < layerCount; ++number) {
        OGRLayer* layer = file->CreateLayer(LayerName(number).toUtf8().constData(), &system, wkbPolygon);
        Require(layer && layer->CreateField(&field) == OGRERR_NONE);
        FillLayer(*layer, areasOfLayer, areas);
    }
    Require(file->CommitTransaction() == OGRERR_NONE);
}

QString File(int layerCount, int areasOfLayer)
{
    QString path = PathOf(QStringLiteral("%1 of %2.gpkg").arg(layerCount).arg(areasOfLayer));
    if (!QFile::exists(path))
        WriteFile(path, layerCount, areasOfLayer);
    return path;
}

QString Map(int layerCount)
{
    QString path = PathOf(QStringLiteral("%1.orvane").arg(layerCount));
    if (!QFile::exists(path))
        WriteMap(path, layerCount, Layers::Visible);
    return path;
}

QString FileOfHidden(int layerCount)
{
    return File(std::min(layerCount, LayersBehindHidden));
}

QString HiddenMap(int layerCount)
{
    QString path = PathOf(QStringLiteral("hidden %1.orvane").arg(layerCount));
    if (!QFile::exists(path))
        WriteMap(path, layerCount, Layers::Hidden);
    return path;
}

} // namespace Orvane::Benchmarks::MapData
