// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QString>

namespace Orvane {

/// How many metres on the ground one map unit east of that map point is. Unlike MetresPerUnit it knows how
/// the projection stretches there: web Mercator at 60° north has half a metre a unit. Falls back to
/// MetresPerUnit where the point lies off the earth or the system is unknown.
double GroundMetresPerUnit(const QString& system, QPointF map);

} // namespace Orvane
