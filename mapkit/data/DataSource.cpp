// SPDX-License-Identifier: MIT
#include "mapkit/data/DataSource.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/common/MemoryBound.h"
#include "mapkit/common/Progress.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/SystemReference.h"
#include "mapkit/data/FeatureWatch.h"
#include "mapkit/data/GeometryKinds.h"
#include "mapkit/data/GeometryReader.h"
#include "mapkit/data/LayerDescription.h"
#include "mapkit/data/LeftOutParts.h"
#include "mapkit/data/ReadingFailure.h"
#include "mapkit/files/GdalSetup.h"
#include "mapkit/files/OpenedData.h"
#include "mapkit/files/ReadingBound.h"
#include "mapkit/tables/RowGeometry.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>

#include <cmath>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

constexpr GIntBig FeaturesBetweenReports = 64;
constexpr int RowsToShow = 20;

// Empty for one that is not finite.
Box BoxOf(const OGREnvelope& envelope)
{
    const Box box = {envelope.MinX, envelope.MinY, envelope.MaxX, envelope.MaxY};
    return std::isfinite(box.Width()) && std::isfinite(box.Height()) ? box : Box();
}

Box ExtentOf(OGRLayer& layer)
{
    OGREnvelope envelope;
    if (layer.GetExtent(&envelope, FALSE) != OGRERR_NONE)
        return {};
    return BoxOf(envelope);
}

// Of the parts that the choice takes.
Box ExtentOf(const OGRGeometry& geometry, const GeometryChoice& choice)
{
    Box extent;
    ForEachKind(geometry, [&](const OGRGeometry& part, FeatureKind kind) {
        OGREnvelope envelope;
        part.getEnvelope(&envelope);
        if (choice.Takes(kind) && !part.IsEmpty())
            extent.Add(BoxOf(envelope));
    });
    return extent;
}

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

// The name of the layer that its file, which holds the other one too, calls so; empty if there is none.
QString NameBeside(const OpenedData& data, const OpenedData::Layer& other, const QString& nameInFile)
{
    if (nameInFile.isEmpty())
        return {};
    for (const OpenedData::Layer& layer : data.Layers()) {
        if (layer.dataset == other.dataset && nameInFile == QString::fromUtf8(layer.layer->GetName()))
            return layer.name;
    }
    return {};
}

} // namespace

double FieldValue::Bytes() const
{
    constexpr double Node = 4 * sizeof(void*); // of the table, for each value
    return Node + sizeof *this + double(text.size()) * sizeof(QChar);
}

DataSource::DataSource(const QString& path) : m_path(path)
{
    const QString whyNot = WhyNotOpened(path);
    if (!whyNot.isEmpty())
        throw RunTimeError(SourceUnreadable, whyNot);
    const GdalErrors errors;
    const ReadingBound bound;
    m_data = std::make_unique<OpenedData>(path);
    if (!m_data->IsEmpty())
        return;
    const QString noDriver = WhyNoDriver(path);
    Fail(noDriver.isEmpty() ? errors.First() : noDriver);
}

DataSource::~DataSource()
{
    const GdalErrors quiet;
    m_data.reset();
}

std::vector<SourceLayer> DataSource::LayersWithGeometry() const
{
    const GdalErrors errors;
    const ReadingBound bound;
    std::vector<SourceLayer> layers;
    bool hasTables = false;
    for (const OpenedData::Layer& opened : m_data->Layers()) {
        hasTables = hasTables || (opened.isTable && opened.layer->GetLayerDefn()->GetFieldCount() > 0);
        if (opened.layer->GetGeomType() == wkbNone)
            continue;
        layers.push_back(DescribeLayer(*opened.layer, m_data->FormatOf(*opened.layer)));
        SourceLayer& layer = layers.back();
        layer.name = opened.name;
        layer.partsOf = NameBeside(*m_data, opened, layer.partsOf);
        layer.extent = ExtentOf(*opened.layer);
    }
    RequireReadingInTime(m_path);
    if (layers.empty() && !hasTables && !errors.First().isEmpty())
        Fail(errors.First());
    return layers;
}

std::vector<SourceLayer> DataSource::Layers() const
{
    std::vector<SourceLayer> layers = LayersWithGeometry();
    for (const TableRows& table : Tables()) {
        const CoordinateColumns columns = GuessColumns(table);
        if (!columns.IsEmpty())
            layers.push_back(TableAsLayer(table.layer, columns));
    }
    return layers;
}

bool DataSource::Has(const QString& layer) const
{
    const GdalErrors quiet;
    const ReadingBound bound;
    return m_data->Find(layer) != nullptr;
}

std::vector<TableRows> DataSource::Tables() const
{
    const GdalErrors errors;
    const ReadingBound bound;
    std::vector<TableRows> tables;
    for (const OpenedData::Layer& opened : m_data->Layers()) {
        if (!opened.isTable)
            continue;
        tables.push_back(FirstRows(*opened.layer, RowsToShow));
        tables.back().layer = opened.name;
    }
    RequireReadingInTime(m_path);
    std::erase_if(tables, [](const TableRows& table) { return table.columns.isEmpty(); });
    if (tables.empty() && !errors.First().isEmpty())
        Fail(errors.First());
    return tables;
}

SourceLayer DataSource::TableAsLayer(const QString& table, const CoordinateColumns& columns) const
{
    const GdalErrors errors;
    const ReadingBound bound;
    SourceLayer found = DescribeTable(FilteredLayer(table, {}, errors), columns);
    found.name = table;
    RequireReadingInTime(m_path);
    return found;
}

QStringList DataSource::UnopenedFiles() const
{
    return m_data->Unopened();
}

OGRLayer&
DataSource::FilteredLayer(const QString& name, const QString& filter, const GdalErrors& errors) const
{
    OGRLayer* layer = m_data->Find(name);
    if (!layer)
        Fail(QCoreApplication::translate("DataSource", "it has no layer named %1").arg(name));
    const QByteArray condition = filter.toUtf8();
    if (layer->SetAttributeFilter(filter.isEmpty() ? nullptr : condition.constData()) != OGRERR_NONE)
        Fail(errors.First());
    layer->ResetReading();
    return *layer;
}

FeatureSet DataSource::Read(
    const QString& layerName, const QString& filter, const QString& mapSystem, Progress& progress,
    const GeometryChoice& choice, const QString& chosenSystem) const
{
    const GdalErrors errors;
    FeatureSet features;
    FeatureWatch watch(m_path, features, progress);
    OGRLayer& layer = FilteredLayer(layerName, filter, errors);
    RowGeometry rows(*layer.GetLayerDefn(), choice.columns);
    if (rows.IsLacking())
        Fail(QCoreApplication::translate("DataSource", "it lacks a column with coordinates"));
    const OGRSpatialReference own = ReferenceOf(chosenSystem, layer.GetSpatialRef());
    features.SetSourceSystem(own.IsEmpty() ? QString() : SystemText(&own));
    GeometryReader reader(features, TransformationTo(mapSystem, &own), RulesFor(own, mapSystem, choice));
    watch.Expect(layer.GetFeatureCount(FALSE));
    const bool isGeometryAll = filter.isEmpty() && choice.columns.IsEmpty();
    const LeftOutParts sparing(
        layer, isGeometryAll ? LeftOutParts::AttributesOf(m_data->FormatOf(layer)) : LeftOutParts::Nothing);
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
        if (const OGRGeometry* geometry = rows.Of(*feature))
            reader.Add(*geometry, feature->GetFID());
        watch.Count();
    }
    RequireReadingInTime(m_path);
    if (!errors.First().isEmpty())
        Fail(errors.First());
    return features;
}

LayerMeasure
DataSource::Measure(const QString& layerName, Progress& progress, const GeometryChoice& choice) const
{
    const GdalErrors errors;
    ReadingBound bound(ReadingBound::LongestWait);
    OGRLayer& layer = FilteredLayer(layerName, {}, errors);
    RowGeometry rows(*layer.GetLayerDefn(), choice.columns);
    if (rows.IsLacking())
        Fail(QCoreApplication::translate("DataSource", "it lacks a column with coordinates"));
    LayerMeasure measure;
    for (GIntBig count = 1; const OGRFeatureUniquePtr feature{layer.GetNextFeature()}; ++count) {
        const OGRGeometry* geometry = rows.Of(*feature);
        const Box part = geometry ? ExtentOf(*geometry, choice) : Box();
        measure.extent.Add(part);
        measure.featureCount += part.IsEmpty() ? 0 : 1;
        if (count % FeaturesBetweenReports != 0)
            continue;
        progress.StopIfCancelled();
        if (geometry)
            bound.Renew();
        if (bound.IsOver())
            Fail({});
    }
    RequireReadingInTime(m_path);
    if (!errors.First().isEmpty())
        Fail(errors.First());
    return measure;
}

SourceDetails DataSource::Details(const QString& layerName) const
{
    const GdalErrors errors;
    const ReadingBound bound;
    OGRLayer& layer = FilteredLayer(layerName, {}, errors);
    SourceDetails details;
    details.driver = m_data->FormatTitleOf(layer);
    details.geometry = QString::fromUtf8(OGRGeometryTypeToName(layer.GetGeomType()));
    details.featureCount = layer.GetFeatureCount(FALSE);
    details.system = SystemText(layer.GetSpatialRef());
    details.extent = ExtentOf(layer);
    RequireReadingInTime(m_path);
    return details;
}

std::vector<SourceField> DataSource::Fields(const QString& layerName) const
{
    const GdalErrors errors;
    const ReadingBound bound;
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
    ReadingBound bound(ReadingBound::LongestWait);
    OGRLayer& layer = FilteredLayer(layerName, filter, errors);
    const int index = layer.GetLayerDefn()->GetFieldIndex(field.toUtf8().constData());
    if (index < 0)
        Fail(QCoreApplication::translate("DataSource", "it has no attribute named %1").arg(field));
    const bool isNumber = IsNumber(*layer.GetLayerDefn()->GetFieldDefn(index));
    const LeftOutParts sparing(layer, LeftOutParts::Geometry);
    std::unordered_map<qint64, FieldValue> values;
    const double mostBytes = MemoryBound::MostBytes();
    double bytes = 0;
    GIntBig count = 0;
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
        if (feature->IsFieldSetAndNotNull(index)) {
            const auto [place, isNew]
                = values.insert_or_assign(feature->GetFID(), ValueOf(*feature, index, isNumber));
            bytes += isNew ? place->second.Bytes() : 0;
            if (isNew)
                bound.Renew();
        }
        if (++count % FeaturesBetweenReports == 0) {
            progress.StopIfCancelled();
            if (bytes > mostBytes)
                FailTooLarge(m_path);
            if (bound.IsOver())
                Fail({});
        }
    }
    RequireReadingInTime(m_path);
    if (!errors.First().isEmpty())
        Fail(errors.First());
    return values;
}

std::vector<FeatureAttribute> DataSource::Attributes(const QString& layerName, qint64 featureID) const
{
    const GdalErrors quiet;
    const ReadingBound bound;
    OGRLayer* layer = m_data->Find(layerName);
    const OGRFeatureUniquePtr feature(layer ? layer->GetFeature(featureID) : nullptr);
    std::vector<FeatureAttribute> attributes;
    for (int i = 0; feature && i < feature->GetFieldCount(); ++i) {
        attributes.push_back(
            {QString::fromUtf8(feature->GetFieldDefnRef(i)->GetNameRef()),
             QString::fromUtf8(feature->GetFieldAsString(i)), feature->IsFieldSetAndNotNull(i) == 0});
    }
    RequireReadingInTime(m_path);
    return attributes;
}

void DataSource::Fail(const QString& reason) const
{
    FailReading(m_path, reason);
}

} // namespace Orvane
