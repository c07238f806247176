// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapTool.h"
#include "mapkit/canvas/RubberBand.h"

namespace Orvane {

class MapCanvas;

/// Zooms to a rectangle that the user draws; Esc drops it. A click zooms in at that place, with Ctrl out. It
/// may be the current tool, or the one for drags with Shift, or both.
class ZoomTool : public MapTool
{
    Q_OBJECT
public:
    /// canvas: not owned; outlives this object.
    explicit ZoomTool(MapCanvas& canvas) : m_canvas(canvas) { }

    QCursor Cursor() const override { return Qt::CrossCursor; }
    void Begin() override;
    void End() override { m_band.Take(); }
    void Click(QPointF pixel, Qt::KeyboardModifiers modifiers) override;
    bool DoubleClick(QPointF pixel) override;
    bool DragBegin(QPointF from, Qt::KeyboardModifiers modifiers) override;
    void DragTo(QPointF pixel) override;
    void DragEnd(QPointF pixel) override;
    bool Key(const QKeyEvent& event) override;
    void Paint(QPainter& painter, const MapView& view) const override;

private:
    MapCanvas& m_canvas;
    RubberBand m_band;
};

} // namespace Orvane
