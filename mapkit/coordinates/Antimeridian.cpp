// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/Antimeridian.h"

#include "mapkit/coordinates/Box.h"

#include <algorithm>
#include <cmath>

namespace Orvane::Antimeridian {

namespace {

constexpr double Half = HalfTurn;
constexpr double EdgeTolerance = 1e-6;
constexpr double LowestBounds = 45; // degrees of latitude
constexpr double WidestSeam = 0.1; // degrees that a belt around the earth may leave open
constexpr double MostTurns = 3; // beyond that the numbers are no longitudes

bool IsAtEdge(const QPointF& point)
{
    return std::abs(std::abs(point.x()) - Half) < EdgeTolerance;
}

// A line that comes to the edge and goes on from the other one. The frame of a map, and the foot of a
// continent that was cut, run along the edges instead.
bool GoesOn(std::span<const QPointF> points, size_t to)
{
    const bool hasBefore = to >= 2;
    const bool hasBehind = to + 1 < points.size();
    return (hasBefore || hasBehind) && (!hasBefore || !IsAtEdge(points[to - 2]))
        && (!hasBehind || !IsAtEdge(points[to + 1]));
}

// Whether the step to that point leads past the meridian.
bool IsJump(std::span<const QPointF> points, size_t to)
{
    const double step = to == 0 ? 0 : std::abs(points[to].x() - points[to - 1].x());
    if (!(step > Half))
        return false;
    const bool isWholeTurn = std::abs(step - Turn) < EdgeTolerance; // from edge to edge, or around the earth
    return !isWholeTurn || (IsAtEdge(points[to]) && GoesOn(points, to));
}

Box BoxAround(std::span<const QPointF> points)
{
    Box box;
    for (const QPointF& point : points)
        box.Add(point);
    return box;
}

bool IsOnEdgeOf(const Box& box, const QPointF& point)
{
    return point.x() == box.minX || point.x() == box.maxX || point.y() == box.minY || point.y() == box.maxY;
}

bool IsRectangle(std::span<const QPointF> points, const Box& box)
{
    for (size_t i = 1; i < points.size(); ++i) {
        const bool isAlongAxis = points[i].x() == points[i - 1].x() || points[i].y() == points[i - 1].y();
        if (!isAlongAxis || !IsOnEdgeOf(box, points[i]))
            return false;
    }
    return points.size() > 4 && points.front() == points.back();
}

// A rectangle is all there is of an island across the meridian, or of the bounds of almost the whole earth.
// It is what is nearer to a square; but a low one with a gap is a strip along the meridian.
bool IsWideRectangle(std::span<const QPointF> points)
{
    const Box box = BoxAround(points);
    const double gap = Turn - box.Width();
    const bool isLow = box.Height() < LowestBounds && gap > WidestSeam;
    return !isLow && box.Height() * box.Height() > box.Width() * gap && IsRectangle(points, box);
}

// Longitudes that go on without jumps.
Points Unrolled(std::span<const QPointF> points)
{
    const bool isWide = IsWideRectangle(points);
    Points unrolled;
    unrolled.reserve(points.size());
    double shift = 0;
    for (size_t i = 0; i < points.size(); ++i) {
        if (!isWide && IsJump(points, i))
            shift += points[i].x() > points[i - 1].x() ? -Turn : Turn;
        unrolled.emplace_back(points[i].x() + shift, points[i].y());
    }
    return unrolled;
}

QPointF AtLongitude(const QPointF& from, const QPointF& to, double longitude)
{
    const double share = (longitude - from.x()) / (to.x() - from.x());
    return {longitude, from.y() + share * (to.y() - from.y())};
}

struct Range {
    double west;
    double east;
};

Range RangeOf(const Points& points)
{
    const auto [west, east] = std::minmax_element(
        points.begin(), points.end(), [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
    return {west->x(), east->x()};
}

// Keeps what lies on the side of the meridian to which sign (1: east) leads.
Points RingBeside(const Points& ring, double meridian, double sign)
{
    Points kept;
    for (size_t i = 0; i < ring.size(); ++i) {
        const QPointF& from = ring[i];
        const QPointF& to = ring[(i + 1) % ring.size()];
        const double here = sign * (from.x() - meridian);
        const double there = sign * (to.x() - meridian);
        if (here >= 0)
            kept.push_back(from);
        if ((here > 0 && there < 0) || (here < 0 && there > 0))
            kept.push_back(AtLongitude(from, to, meridian));
    }
    return kept;
}

// The unrolled ring ends a turn away from its beginning: it goes around a pole.
void CloseAroundPole(Points& ring)
{
    double north = 0;
    for (const QPointF& point : ring)
        north += point.y();
    const double pole = north < 0 ? -Pole : Pole;
    const QPointF first = ring.front();
    const QPointF last = ring.back();
    ring.insert(ring.end(), {QPointF(last.x(), pole), QPointF(first.x(), pole), first});
}

Points Shifted(Points points, double shift)
{
    for (QPointF& point : points)
        point.rx() -= shift;
    return points;
}

// Each turn of the earth that the points lie in, by how far it is from the turn around the map's middle.
template <typename Use> void ForEachTurn(const Points& points, double middle, const Use& use)
{
    const Range range = RangeOf(points);
    const double first = std::ceil((range.west - middle - Half) / Turn - EdgeTolerance);
    const double last = std::floor((range.east - middle + Half) / Turn + EdgeTolerance);
    for (double turn = first; turn <= last; ++turn)
        use(turn * Turn);
}

void AddPiece(std::vector<Points>& pieces, Points& piece)
{
    if (piece.size() > 1)
        pieces.push_back(piece);
    piece.clear();
}

// The pieces of the line from west to east of the turn's edges.
void AddLinesWithin(std::vector<Points>& pieces, const Points& line, double west, double east)
{
    Points piece;
    for (size_t i = 0; i + 1 < line.size(); ++i) {
        QPointF from = line[i];
        QPointF to = line[i + 1];
        if (std::max(from.x(), to.x()) < west || std::min(from.x(), to.x()) > east) {
            AddPiece(pieces, piece);
            continue;
        }
        const bool leaves = to.x() < west || to.x() > east;
        const QPointF whole[] = {from, to};
        if (from.x() < west || from.x() > east)
            from = AtLongitude(whole[0], whole[1], from.x() < west ? west : east);
        if (leaves)
            to = AtLongitude(whole[0], whole[1], to.x() < west ? west : east);
        if (piece.empty())
            piece.push_back(from);
        piece.push_back(to);
        if (leaves)
            AddPiece(pieces, piece);
    }
    AddPiece(pieces, piece);
}

bool HasWidth(const Points& points)
{
    const Range range = RangeOf(points);
    return range.east - range.west > EdgeTolerance;
}

} // namespace

double Longitude(double longitude)
{
    if (std::abs(std::abs(longitude) - Half) < EdgeTolerance)
        return std::clamp(longitude, -Half, Half);
    const bool isBeyond = std::abs(longitude) > Half && std::abs(longitude) < MostTurns * Half;
    return isBeyond ? longitude - Turn * std::round(longitude / Turn) : longitude;
}

bool IsPassed(std::span<const QPointF> points, double middle)
{
    bool isBeyond = false;
    bool hasJump = false;
    for (size_t i = 0; i < points.size(); ++i) {
        if (!(std::abs(points[i].x()) < MostTurns * Half)
            || !(std::abs(points[i].y()) <= Pole + EdgeTolerance))
            return false;
        isBeyond = isBeyond || std::abs(points[i].x() - middle) > Half + EdgeTolerance;
        hasJump = hasJump || IsJump(points, i);
    }
    return isBeyond || (hasJump && !IsWideRectangle(points));
}

std::vector<Points> CutLine(std::span<const QPointF> points, double middle)
{
    const Points line = Unrolled(points);
    std::vector<Points> pieces;
    ForEachTurn(line, middle, [&](double shift) {
        std::vector<Points> within;
        AddLinesWithin(within, line, middle + shift - Half, middle + shift + Half);
        for (Points& piece : within)
            pieces.push_back(Shifted(std::move(piece), shift));
    });
    return pieces;
}

std::vector<Points> CutRing(std::span<const QPointF> points, double middle)
{
    Points ring = Unrolled(points);
    if (std::abs(ring.back().x() - ring.front().x()) > Half)
        CloseAroundPole(ring);
    std::vector<Points> pieces;
    ForEachTurn(ring, middle, [&](double shift) {
        const double centre = middle + shift;
        const Points piece = RingBeside(RingBeside(ring, centre - Half, 1), centre + Half, -1);
        if (piece.size() > 2 && HasWidth(piece))
            pieces.push_back(Shifted(piece, shift));
    });
    return pieces;
}

} // namespace Orvane::Antimeridian
