// SPDX-License-Identifier: MIT
#include "mapkit/data/SourceEditor.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/SystemReference.h"
#include "mapkit/data/GeometryReader.h"
#include "mapkit/data/ReadingFailure.h"
#include "mapkit/data/ServerTables.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/files/GdalSetup.h"
#include "mapkit/files/ReadingBound.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QFileInfo>

#include <cmath>
#include <gdal_priv.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

constexpr double LargestLatitude = 90; // degrees
constexpr double ExtentTolerance = 1; // map units

std::unique_ptr<GDALDataset> OpenForUpdate(const QString& path)
{
    PrepareGdal();
    constexpr unsigned flags = GDAL_OF_VECTOR | GDAL_OF_UPDATE;
    return std::unique_ptr<GDALDataset>(GDALDataset::Open(path.toUtf8().constData(), flags));
}

OGRGeometryUniquePtr FromBinary(const QByteArray& binary)
{
    OGRGeometry* geometry = nullptr;
    OGRGeometryFactory::createFromWkb(binary.constData(), nullptr, &geometry, size_t(binary.size()));
    return OGRGeometryUniquePtr(geometry);
}

QByteArray ToBinary(const OGRGeometry& geometry)
{
    QByteArray binary(qsizetype(geometry.WkbSize()), Qt::Uninitialized);
    geometry.exportToWkb(wkbNDR, reinterpret_cast<unsigned char*>(binary.data()), wkbVariantIso);
    return binary;
}

class Shift : public OGRDefaultGeometryVisitor
{
public:
    explicit Shift(QPointF offset) : m_offset(offset) { }

    using OGRDefaultGeometryVisitor::visit;
    void visit(OGRPoint* point) override
    {
        point->setX(point->getX() + m_offset.x());
        point->setY(point->getY() + m_offset.y());
    }

private:
    QPointF m_offset;
};

// Also true if there is nothing to transform.
bool Transform(OGRGeometry& geometry, OGRCoordinateTransformation* transformation)
{
    return !transformation || geometry.transform(transformation) == OGRERR_NONE;
}

OGREnvelope ExtentOf(const OGRGeometry& geometry)
{
    OGREnvelope extent;
    geometry.getEnvelope(&extent);
    return extent;
}

// Outside its valid area a projection gives positions that transform back to a different place.
bool LeadsBack(const OGRGeometry& geometry, OGRCoordinateTransformation* toMap, const OGREnvelope& there)
{
    const OGRGeometryUniquePtr again(geometry.clone());
    if (!Transform(*again, toMap))
        return false;
    const OGREnvelope now = ExtentOf(*again);
    return std::abs(now.MinX - there.MinX) < ExtentTolerance
        && std::abs(now.MinY - there.MinY) < ExtentTolerance
        && std::abs(now.MaxX - there.MaxX) < ExtentTolerance
        && std::abs(now.MaxY - there.MaxY) < ExtentTolerance;
}

bool IsOnEarth(const OGRGeometry& geometry, const OGRSpatialReference& system)
{
    const OGREnvelope extent = ExtentOf(geometry);
    return !system.IsGeographic() || (extent.MinY >= -LargestLatitude && extent.MaxY <= LargestLatitude);
}

} // namespace

SourceEditor::SourceEditor(const LayerSource& source)
    : m_path(source.path), m_chosenSystem(source.system), m_choice(source.choice)
{
    const QString noFile = WhyNoFile(source);
    const QString whyNot = noFile.isEmpty() ? WhyNotOpened(m_path) : noFile;
    if (!whyNot.isEmpty())
        throw RunTimeError(SourceUnchangeable, whyNot);
    if (QFileInfo(m_path).isFile() && !QFileInfo(m_path).isWritable())
        Fail(tr("the file is read only"));
    if (!source.choice.columns.IsEmpty())
        Fail(tr("its points are numbers in a table"));
    const GdalErrors errors;
    const ReadingBound bound;
    m_dataset = OpenForUpdate(m_path);
    if (!m_dataset)
        Fail(errors.First().isEmpty() ? tr("its format is read only") : errors.First());
    m_layer = m_dataset->GetLayerByName(source.ogrLayer.toUtf8().constData());
    if (!m_layer)
        Fail(QCoreApplication::translate("DataSource", "it has no layer named %1").arg(source.ogrLayer));
    if (!m_layer->TestCapability(OLCRandomWrite))
        Fail(tr("its format is read only"));
}

SourceEditor::~SourceEditor()
{
    const GdalErrors quiet;
    m_dataset.reset();
}

QByteArray SourceEditor::Geometry(qint64 featureID) const
{
    const GdalErrors quiet;
    const ReadingBound bound;
    const OGRFeatureUniquePtr feature(m_layer->GetFeature(featureID));
    const OGRGeometry* geometry = feature ? feature->GetGeometryRef() : nullptr;
    if (!geometry)
        Fail(tr("the feature is no longer there"));
    return ToBinary(*geometry);
}

QByteArray SourceEditor::Moved(const QByteArray& binary, QPointF offset, const QString& mapSystem) const
{
    const GdalErrors quiet;
    const OGRGeometryUniquePtr geometry = FromBinary(binary);
    const OGRSpatialReference own = ReferenceOf(m_chosenSystem, m_layer->GetSpatialRef());
    const auto toMap = TransformationTo(mapSystem, &own);
    const std::unique_ptr<OGRCoordinateTransformation> back(toMap ? toMap->GetInverse() : nullptr);
    bool moved = geometry && Transform(*geometry, toMap.get());
    if (moved) {
        Shift shift(offset);
        geometry->accept(&shift);
        const OGREnvelope there = ExtentOf(*geometry);
        moved = Transform(*geometry, back.get()) && LeadsBack(*geometry, toMap.get(), there);
    }
    if (!moved || !IsOnEarth(*geometry, own))
        Fail(tr("the new position is outside the coordinate system"));
    return ToBinary(*geometry);
}

FeatureSet SourceEditor::Shown(const QByteArray& binary, qint64 featureID, const QString& mapSystem) const
{
    const GdalErrors quiet;
    FeatureSet features;
    const OGRSpatialReference own = ReferenceOf(m_chosenSystem, m_layer->GetSpatialRef());
    GeometryReader reader(features, TransformationTo(mapSystem, &own), RulesFor(own, mapSystem, m_choice));
    if (const OGRGeometryUniquePtr geometry = FromBinary(binary))
        reader.Add(*geometry, featureID);
    return features;
}

void SourceEditor::SetGeometry(qint64 featureID, const QByteArray& binary)
{
    const GdalErrors errors;
    const ReadingBound bound;
    const OGRFeatureUniquePtr feature(m_layer->GetFeature(featureID));
    if (!feature)
        Fail(tr("the feature is no longer there"));
    OGRGeometryUniquePtr geometry = FromBinary(binary);
    if (geometry)
        geometry->assignSpatialReference(m_layer->GetSpatialRef());
    feature->SetGeometryDirectly(geometry.release());
    if (m_layer->SetFeature(feature.get()) != OGRERR_NONE)
        Fail(errors.First());
}

void SourceEditor::Save()
{
    const GdalErrors errors;
    const ReadingBound bound;
    m_layer = nullptr;
    m_dataset.reset(); // several drivers write only when they are closed
    if (!errors.First().isEmpty())
        Fail(errors.First());
}

void SourceEditor::Fail(const QString& reason) const
{
    const QString sentence = tr("\"%1\" cannot be changed: %2.");
    throw RunTimeError(
        SourceUnchangeable, sentence.arg(QFileInfo(m_path).fileName(), WhyReadingFailed(reason)));
}

} // namespace Orvane
