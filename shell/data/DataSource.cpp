// SPDX-License-Identifier: MIT
#include "shell/data/DataSource.h"

#include "shell/data/CoordinateSystems.h"
#include "shell/data/GdalErrors.h"
#include "shell/data/GeometryReader.h"
#include "shell/data/Progress.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <gdal_priv.h>
#include <mutex>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

constexpr GIntBig FeaturesBetweenReports = 64;

void RegisterDriversOnce()
{
    static std::once_flag once;
    std::call_once(once, [] { GDALAllRegister(); });
}

std::unique_ptr<GDALDataset> Open(const QString& path)
{
    RegisterDriversOnce();
    constexpr unsigned flags = GDAL_OF_VECTOR | GDAL_OF_READONLY;
    return std::unique_ptr<GDALDataset>(GDALDataset::Open(path.toUtf8().constData(), flags));
}

FeatureKind KindOf(OGRwkbGeometryType type)
{
    switch (wkbFlatten(OGR_GT_GetLinear(type))) {
    case wkbPoint:
    case wkbMultiPoint:
        return FeatureKind::Point;
    case wkbLineString:
    case wkbMultiLineString:
        return FeatureKind::Line;
    default:
        return FeatureKind::Area;
    }
}

Box ExtentOf(OGRLayer& layer)
{
    OGREnvelope envelope;
    if (layer.GetExtent(&envelope, FALSE) != OGRERR_NONE)
        return {};
    return {envelope.MinX, envelope.MinY, envelope.MaxX, envelope.MaxY};
}

} // namespace

DataSource::DataSource(const QString& path) : m_path(path)
{
    const GdalErrors errors;
    m_dataset = Open(path);
    if (!m_dataset)
        Fail(errors.First());
}

DataSource::~DataSource()
{
    const GdalErrors quiet;
    m_dataset.reset();
}

std::vector<SourceLayer> DataSource::Layers() const
{
    const GdalErrors quiet;
    std::vector<SourceLayer> layers;
    for (OGRLayer* layer : m_dataset->GetLayers()) {
        if (layer->GetGeomType() == wkbNone)
            continue;
        layers.push_back(
            {QString::fromUtf8(layer->GetName()), KindOf(layer->GetGeomType()),
             SystemText(layer->GetSpatialRef()), ExtentOf(*layer)});
    }
    return layers;
}

FeatureSet DataSource::Read(
    const QString& layerName, const QString& filter, const QString& mapSystem, Progress& progress) const
{
    const GdalErrors errors;
    OGRLayer* layer = m_dataset->GetLayerByName(layerName.toUtf8().constData());
    if (!layer)
        Fail(QCoreApplication::translate("DataSource", "it has no layer named %1").arg(layerName));
    const QByteArray condition = filter.toUtf8();
    if (layer->SetAttributeFilter(filter.isEmpty() ? nullptr : condition.constData()) != OGRERR_NONE)
        Fail(errors.First());

    FeatureSet features;
    GeometryReader reader(features, TransformationTo(mapSystem, layer->GetSpatialRef()));
    const double expected = double(std::max<GIntBig>(1, layer->GetFeatureCount(FALSE)));
    layer->ResetReading();
    GIntBig count = 0;
    while (const OGRFeatureUniquePtr feature{layer->GetNextFeature()}) {
        if (const OGRGeometry* geometry = feature->GetGeometryRef())
            reader.Add(*geometry, feature->GetFID());
        if (++count % FeaturesBetweenReports == 0) {
            progress.StopIfCancelled();
            progress.Report(std::min(1.0, double(count) / expected));
        }
    }
    if (!errors.First().isEmpty())
        Fail(errors.First());
    return features;
}

void DataSource::Fail(const QString& reason) const
{
    const QString name = QFileInfo(m_path).fileName();
    const QString known = QCoreApplication::translate("DataSource", "\"%1\" cannot be read: %2.");
    const QString unknown
        = QCoreApplication::translate("DataSource", "\"%1\" holds no data that can be read.");
    throw RunTimeError(SourceUnreadable, reason.isEmpty() ? unknown.arg(name) : known.arg(name, reason));
}

} // namespace Orvane
