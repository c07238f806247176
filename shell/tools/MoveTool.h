// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapTool.h"
#include "mapkit/drawing/MapLayer.h"
#include "shell/features/FeatureKey.h"

#include <functional>
#include <optional>

namespace Orvane {

class MapCanvas;

/// Moves the topmost feature under the pointer, of a layer that is not locked, by dragging it. Esc cancels
/// the drag. If the feature cannot be moved, the reason is shown when the drag begins.
class MoveTool : public MapTool
{
    Q_OBJECT
public:
    /// The functions that move a feature.
    struct Hand {
        std::function<void(const FeatureKey& key)> check; ///< raises the reason when it cannot be moved
        std::function<void(const FeatureKey& key, QPointF offset)> move; ///< by map units; may raise
    };

    /// canvas: not owned; outlives this object.
    MoveTool(MapCanvas& canvas, Hand hand);

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
        MapLayer layer; // with this feature only
        QPointF from; // map units, as the next
        QPointF offset;
    };

    bool MayMove(const FeatureKey& key);
    void LetGo();

    MapCanvas& m_canvas;
    Hand m_hand;
    std::optional<Grabbed> m_grabbed;
};

} // namespace Orvane
