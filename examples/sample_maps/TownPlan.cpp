// SPDX-License-Identifier: MIT
#include "examples/sample_maps/TownPlan.h"

#include "examples/sample_maps/TownGround.h"

#include <QPolygonF>

#include <cmath>

namespace Orvane {

using namespace TownGround;

namespace {

constexpr unsigned Seed = 20260;
constexpr double HalfStreet = 0.045; // of a block, from the grid line to the parcels
constexpr double RiverHalfWidth = 0.24; // of a row
constexpr double ContourCell = 20; // metres

QPolygonF SheetOutline()
{
    QPolygonF outline;
    for (const QPointF& point : BentRectangle(0, 0, Columns, Rows))
        outline << point;
    return outline;
}

class TownPlanner
{
public:
    TownPlan Plan()
    {
        for (int row = 0; row < Rows; ++row) {
            for (int column = 0; column < Columns; ++column)
                PlanBlock(column, row);
        }
        PlanStreets();
        PlanWater();
        PlanRailway();
        PlanUtilities();
        PlanLimits();
        PlanHeights();
        return std::move(m_plan);
    }

private:
    void Add(const char* layer, FeatureKind kind, const std::vector<QPointF>& points)
    {
        FeatureSet& features = m_plan.layers[layer];
        features.BeginFeature(kind);
        features.AddPart(points);
    }
    void AddArea(const char* layer, const std::vector<QPointF>& ring) { Add(layer, FeatureKind::Area, ring); }
    void AddLine(const char* layer, const std::vector<QPointF>& line) { Add(layer, FeatureKind::Line, line); }
    void AddPoint(const char* layer, double u, double v) { Add(layer, FeatureKind::Point, {Metres(u, v)}); }

    void PlanBlock(int column, int row);
    void PlanOpenBlock(const char* layer, int column, int row, double inset);
    void PlanTrees(int column, int row, double count);
    void PlanPark(int column, int row);
    void PlanLots(int column, int row, Use use);
    void PlanLot(QRectF lot, Use use);
    void PlanStreets();
    void PlanStreet(QPointF from, QPointF to, bool main, bool wanted);
    void PlanWater();
    void PlanRailway();
    void PlanUtilities();
    void PlanLimits();
    void PlanHeights();

    TownPlan m_plan;
    Chance m_chance{Seed};
};

void TownPlanner::PlanBlock(int column, int row)
{
    const Use use = UseOf(column, row);
    switch (use) {
    case Use::Meadow:
        PlanTrees(column, row, 3);
        return PlanOpenBlock("meadows", column, row, 0);
    case Use::Field:
        return PlanOpenBlock("fields", column, row, 0.01);
    case Use::Forest:
        return PlanOpenBlock("forest", column, row, 0);
    case Use::Orchard:
        PlanTrees(column, row, 14);
        return PlanOpenBlock("orchards", column, row, 0.02);
    case Use::Lake:
        return PlanOpenBlock("meadows", column, row, 0);
    case Use::Park:
        return PlanPark(column, row);
    case Use::Cemetery:
        PlanTrees(column, row, 12);
        return PlanOpenBlock("cemetery", column, row, HalfStreet);
    default:
        return PlanLots(column, row, use);
    }
}

void TownPlanner::PlanOpenBlock(const char* layer, int column, int row, double inset)
{
    AddArea(layer, BentRectangle(column + inset, row + inset, column + 1 - inset, row + 1 - inset));
}

void TownPlanner::PlanTrees(int column, int row, double count)
{
    for (int i = 0; i < count; ++i)
        AddPoint("trees", column + m_chance.Between(0.1, 0.9), row + m_chance.Between(0.1, 0.9));
}

void TownPlanner::PlanPark(int column, int row)
{
    PlanOpenBlock("parks", column, row, HalfStreet);
    PlanTrees(column, row, 24);
    AddArea("ponds", BentEllipse({column + 0.62, row + 0.4}, 0.14, 0.12));
    AddLine("footpaths", BentLine({column + 0.05, row + 0.05}, {column + 0.95, row + 0.95}));
    AddLine("footpaths", BentLine({column + 0.05, row + 0.95}, {column + 0.95, row + 0.05}));
    AddPoint("playgrounds", column + 0.25, row + 0.5);
}

void TownPlanner::PlanLots(int column, int row, Use use)
{
    AddArea(
        "blocks",
        BentRectangle(column + HalfStreet, row + HalfStreet, column + 1 - HalfStreet, row + 1 - HalfStreet));
    const int across = use == Use::Houses ? 6 : use == Use::Centre ? 5 : 2;
    const int along = use == Use::Public ? 1 : 2;
    const double inner = 1 - 2 * HalfStreet;
    for (int i = 0; i < across; ++i) {
        for (int j = 0; j < along; ++j) {
            const QRectF lot(
                column + HalfStreet + inner * i / across, row + HalfStreet + inner * j / along,
                inner / across, inner / along);
            PlanLot(lot, use);
        }
    }
}

void TownPlanner::PlanLot(QRectF lot, Use use)
{
    AddArea("parcels", BentRectangle(lot.left(), lot.top(), lot.right(), lot.bottom()));
    AddPoint("boundary stones", lot.left(), lot.top());
    const double depth = use == Use::Centre ? 0.06 : m_chance.Between(0.14, 0.26);
    const double side = use == Use::Centre ? 0.02 : m_chance.Between(0.12, 0.24);
    const QRectF walls = lot.adjusted(
        lot.width() * side, lot.height() * depth, -lot.width() * side, -lot.height() * (depth + 0.22));
    const char* layer = use == Use::Houses ? "houses"
        : use == Use::Centre               ? "town centre"
        : use == Use::Public               ? "public buildings"
                                           : "industry";
    AddArea(layer, BentRectangle(walls.left(), walls.top(), walls.right(), walls.bottom()));
    if (use != Use::Houses)
        return;
    if (m_chance.Happens(0.55)) {
        const double shed = lot.width() * 0.22;
        AddArea(
            "garages",
            BentRectangle(
                lot.left() + 0.01, lot.bottom() - 0.09, lot.left() + 0.01 + shed, lot.bottom() - 0.03));
    }
    if (m_chance.Happens(0.6))
        AddPoint("trees", lot.right() - lot.width() * 0.25, lot.bottom() - lot.height() * 0.12);
}

void TownPlanner::PlanStreets()
{
    const auto builtUp = [](int column, int row) {
        return column >= 0 && row >= 0 && column < Columns && row < Rows && IsBuiltUp(UseOf(column, row));
    };
    for (int row = 0; row <= Rows; ++row) {
        for (int column = 0; column <= Columns; ++column) {
            const QPointF corner(column, row);
            const bool east = builtUp(column, row) || builtUp(column, row - 1);
            const bool north = builtUp(column, row) || builtUp(column - 1, row);
            if (column < Columns)
                PlanStreet(corner, {column + 1.0, double(row)}, IsMainRow(row), east);
            if (row < Rows)
                PlanStreet(corner, {double(column), row + 1.0}, IsMainColumn(column), north);
        }
    }
}

void TownPlanner::PlanStreet(QPointF from, QPointF to, bool main, bool wanted)
{
    const auto side = [](QPointF place) { return place.y() - RiverRow(place.x()); };
    const bool crossesRiver = side(from) * side(to) < 0;
    if (crossesRiver && !main)
        return;
    if (crossesRiver && from.x() == to.x()) {
        const double river = RiverRow(from.x());
        AddLine("bridges", BentLine({from.x(), river - 0.3}, {from.x(), river + 0.3}));
    }
    if (main)
        AddLine("main roads", BentLine(from, to));
    else if (wanted)
        AddLine("streets", BentLine(from, to));
    if (!wanted)
        return;
    for (const double part : {0.2, 0.5, 0.8}) {
        const QPointF lamp = from + (to - from) * part;
        AddPoint(
            "street lamps", lamp.x() + (from.x() == to.x() ? 0.03 : 0),
            lamp.y() + (from.x() == to.x() ? 0 : 0.035));
    }
    AddPoint("hydrants", from.x() + 0.02, from.y() + 0.025);
    if (main && m_chance.Happens(0.35))
        AddPoint("bus stops", (from.x() + to.x()) / 2 + 0.05, (from.y() + to.y()) / 2 + 0.05);
}

void TownPlanner::PlanWater()
{
    std::vector<QPointF> north, south;
    for (double u = 0; u <= Columns; u += 0.2) {
        const double half = RiverHalfWidth * (1 + 0.2 * std::sin(1.9 * u));
        north.push_back(Metres(u, RiverRow(u) + half));
        south.push_back(Metres(u, RiverRow(u) - half));
    }
    north.insert(north.end(), south.rbegin(), south.rend());
    AddArea("river", north);
    AddArea("lake", BentEllipse({19, 4}, 1.35, 1.15));
    for (const double source : {2.5, 14.3, 21.2}) {
        std::vector<QPointF> stream;
        const double mouth = RiverRow(source);
        for (double part = 0; part <= 1.0001; part += 0.04)
            stream.push_back(Metres(source + 0.5 * std::sin(7 * part), mouth * part));
        AddLine("streams", stream);
    }
    for (double u = 1; u < Columns; u += 0.5)
        AddLine("footpaths", BentLine({u - 0.5, RiverRow(u - 0.5) + 0.5}, {u, RiverRow(u) + 0.5}));
}

void TownPlanner::PlanRailway()
{
    for (double u = 0; u < Columns; u += 0.5) {
        AddLine("railway", BentLine({u, RailRow(u)}, {u + 0.5, RailRow(u + 0.5)}));
        if (u > 12 && u < 17)
            AddLine("railway", BentLine({u, RailRow(u) + 0.12}, {u + 0.5, RailRow(u + 0.5) + 0.12}));
    }
    for (const double u : {5.15, 11.3, 17.15}) {
        AddArea("stations", BentRectangle(u, RailRow(u) - 0.16, u + 0.45, RailRow(u) - 0.05));
        AddPoint("stops", u + 0.2, RailRow(u + 0.2));
    }
}

void TownPlanner::PlanUtilities()
{
    QPointF before(0.3, 1.2);
    for (double u = 1.3; u < Columns; u += 1) {
        const QPointF mast(u, 1.2 + 0.55 * u);
        if (mast.y() > Rows)
            break;
        AddLine("power line", {Metres(before.x(), before.y()), Metres(mast.x(), mast.y())});
        AddPoint("masts", mast.x(), mast.y());
        before = mast;
    }
}

void TownPlanner::PlanLimits()
{
    AddArea("town limits", BentEllipse({11.5, 9.5}, 10.2, 7.6));
    AddArea("map sheet", BentRectangle(0, 0, Columns, Rows));
}

void TownPlanner::PlanHeights()
{
    HeightGrid& grid = m_plan.heights;
    const Box& area = m_plan.layers["map sheet"].Bounds();
    grid.cellSize = ContourCell;
    grid.west = area.minX;
    grid.north = area.maxY;
    grid.columns = int(area.Width() / ContourCell);
    grid.rows = int(area.Height() / ContourCell);
    const QPolygonF sheet = SheetOutline();
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
            const QPointF place(
                grid.west + (column + 0.5) * ContourCell, grid.north - (row + 0.5) * ContourCell);
            const bool known = sheet.containsPoint(place, Qt::OddEvenFill);
            grid.heights.push_back(known ? float(Height(place.x(), place.y())) : HeightGrid::NoHeight);
        }
    }
}

} // namespace

TownPlan PlanTown()
{
    return TownPlanner().Plan();
}

} // namespace Orvane
