// SPDX-License-Identifier: MIT
#include "mapkit/drawing/LabelSpace.h"

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr double CellSize = 64; // pixels

// True when a line along one of the box's sides separates the two boxes.
bool HasPartingSide(const QPolygonF& box, const QPolygonF& other)
{
    for (qsizetype i = 0; i < box.size(); ++i) {
        const QPointF from = box[i];
        const QPointF side = box[(i + 1) % box.size()] - from;
        const auto outside
            = [&](QPointF p) { return side.x() * (p.y() - from.y()) - side.y() * (p.x() - from.x()) <= 0; };
        if (std::all_of(other.begin(), other.end(), outside))
            return true;
    }
    return false;
}

bool Overlap(const QPolygonF& a, const QPolygonF& b)
{
    return !HasPartingSide(a, b) && !HasPartingSide(b, a);
}

std::vector<QPoint> CellsOf(const QPolygonF& box)
{
    const QRectF bounds = box.boundingRect();
    const auto cell = [](double pixel) { return int(std::floor(pixel / CellSize)); };
    std::vector<QPoint> cells;
    for (int x = cell(bounds.left()); x <= cell(bounds.right()); ++x) {
        for (int y = cell(bounds.top()); y <= cell(bounds.bottom()); ++y)
            cells.emplace_back(x, y);
    }
    return cells;
}

} // namespace

bool LabelSpace::Take(const QPolygonF& box)
{
    for (const QPoint& cell : CellsOf(box)) {
        for (const size_t taken : m_cells.value(cell)) {
            if (Overlap(box, m_boxes[taken]))
                return false;
        }
    }
    Block(box);
    return true;
}

void LabelSpace::Block(const QPolygonF& box)
{
    for (const QPoint& cell : CellsOf(box))
        m_cells[cell].push_back(m_boxes.size());
    m_boxes.push_back(box);
}

} // namespace Orvane
