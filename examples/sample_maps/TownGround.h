// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <random>
#include <vector>

namespace Orvane {

/// The ground of the made-up town. It is planned on a grid of blocks; (u, v) count columns from the west and
/// rows from the south. A smooth warp turns the grid into metres, so that streets bend as in an old town, and
/// parcels, houses and lamps bend with them.
namespace TownGround {

inline constexpr int Columns = 24;
inline constexpr int Rows = 18;

/// What a block is used for.
enum class Use { Meadow, Field, Forest, Orchard, Park, Cemetery, Lake, Centre, Public, Industry, Houses };

/// The place of a grid point in metres.
QPointF Metres(double u, double v);
/// The row of the middle of the river in a column, and that of the railway.
double RiverRow(double u);
double RailRow(double u);
/// Metres above the sea at a place in metres.
double Height(double x, double y);

Use UseOf(int column, int row);
bool IsBuiltUp(Use use);
/// The columns and rows whose lines are main roads; only main columns have bridges over the river.
bool IsMainColumn(int column);
bool IsMainRow(int row);

/// A straight line on the grid, as the warp bends it.
std::vector<QPointF> BentLine(QPointF from, QPointF to);
/// A rectangle on the grid, as the warp bends it; closed.
std::vector<QPointF> BentRectangle(double west, double south, double east, double north);
/// A round area on the grid; closed.
std::vector<QPointF> BentEllipse(QPointF middle, double halfWidth, double halfHeight);

} // namespace TownGround

/// Numbers that look random and are the same on every machine.
class Chance
{
public:
    explicit Chance(unsigned seed) : m_engine(seed) { }
    /// A number between the two.
    double Between(double least, double most) { return least + (most - least) * (m_engine() / 4294967296.0); }
    /// True with this probability, from 0 to 1.
    bool Happens(double probability) { return Between(0, 1) < probability; }

private:
    std::mt19937 m_engine;
};

} // namespace Orvane
