// SPDX-License-Identifier: MIT
#include "mapkit/data/PackageReader.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/SystemReference.h"
#include "mapkit/data/FeatureWatch.h"
#include "mapkit/data/ReadingFailure.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/geopackage/BlobGeometry.h"
#include "mapkit/geopackage/Package.h"

#include <ogr_spatialref.h>
#include <utility>

namespace Orvane {

namespace {

// As GDAL makes it for a layer of a GeoPackage.
OGRSpatialReference SystemOfNumber(int number)
{
    OGRSpatialReference system;
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    if (system.importFromEPSG(number) != OGRERR_NONE)
        throw PackageDoubt();
    system.StripTOWGS84IfKnownDatumAndAllowed();
    return system;
}

} // namespace

PackageReader::PackageReader(const QString& path) : m_path(path)
{
}

PackageReader::~PackageReader() = default;

std::optional<FeatureSet>
PackageReader::Read(const LayerSource& source, const QString& mapSystem, Progress& progress)
{
    if (!source.filter.isEmpty() || !source.choice.columns.IsEmpty())
        return std::nullopt;
    const GdalErrors quiet;
    FeatureSet features;
    FeatureWatch watch(m_path, features, progress);
    try {
        ReadLayer(source, mapSystem, features, watch);
        return features;
    } catch (const PackageDoubt&) {
        RequireReadingInTime(m_path);
        return std::nullopt;
    }
}

Package& PackageReader::Opened()
{
    if (!m_isOpened) {
        m_isOpened = true;
        m_package = std::make_unique<Package>(m_path);
    }
    if (!m_package)
        throw PackageDoubt();
    return *m_package;
}

const PackageReader::Passage&
PackageReader::PassageOf(int system, const QString& chosenSystem, const QString& mapSystem)
{
    PassageKey key{system, chosenSystem, mapSystem};
    const auto known = m_passages.find(key);
    if (known != m_passages.end())
        return known->second;
    const OGRSpatialReference named = SystemOfNumber(system);
    const OGRSpatialReference own = ReferenceOf(chosenSystem, &named);
    Passage passage;
    passage.system = own.IsEmpty() ? QString() : SystemText(&own);
    passage.transformation = TransformationTo(mapSystem, &own);
    passage.rules = RulesFor(own, mapSystem, {});
    return m_passages.emplace(std::move(key), std::move(passage)).first->second;
}

void PackageReader::ReadLayer(
    const LayerSource& source, const QString& mapSystem, FeatureSet& features, FeatureWatch& watch)
{
    const Package& package = Opened();
    const PackageLayer layer = package.Layer(source.ogrLayer);
    const Passage& passage = PassageOf(layer.system, source.system, mapSystem);
    features.SetSourceSystem(passage.system);
    GeometryReader reader(features, passage.transformation, {source.choice, passage.rules.edges});
    watch.Expect(layer.featureCount);
    BlobGeometry geometry;
    PackageStatement rows = package.Features(layer);
    while (rows.Step()) {
        const qint64 featureID = rows.Whole(0);
        if (!rows.IsNull(1)) {
            if (!geometry.Read(rows.Bytes(1)))
                throw PackageDoubt();
            reader.Add(geometry, featureID);
        }
        watch.Count();
    }
}

} // namespace Orvane
