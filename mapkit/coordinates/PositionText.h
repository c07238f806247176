// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/CoordinateSystems.h"

#include <QPointF>
#include <QString>

#include <optional>

namespace Orvane {

/// Formats positions of a map for the user, as latitude and longitude in degrees.
class PositionText
{
public:
    /// mapSystem: as in CoordinateSystems.h.
    explicit PositionText(const QString& mapSystem);
    PositionText(PositionText&&) noexcept;
    PositionText& operator=(PositionText&&) noexcept;
    ~PositionText();

    /// "48.1374° N, 11.5755° E", its parts in the order of the user's language; empty if the point is not on
    /// the earth. In map units if the system is not known.
    QString Of(QPointF map) const;
    /// Longitude (x) and latitude (y) in degrees; nothing if the point is not on the earth, or if the system
    /// is not known.
    std::optional<QPointF> DegreesOf(QPointF map) const;

private:
    bool IsOnEarth(QPointF map, double longitude, double latitude) const;

    KeptTransformation m_toDegrees;
    KeptTransformation m_fromDegrees;
    bool m_inDegrees;
};

} // namespace Orvane
