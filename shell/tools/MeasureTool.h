// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapTool.h"
#include "mapkit/coordinates/EarthMeasure.h"

#include <QPolygonF>

#include <optional>
#include <vector>

namespace Orvane {

class MapCanvas;

/// Measures a line or an area on the earth. Each click sets a vertex; a double click, the right button or
/// Enter ends; Backspace removes the last vertex; Esc removes all. Vertices snap only to layers that have
/// snapping set.
class MeasureTool : public MapTool
{
    Q_OBJECT
public:
    enum class Kind { Line, Area };

    /// canvas: not owned; outlives this object.
    MeasureTool(MapCanvas& canvas, Kind kind);

    /// The coordinate system of the map, as in CoordinateSystems.h. Removes the measurement.
    void SetSystem(const QString& system);

    /// The vertices set so far, in map units.
    const std::vector<QPointF>& Vertices() const { return m_vertices; }

    QCursor Cursor() const override { return Qt::CrossCursor; }
    void Begin() override;
    void End() override { Forget(); }
    void Click(QPointF pixel, Qt::KeyboardModifiers modifiers) override;
    bool DoubleClick(QPointF pixel) override;
    bool RightClick(QPointF pixel) override;
    void Hover(QPointF pixel) override;
    bool Key(const QKeyEvent& event) override;
    void Paint(QPainter& painter, const MapView& view) const override;

private:
    QPointF Snapped(QPointF pixel);
    void Finish();
    void Forget();
    void Tell();
    std::vector<QPointF> Shape() const;
    QString Result(const std::vector<QPointF>& shape) const;
    QString Status(const std::vector<QPointF>& shape) const;
    QString LengthOf(std::span<const QPointF> line) const;
    void PaintShape(QPainter& painter, const QPolygonF& pixels) const;
    void PaintLabels(QPainter& painter, const QPolygonF& pixels) const;
    void PaintSnap(QPainter& painter, const MapView& view) const;

    MapCanvas& m_canvas;
    const Kind m_kind;
    EarthMeasure m_measure{QString()};
    std::vector<QPointF> m_vertices; // map units, as the next
    std::optional<QPointF> m_pointer; // the vertex that a click would set
    bool m_snapped = false; // the pointer is on a feature
    bool m_finished = false; // the next click begins again
};

} // namespace Orvane
