// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/CoordinateSystems.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/SystemFacts.h"
#include "mapkit/coordinates/SystemReference.h"

#include <cpl_conv.h>
#include <ogr_spatialref.h>

namespace Orvane {

namespace {

constexpr double MetresPerDegree = 111319.49079327358;
constexpr double WorldWide = 150; // degrees of longitude
constexpr auto WorldSystem = "EPSG:8857"; // Equal Earth
constexpr auto RegionSystem = "EPSG:3857"; // web Mercator

} // namespace

double MetresPerUnit(const QString& system)
{
    const OGRSpatialReference known = ReferenceOf(system);
    if (known.IsEmpty())
        return 1;
    return known.IsGeographic() ? MetresPerDegree : known.GetLinearUnits();
}

QString SystemToShow(const QString& system, const Box& extent)
{
    const OGRSpatialReference known = ReferenceOf(system);
    if (!known.IsEmpty() && !known.IsGeographic())
        return system;
    return QString::fromLatin1(extent.Width() > WorldWide ? WorldSystem : RegionSystem);
}

QString SystemToShow(const std::vector<PlacedExtent>& data)
{
    Box all;
    const PlacedExtent* largest = nullptr;
    double largestWidth = 0; // in degrees, as the area
    double largestArea = -1;
    for (const PlacedExtent& part : data) {
        if (ReferenceOf(part.system).IsEmpty())
            continue;
        const Box degrees = InDegrees(part.extent, part.system);
        const double area = degrees.IsEmpty() ? 0 : degrees.Width() * degrees.Height();
        all.Add(degrees);
        if (area <= largestArea)
            continue;
        largest = &part;
        largestArea = area;
        largestWidth = degrees.IsEmpty() ? 0 : degrees.Width();
    }
    if (!largest)
        return {};
    const bool isTogetherLarger = all.Width() > WorldWide && largestWidth <= WorldWide;
    return isTogetherLarger ? QString::fromLatin1(WorldSystem)
                            : SystemToShow(largest->system, largest->extent);
}

QString SystemText(const OGRSpatialReference* system)
{
    if (!system || system->IsLocal())
        return {};
    if (system->GetAuthorityName(nullptr) && system->GetAuthorityCode(nullptr))
        return QString::fromUtf8(system->GetAuthorityName(nullptr)) + QLatin1Char(':')
            + QString::fromUtf8(system->GetAuthorityCode(nullptr));
    char* text = nullptr;
    system->exportToWkt(&text);
    QString result = QString::fromUtf8(text);
    CPLFree(text);
    return result;
}

void TransformationKeeper::operator()(OGRCoordinateTransformation* transformation) const
{
    OGRCoordinateTransformation::DestroyCT(transformation);
}

KeptTransformation TransformationTo(const QString& mapSystem, const OGRSpatialReference* source)
{
    const OGRSpatialReference target = ReferenceOf(mapSystem);
    if (!source || source->IsEmpty() || target.IsEmpty())
        return nullptr;
    OGRSpatialReference own(*source);
    own.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    if (own.IsSame(&target))
        return nullptr;
    const GdalErrors quiet;
    return KeptTransformation(OGRCreateCoordinateTransformation(&own, &target));
}

} // namespace Orvane
