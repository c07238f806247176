// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapTool.h"
#include "shell/tools/FeatureKey.h"

#include <functional>
#include <optional>

namespace Orvane {

class MapCanvas;

/// Moves the topmost feature under the pointer, of a layer that is not locked, by dragging it. Esc lets go.
class MoveTool : public MapTool
{
    Q_OBJECT
public:
    /// Moves the feature by so many map units; may raise.
    using Mover = std::function<void(const FeatureKey& key, QPointF offset)>;

    /// canvas: not owned; outlives this object.
    MoveTool(MapCanvas& canvas, Mover mover);

    QCursor Cursor() const override { return Qt::SizeAllCursor; }
    void Begin() override;
    void End() override { LetGo(); }
    void Click(QPointF pixel, Qt::KeyboardModifiers modifiers) override;
    bool DoubleClick(QPointF) override { return true; }
    bool DragBegin(QPointF from, Qt::KeyboardModifiers modifiers) override;
    void DragTo(QPointF pixel) override;
    void DragEnd(QPointF pixel) override;
    bool Key(const QKeyEvent& event) override;
    void Paint(QPainter& painter, const MapView& view) const override;

private:
    struct Grabbed {
        FeatureKey key;
        MapLayer layer; // with nothing but the feature
        QPointF from; // map units, as the next
        QPointF offset;
    };

    void LetGo();

    MapCanvas& m_canvas;
    Mover m_mover;
    std::optional<Grabbed> m_grabbed;
};

} // namespace Orvane
