// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/CoordinateSystems.h"

#include "mapkit/common/GdalErrors.h"

#include <cpl_conv.h>
#include <ogr_spatialref.h>

namespace Orvane {

namespace {

constexpr double MetresPerDegree = 111319.49079327358;
constexpr double WorldWide = 150; // degrees of longitude
constexpr auto WorldSystem = "EPSG:8857"; // Equal Earth
constexpr auto RegionSystem = "EPSG:3857"; // web Mercator

// Empty if the text is not a system.
OGRSpatialReference SystemOf(const QString& text)
{
    const GdalErrors quiet;
    OGRSpatialReference system;
    if (system.SetFromUserInput(text.toUtf8().constData()) != OGRERR_NONE)
        system.Clear();
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return system;
}

} // namespace

double MetresPerUnit(const QString& system)
{
    const OGRSpatialReference known = SystemOf(system);
    if (known.IsEmpty())
        return 1;
    return known.IsGeographic() ? MetresPerDegree : known.GetLinearUnits();
}

QString SystemToShow(const QString& system, const Box& extent)
{
    const OGRSpatialReference known = SystemOf(system);
    if (!known.IsEmpty() && !known.IsGeographic())
        return system;
    return QString::fromLatin1(extent.Width() > WorldWide ? WorldSystem : RegionSystem);
}

QString SystemText(const OGRSpatialReference* system)
{
    if (!system)
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

std::unique_ptr<OGRCoordinateTransformation>
TransformationTo(const QString& mapSystem, const OGRSpatialReference* source)
{
    OGRSpatialReference target = SystemOf(mapSystem);
    if (!source || target.IsEmpty())
        return nullptr;
    OGRSpatialReference own(*source);
    own.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    if (own.IsSame(&target))
        return nullptr;
    const GdalErrors quiet;
    return std::unique_ptr<OGRCoordinateTransformation>(OGRCreateCoordinateTransformation(&own, &target));
}

} // namespace Orvane
