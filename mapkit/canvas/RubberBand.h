// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>

#include <optional>

class QPainter;
class QPalette;

namespace Orvane {

/// A rectangle that the user draws over the map by dragging, in logical pixels of the canvas.
class RubberBand
{
public:
    /// Begins at that corner.
    void Begin(QPointF corner) { m_rectangle = QRectF(corner, corner); }
    /// Moves the opposite corner; does nothing if no rectangle was begun.
    void Follow(QPointF corner);
    bool IsDrawn() const { return m_rectangle.has_value(); }
    /// Ends the drawing and returns the rectangle, with width and height from 0 up; nothing if none was
    /// begun.
    std::optional<QRectF> Take();

    /// Paints the rectangle, if there is one, in the palette's highlight colour.
    void Paint(QPainter& painter, const QPalette& palette) const;

private:
    std::optional<QRectF> m_rectangle; // from its first corner
};

} // namespace Orvane
