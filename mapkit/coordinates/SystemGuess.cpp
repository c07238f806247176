// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/SystemGuess.h"

#include "mapkit/coordinates/Antimeridian.h"
#include "mapkit/coordinates/SystemFacts.h"

namespace Orvane {

namespace {

constexpr double Hair = 1e-3; // degrees; what rounding may add
constexpr Box WholeEarth{-180 - Hair, -90 - Hair, 180 + Hair, 90 + Hair};
constexpr Box EarthTwice{-360, -90 - Hair, 360, 90 + Hair};
constexpr double WidestArea = 150; // degrees of longitude; a system for more than that fits anything
constexpr double Region = 30; // degrees of longitude; the data of a larger area meet anything
constexpr double UsualOverhang = 6; // degrees; data often reach beyond the area of their system

bool Contains(const Box& outer, const Box& inner)
{
    return !inner.IsEmpty() && outer.minX <= inner.minX && inner.maxX <= outer.maxX
        && outer.minY <= inner.minY && inner.maxY <= outer.maxY;
}

Box Grown(const Box& box, double by)
{
    return {box.minX - by, box.minY - by, box.maxX + by, box.maxY + by};
}

Box Moved(const Box& box, double east)
{
    return {box.minX + east, box.minY, box.maxX + east, box.maxY};
}

bool IsAcross(const Box& box, double meridian)
{
    return box.minX < meridian && meridian < box.maxX;
}

// Where data lie across the date line, longitudes may go on beyond it.
bool FitsDegrees(const Box& box)
{
    const bool isAcross = IsAcross(box, Antimeridian::HalfTurn) || IsAcross(box, -Antimeridian::HalfTurn);
    return Contains(WholeEarth, box)
        || (isAcross && box.Width() <= Antimeridian::HalfTurn && Contains(EarthTwice, box));
}

// Across the date line the western limit is the larger number.
Box Unwrapped(Box area)
{
    if (area.minX > area.maxX)
        area.maxX += Antimeridian::Turn;
    return area;
}

bool IsInArea(const Box& degrees, const Box& area)
{
    const Box near = Grown(Unwrapped(area), UsualOverhang);
    return Contains(near, degrees) || Contains(near, Moved(degrees, Antimeridian::Turn))
        || Contains(near, Moved(degrees, -Antimeridian::Turn));
}

bool MeetsData(const Box& extent, const MapPlace& map)
{
    const Box degrees = InDegrees(map.data, map.system);
    return !degrees.IsEmpty() && degrees.Width() < Region && extent.Intersects(map.data);
}

bool FitsMap(const Box& extent, const MapPlace& map)
{
    const SystemFacts facts = FactsOf(map.system);
    if (!facts.isKnown || facts.isGeographic)
        return false;
    const Box degrees = InDegrees(extent, map.system);
    if (degrees.IsEmpty())
        return false;
    const bool hasArea = !facts.areaName.isEmpty() && Unwrapped(facts.area).Width() < WidestArea;
    return hasArea ? IsInArea(degrees, facts.area) : MeetsData(extent, map);
}

bool HasSmallNumbersToo(const Box& extent, const MapPlace& map)
{
    const SystemFacts facts = FactsOf(map.system);
    return facts.isKnown && !facts.isGeographic && Contains(WholeEarth, map.data)
        && extent.Intersects(map.data);
}

} // namespace

QString GuessSystem(const Box& extent, const MapPlace& map)
{
    if (extent.IsEmpty())
        return {};
    if (FitsDegrees(extent))
        return HasSmallNumbersToo(extent, map) ? map.system : QString::fromLatin1(AssumedDegrees);
    return FitsMap(extent, map) ? map.system : QString();
}

} // namespace Orvane
