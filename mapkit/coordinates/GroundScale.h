// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QString>

namespace Orvane {

/// The length on the ground, in metres, of one map unit to the east at that map point. Unlike MetresPerUnit,
/// it takes the distortion of the projection into account: in web Mercator at 60° north it is half a metre
/// per unit. Returns MetresPerUnit if the point is not on the earth or the system is unknown.
double GroundMetresPerUnit(const QString& system, QPointF map);

} // namespace Orvane
