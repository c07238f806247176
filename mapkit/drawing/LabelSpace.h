// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPolygonF>

#include <vector>

namespace Orvane {

/// The ground that labels have taken, so that no two overlap.
class LabelSpace
{
public:
    /// Takes the box, a rectangle at any angle, in pixels. False, and nothing taken, when part of it is taken
    /// already.
    bool Take(const QPolygonF& box);
    /// Takes the box although others may have parts of it.
    void Block(const QPolygonF& box);

private:
    QHash<QPoint, std::vector<size_t>> m_cells; // which boxes touch a cell
    std::vector<QPolygonF> m_boxes;
};

} // namespace Orvane
