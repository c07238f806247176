// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QString>

#include <memory>

class OGRCoordinateTransformation;

namespace Orvane {

/// Writes positions of a map as latitude and longitude, in degrees for a person.
class PositionText
{
public:
    /// mapSystem: as in CoordinateSystems.h.
    explicit PositionText(const QString& mapSystem);
    PositionText(PositionText&&) noexcept;
    PositionText& operator=(PositionText&&) noexcept;
    ~PositionText();

    /// "48.1374° N, 11.5755° E"; empty off the earth, and plain map units where the system is not known.
    QString Of(QPointF map) const;

private:
    bool IsOnEarth(QPointF map, double longitude, double latitude) const;

    std::unique_ptr<OGRCoordinateTransformation> m_toDegrees;
    std::unique_ptr<OGRCoordinateTransformation> m_fromDegrees;
    bool m_inDegrees;
};

} // namespace Orvane
