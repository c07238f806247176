// SPDX-License-Identifier: MIT
#include "examples/sample_maps/GeoPackageWriter.h"

#include "mapkit/common/GdalErrors.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QFile>

#include <gdal_alg.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

constexpr int SampleUnwritable = 10103;

std::unique_ptr<GDALDataset> CreateWith(const char* driverName, const QByteArray& path, int columns, int rows)
{
    GDALAllRegister();
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(driverName);
    const GDALDataType type = columns > 0 ? GDT_Float32 : GDT_Unknown;
    GDALDataset* made = driver
        ? driver->Create(path.constData(), columns, rows, columns > 0 ? 1 : 0, type, nullptr)
        : nullptr;
    return std::unique_ptr<GDALDataset>(made);
}

OGRwkbGeometryType TypeOf(const FeatureSet& features)
{
    const FeatureKind kind
        = features.Features().empty() ? FeatureKind::Line : features.Features().front().kind;
    if (kind == FeatureKind::Point)
        return wkbPoint;
    return kind == FeatureKind::Line ? wkbLineString : wkbPolygon;
}

void FillCurve(OGRSimpleCurve& curve, std::span<const QPointF> points)
{
    for (const QPointF& point : points)
        curve.addPoint(point.x(), point.y());
}

std::unique_ptr<OGRGeometry> GeometryOf(const FeatureSet& features, const FeatureSet::Feature& feature)
{
    const std::span<const QPointF> first = features.Part(feature.firstPart);
    if (feature.kind == FeatureKind::Point)
        return std::make_unique<OGRPoint>(first[0].x(), first[0].y());
    if (feature.kind == FeatureKind::Line) {
        auto line = std::make_unique<OGRLineString>();
        FillCurve(*line, first);
        return line;
    }
    auto polygon = std::make_unique<OGRPolygon>();
    for (quint32 part = feature.firstPart; part < feature.endPart; ++part) {
        OGRLinearRing ring;
        FillCurve(ring, features.Part(part));
        ring.closeRings();
        polygon->addRing(&ring);
    }
    return polygon;
}

} // namespace

GeoPackageWriter::GeoPackageWriter(const QString& path, const QString& system)
    : m_path(path), m_system(std::make_unique<OGRSpatialReference>())
{
    const GdalErrors quiet;
    QFile::remove(path);
    m_dataset = CreateWith("GPKG", path.toUtf8(), 0, 0);
    Check(m_dataset && m_system->SetFromUserInput(system.toUtf8().constData()) == OGRERR_NONE);
    m_system->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    Check(m_dataset->StartTransaction() == OGRERR_NONE);
}

GeoPackageWriter::~GeoPackageWriter()
{
    const GdalErrors quiet;
    if (m_dataset)
        m_dataset->CommitTransaction();
}

void GeoPackageWriter::AddLayer(const QString& name, const FeatureSet& features)
{
    const GdalErrors quiet;
    OGRLayer* layer = m_dataset->CreateLayer(name.toUtf8().constData(), m_system.get(), TypeOf(features));
    Check(layer);
    for (const FeatureSet::Feature& feature : features.Features()) {
        OGRFeature row(layer->GetLayerDefn());
        row.SetGeometryDirectly(GeometryOf(features, feature).release());
        Check(layer->CreateFeature(&row) == OGRERR_NONE);
    }
}

void GeoPackageWriter::AddContours(const QString& name, const HeightGrid& grid, double interval)
{
    const GdalErrors quiet;
    const auto raster = CreateWith("MEM", "", grid.columns, grid.rows);
    Check(raster != nullptr);
    double placement[] = {grid.west, grid.cellSize, 0, grid.north, 0, -grid.cellSize};
    raster->SetGeoTransform(placement);
    GDALRasterBand* band = raster->GetRasterBand(1);
    auto heights = grid.heights;
    Check(
        band->RasterIO(
            GF_Write, 0, 0, grid.columns, grid.rows, heights.data(), grid.columns, grid.rows, GDT_Float32, 0,
            0)
        == CE_None);
    OGRLayer* layer = m_dataset->CreateLayer(name.toUtf8().constData(), m_system.get(), wkbLineString);
    Check(layer);
    const QByteArray option = "LEVEL_INTERVAL=" + QByteArray::number(interval);
    const QByteArray unknown = "NODATA=" + QByteArray::number(HeightGrid::NoHeight);
    const char* options[] = {option.constData(), unknown.constData(), nullptr};
    Check(GDALContourGenerateEx(band, layer, const_cast<char**>(options), nullptr, nullptr) == CE_None);
}

void GeoPackageWriter::Check(bool succeeded) const
{
    if (succeeded)
        return;
    const QString message
        = QCoreApplication::translate("GeoPackageWriter", "The data file \"%1\" cannot be written.");
    throw RunTimeError(SampleUnwritable, message.arg(m_path));
}

} // namespace Orvane
