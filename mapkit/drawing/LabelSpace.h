// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPolygonF>

#include <vector>

namespace Orvane {

/// The areas that labels occupy, so that no two labels overlap.
class LabelSpace
{
public:
    /// Occupies the box, a rectangle at any angle, in pixels. Returns false and does nothing if part of it is
    /// already occupied.
    bool Take(const QPolygonF& box);
    /// Occupies the box even if parts of it are already occupied.
    void Block(const QPolygonF& box);

private:
    QHash<QPoint, std::vector<size_t>> m_cells; // which boxes touch a cell
    std::vector<QPolygonF> m_boxes;
};

} // namespace Orvane
