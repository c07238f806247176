// SPDX-License-Identifier: MIT
#include "mapkit/data/DataSource.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/common/Progress.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/data/GdalSetup.h"
#include "mapkit/data/GeometryReader.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <cmath>
#include <cpl_conv.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

constexpr GIntBig FeaturesBetweenReports = 64;

std::unique_ptr<GDALDataset> Open(const QString& path)
{
    PrepareGdal();
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
    const Box box = {envelope.MinX, envelope.MinY, envelope.MaxX, envelope.MaxY};
    return std::isfinite(box.Width()) && std::isfinite(box.Height()) ? box : Box();
}

// The memory that one layer may use, in bytes.
double MostBytes()
{
    const auto all = double(CPLGetUsablePhysicalRAM());
    return all > 0 ? all / 4 : 4e9;
}

double BytesOf(const FeatureSet& features)
{
    return double(features.VertexCount()) * sizeof(QPointF)
        + double(features.Features().size()) * sizeof(FeatureSet::Feature);
}

// Reads attributes without geometries, which is several times as fast if the driver supports it.
class WithoutGeometry
{
public:
    explicit WithoutGeometry(OGRLayer& layer) : m_layer(layer)
    {
        const char* ignored[] = {"OGR_GEOMETRY", nullptr};
        m_layer.SetIgnoredFields(ignored);
    }
    ~WithoutGeometry() { m_layer.SetIgnoredFields(nullptr); }
    WithoutGeometry(const WithoutGeometry&) = delete;
    WithoutGeometry& operator=(const WithoutGeometry&) = delete;

private:
    OGRLayer& m_layer;
};

bool IsNumber(const OGRFieldDefn& field)
{
    const OGRFieldType type = field.GetType();
    const bool isFlag = field.GetSubType() == OFSTBoolean;
    return !isFlag && (type == OFTInteger || type == OFTInteger64 || type == OFTReal);
}

FieldValue ValueOf(OGRFeature& feature, int index, bool isNumber)
{
    FieldValue value;
    value.text = QString::fromUtf8(feature.GetFieldAsString(index)).trimmed();
    if (isNumber)
        value.number = feature.GetFieldAsDouble(index);
    return value;
}

} // namespace

DataSource::DataSource(const QString& path) : m_path(path)
{
    const QString whyNot = WhyNotOpened(path);
    if (!whyNot.isEmpty())
        throw RunTimeError(SourceUnreadable, whyNot);
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

OGRLayer&
DataSource::FilteredLayer(const QString& name, const QString& filter, const GdalErrors& errors) const
{
    OGRLayer* layer = m_dataset->GetLayerByName(name.toUtf8().constData());
    if (!layer)
        Fail(QCoreApplication::translate("DataSource", "it has no layer named %1").arg(name));
    const QByteArray condition = filter.toUtf8();
    if (layer->SetAttributeFilter(filter.isEmpty() ? nullptr : condition.constData()) != OGRERR_NONE)
        Fail(errors.First());
    layer->ResetReading();
    return *layer;
}

FeatureSet DataSource::Read(
    const QString& layerName, const QString& filter, const QString& mapSystem, Progress& progress) const
{
    const GdalErrors errors;
    OGRLayer& layer = FilteredLayer(layerName, filter, errors);
    FeatureSet features;
    GeometryReader reader(features, TransformationTo(mapSystem, layer.GetSpatialRef()));
    const double expected = double(std::max<GIntBig>(1, layer.GetFeatureCount(FALSE)));
    const double mostBytes = MostBytes();
    GIntBig count = 0;
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
        if (const OGRGeometry* geometry = feature->GetGeometryRef())
            reader.Add(*geometry, feature->GetFID());
        if (++count % FeaturesBetweenReports == 0) {
            progress.StopIfCancelled();
            if (BytesOf(features) > mostBytes)
                Fail(QCoreApplication::translate("DataSource", "it is too large for this computer's memory"));
            progress.Report(std::min(1.0, double(count) / expected));
        }
    }
    if (!errors.First().isEmpty())
        Fail(errors.First());
    return features;
}

std::vector<SourceField> DataSource::Fields(const QString& layerName) const
{
    const GdalErrors errors;
    const OGRFeatureDefn& definition = *FilteredLayer(layerName, {}, errors).GetLayerDefn();
    std::vector<SourceField> fields;
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        const OGRFieldDefn& field = *definition.GetFieldDefn(i);
        fields.push_back(
            {QString::fromUtf8(field.GetNameRef()), IsNumber(field), field.GetType() == OFTString});
    }
    return fields;
}

std::unordered_map<qint64, FieldValue> DataSource::ReadField(
    const QString& layerName, const QString& filter, const QString& field, Progress& progress) const
{
    const GdalErrors errors;
    OGRLayer& layer = FilteredLayer(layerName, filter, errors);
    const int index = layer.GetLayerDefn()->GetFieldIndex(field.toUtf8().constData());
    if (index < 0)
        Fail(QCoreApplication::translate("DataSource", "it has no attribute named %1").arg(field));
    const bool isNumber = IsNumber(*layer.GetLayerDefn()->GetFieldDefn(index));
    const WithoutGeometry sparing(layer);
    std::unordered_map<qint64, FieldValue> values;
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
        if (feature->IsFieldSetAndNotNull(index))
            values[feature->GetFID()] = ValueOf(*feature, index, isNumber);
        if (values.size() % FeaturesBetweenReports == 0)
            progress.StopIfCancelled();
    }
    if (!errors.First().isEmpty())
        Fail(errors.First());
    return values;
}

std::vector<FeatureAttribute> DataSource::Attributes(const QString& layerName, qint64 featureID) const
{
    const GdalErrors quiet;
    OGRLayer* layer = m_dataset->GetLayerByName(layerName.toUtf8().constData());
    const OGRFeatureUniquePtr feature(layer ? layer->GetFeature(featureID) : nullptr);
    std::vector<FeatureAttribute> attributes;
    for (int i = 0; feature && i < feature->GetFieldCount(); ++i) {
        attributes.push_back(
            {QString::fromUtf8(feature->GetFieldDefnRef(i)->GetNameRef()),
             QString::fromUtf8(feature->GetFieldAsString(i)), feature->IsFieldSetAndNotNull(i) == 0});
    }
    return attributes;
}

void DataSource::Fail(const QString& reason) const
{
    const QString name = QFileInfo(m_path).fileName();
    const QString known = QCoreApplication::translate("DataSource", "\"%1\" cannot be read: %2.");
    const QString unknown = QCoreApplication::translate("DataSource", "\"%1\" contains no readable data.");
    throw RunTimeError(SourceUnreadable, reason.isEmpty() ? unknown.arg(name) : known.arg(name, reason));
}

} // namespace Orvane
