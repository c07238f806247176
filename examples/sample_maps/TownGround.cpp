// SPDX-License-Identifier: MIT
#include "examples/sample_maps/TownGround.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Orvane::TownGround {

namespace {

constexpr double West = 500000;
constexpr double South = 5400000;
constexpr double ColumnWidth = 170;
constexpr double RowHeight = 130;
constexpr double MiddleColumn = 11.5;
constexpr double MiddleRow = 9.5;
constexpr int VerticesALine = 6;
constexpr int VerticesARound = 96;

// How far out of town a block lies: 1 at the edge of town.
double Remoteness(double u, double v)
{
    const double edge = 1 + 0.12 * std::sin(1.7 * u) + 0.1 * std::cos(2.3 * v);
    return std::hypot((u - MiddleColumn) / 9.2, (v - MiddleRow) / 6.6) / edge;
}

Use CountryUse(int column, int row)
{
    const double wood = std::sin(0.9 * column + 0.4 * row) + std::cos(0.7 * row - 0.3 * column);
    if (wood > 0.75)
        return Use::Forest;
    if (wood < -1.1)
        return Use::Orchard;
    return (column * 7 + row * 5) % 3 == 0 ? Use::Meadow : Use::Field;
}

Use TownUse(int column, int row)
{
    if ((column == 8 && row == 10) || (column == 14 && row == 8) || (column == 10 && row == 5))
        return Use::Park;
    if (column == 6 && row == 12)
        return Use::Cemetery;
    if ((column * 5 + row * 11) % 19 == 0)
        return Use::Public;
    const double fromMiddle = std::hypot(column + 0.5 - MiddleColumn, row + 0.5 - MiddleRow);
    return fromMiddle < 1.9 ? Use::Centre : Use::Houses;
}

} // namespace

QPointF Metres(double u, double v)
{
    const double x = ColumnWidth * u + 55 * std::sin(0.38 * v + 0.2 * u) + 18 * std::sin(0.9 * v + 1);
    const double y = RowHeight * v + 48 * std::sin(0.33 * u + 1) + 20 * std::sin(0.7 * u + 0.35 * v);
    return {West + x, South + y};
}

double RiverRow(double u)
{
    return 7 + 1.1 * std::sin(0.42 * u + 0.5) + 0.35 * std::sin(1.1 * u);
}

double RailRow(double u)
{
    return 12.5 + 0.7 * std::sin(0.25 * u + 2);
}

double Height(double x, double y)
{
    const double e = (x - West) / 1000;
    const double n = (y - South) / 1000;
    return 240 + 28 * std::sin(1.3 * e + 0.5) * std::cos(1.1 * n) + 22 * n + 14 * std::sin(2.7 * e - 1.9 * n)
        + 6 * std::sin(5.1 * e + 3.3 * n);
}

Use UseOf(int column, int row)
{
    const double u = column + 0.5;
    const double v = row + 0.5;
    if (std::abs(v - RiverRow(u)) < 0.9)
        return Use::Meadow;
    if (std::hypot((u - 19) / 1.6, (v - 4) / 1.4) < 1)
        return Use::Lake;
    if (Remoteness(u, v) > 1)
        return CountryUse(column, row);
    if (std::abs(v - RailRow(u)) < 1.1 && u > 12)
        return Use::Industry;
    return TownUse(column, row);
}

bool IsBuiltUp(Use use)
{
    return use == Use::Park || use == Use::Cemetery || use >= Use::Centre;
}

bool IsMainColumn(int column)
{
    return column == 5 || column == 11 || column == 17;
}

bool IsMainRow(int row)
{
    return row == 4 || row == 10 || row == 14;
}

std::vector<QPointF> BentLine(QPointF from, QPointF to)
{
    std::vector<QPointF> points;
    for (int i = 0; i <= VerticesALine; ++i) {
        const QPointF place = from + (to - from) * (double(i) / VerticesALine);
        points.push_back(Metres(place.x(), place.y()));
    }
    return points;
}

std::vector<QPointF> BentRectangle(double west, double south, double east, double north)
{
    const QPointF corners[] = {{west, south}, {east, south}, {east, north}, {west, north}, {west, south}};
    std::vector<QPointF> ring;
    for (int side = 0; side < 4; ++side) {
        const std::vector<QPointF> line = BentLine(corners[side], corners[side + 1]);
        ring.insert(ring.end(), line.begin(), line.end() - (side < 3 ? 1 : 0));
    }
    return ring;
}

std::vector<QPointF> BentEllipse(QPointF middle, double halfWidth, double halfHeight)
{
    std::vector<QPointF> ring;
    for (int i = 0; i <= VerticesARound; ++i) {
        const double angle = 2 * std::numbers::pi * i / VerticesARound;
        const double wobble = 1 + 0.08 * std::sin(3 * angle) + 0.05 * std::cos(5 * angle);
        ring.push_back(Metres(
            middle.x() + halfWidth * wobble * std::cos(angle),
            middle.y() + halfHeight * wobble * std::sin(angle)));
    }
    return ring;
}

} // namespace Orvane::TownGround
