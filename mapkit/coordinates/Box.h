// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <algorithm>
#include <limits>

namespace Orvane {

/// A rectangle in map units, parallel to the axes. A new box is empty. A box around a single point has no
/// width, but is not empty.
struct Box {
    double minX = std::numeric_limits<double>::infinity();
    double minY = std::numeric_limits<double>::infinity();
    double maxX = -std::numeric_limits<double>::infinity();
    double maxY = -std::numeric_limits<double>::infinity();

    bool IsEmpty() const { return minX > maxX || minY > maxY; }
    double Width() const { return maxX - minX; }
    double Height() const { return maxY - minY; }

    /// Enlarges the box to contain the point.
    void Add(QPointF point)
    {
        minX = std::min(minX, point.x());
        minY = std::min(minY, point.y());
        maxX = std::max(maxX, point.x());
        maxY = std::max(maxY, point.y());
    }

    /// Enlarges the box to contain the other box; an empty one changes nothing.
    void Add(const Box& other)
    {
        minX = std::min(minX, other.minX);
        minY = std::min(minY, other.minY);
        maxX = std::max(maxX, other.maxX);
        maxY = std::max(maxY, other.maxY);
    }

    /// True when the boxes share at least one point; an empty box intersects nothing.
    bool Intersects(const Box& other) const
    {
        return minX <= other.maxX && other.minX <= maxX && minY <= other.maxY && other.minY <= maxY;
    }

    bool operator==(const Box&) const = default;
};

} // namespace Orvane
