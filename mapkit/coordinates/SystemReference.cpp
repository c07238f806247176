// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/SystemReference.h"

#include "mapkit/common/GdalErrors.h"

namespace Orvane {

OGRSpatialReference ReferenceOf(const QString& system)
{
    const GdalErrors quiet;
    OGRSpatialReference known;
    const QByteArray text = system.trimmed().toUtf8();
    const auto limits = OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get();
    if (known.SetFromUserInput(text.constData(), limits) != OGRERR_NONE)
        known.Clear();
    known.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return known;
}

OGRSpatialReference ReferenceOf(const QString& chosen, const OGRSpatialReference* named)
{
    OGRSpatialReference system = chosen.isEmpty() ? OGRSpatialReference() : ReferenceOf(chosen);
    if (system.IsEmpty() && named)
        system = *named;
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return system;
}

} // namespace Orvane
