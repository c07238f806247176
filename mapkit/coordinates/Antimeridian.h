// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <span>
#include <vector>

namespace Orvane {

/// Lines and rings in degrees that pass the meridian of 180 degrees, cut there: their longitudes jump from
/// one side to the other, or go on beyond 180. What a cut leaves lies from -180 to 180. A map with another
/// middle than Greenwich ends at another meridian: what passes that one is cut there instead.
///
///     if (Antimeridian::IsPassed(points))
///         for (const auto& part : Antimeridian::CutRing(points)) ...
///
/// A step of more than 180 degrees of longitude counts as the shorter way around the earth, unless it leads
/// from one edge of the map to the other, as at the end of a continent that was cut already. A rectangle is
/// taken the way in which it is nearer to a square: an island, or the bounds of almost the whole earth.
namespace Antimeridian {

using Points = std::vector<QPointF>;

inline constexpr double HalfTurn = 180; ///< degrees
inline constexpr double Pole = 90; ///< degrees of latitude
inline constexpr double Turn = 360; ///< degrees

/// A longitude from -180 to 180 for one that may go on beyond, such as 200; others stay. What is beyond by a
/// rounding error only, such as -180.00000000000003, stays on its side.
double Longitude(double longitude);

/// Whether there is something to cut or to move; most geometries end here. middle: the map's, in degrees.
bool IsPassed(std::span<const QPointF> points, double middle = 0);

/// The parts of a line; their longitudes differ from the middle by up to 180 degrees.
std::vector<Points> CutLine(std::span<const QPointF> points, double middle = 0);

/// The rings of a closed ring. A ring around a pole is closed along the meridian and the pole.
std::vector<Points> CutRing(std::span<const QPointF> points, double middle = 0);

} // namespace Antimeridian

} // namespace Orvane
