// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/PositionText.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/SystemReference.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>
#include <ogr_spatialref.h>

namespace Orvane {

namespace {

constexpr int Decimals = 4;
constexpr double PositionTolerance = 1; // map units

bool IsGeographic(const QString& system)
{
    const OGRSpatialReference known = ReferenceOf(system);
    return !known.IsEmpty() && known.IsGeographic();
}

KeptTransformation ToDegrees(const QString& system)
{
    const OGRSpatialReference known = ReferenceOf(system);
    if (known.IsEmpty())
        return nullptr;
    return TransformationTo(QStringLiteral("EPSG:4326"), &known);
}

QString Degrees(const char* text, double degrees)
{
    return QCoreApplication::translate("PositionText", text)
        .arg(QLocale().toString(std::abs(degrees), 'f', Decimals));
}

QString Latitude(double degrees)
{
    const char* north = QT_TRANSLATE_NOOP("PositionText", "%1° N");
    const char* south = QT_TRANSLATE_NOOP("PositionText", "%1° S");
    return Degrees(degrees < 0 ? south : north, degrees);
}

QString Longitude(double degrees)
{
    const char* east = QT_TRANSLATE_NOOP("PositionText", "%1° E");
    const char* west = QT_TRANSLATE_NOOP("PositionText", "%1° W");
    return Degrees(degrees < 0 ? west : east, degrees);
}

} // namespace

PositionText::PositionText(const QString& mapSystem)
    : m_toDegrees(ToDegrees(mapSystem)), m_fromDegrees(m_toDegrees ? m_toDegrees->GetInverse() : nullptr),
      m_inDegrees(m_toDegrees || IsGeographic(mapSystem))
{
}

PositionText::PositionText(PositionText&&) noexcept = default;
PositionText& PositionText::operator=(PositionText&&) noexcept = default;
PositionText::~PositionText() = default;

QString PositionText::Of(QPointF map) const
{
    const QLocale locale;
    if (!m_inDegrees)
        return locale.toString(map.x(), 'f', 2) + QStringLiteral("  ") + locale.toString(map.y(), 'f', 2);
    const auto degrees = DegreesOf(map);
    if (!degrees)
        return {};
    return QCoreApplication::translate("PositionText", "%1, %2", "latitude and longitude")
        .arg(Latitude(degrees->y()), Longitude(degrees->x()));
}

std::optional<QPointF> PositionText::DegreesOf(QPointF map) const
{
    if (!m_inDegrees)
        return std::nullopt;
    double x = map.x();
    double y = map.y();
    const GdalErrors quiet;
    if ((m_toDegrees && !m_toDegrees->Transform(1, &x, &y)) || !IsOnEarth(map, x, y))
        return std::nullopt;
    return QPointF(x, y);
}

// Outside its valid area a projection gives positions that transform back to a different place.
bool PositionText::IsOnEarth(QPointF map, double longitude, double latitude) const
{
    if (!(std::abs(longitude) <= 180 && std::abs(latitude) <= 90))
        return false;
    return !m_fromDegrees
        || (m_fromDegrees->Transform(1, &longitude, &latitude)
            && std::hypot(longitude - map.x(), latitude - map.y()) < PositionTolerance);
}

} // namespace Orvane
