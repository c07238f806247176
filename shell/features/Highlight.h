// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapTool.h"
#include "mapkit/drawing/MapView.h"
#include "shell/features/FeatureKey.h"

#include <QColor>
#include <QImage>
#include <QObject>

#include <memory>
#include <vector>

class QTimer;

namespace Orvane {

class MapCanvas;
struct MapLayer;

/// Marks features on a canvas in a separate colour, as long as their layer is shown. While the map is
/// dragged, a mark of many vertices is moved and stretched like the map itself, and drawn again when the map
/// stops.
class Highlight : public QObject, public MapOverlay
{
    Q_OBJECT
public:
    /// canvas: not owned; outlives this object.
    Highlight(MapCanvas& canvas, const QColor& colour);
    ~Highlight() override;

    /// Marks these and nothing else.
    void Show(FeatureKeys keys);
    void Clear() { Show({}); }
    const FeatureKeys& Keys() const { return m_keys; }

    void Paint(QPainter& painter, const MapView& view) const override;

private:
    // The last drawing of a mark that takes long to draw.
    struct Picture {
        QImage image;
        MapView view;
        MapView next; ///< the view to draw when the map stops
        bool outdated = true;
    };

    void Collect();
    void PaintMarked(QPainter& painter, const MapView& view) const;
    void DrawPicture(const MapView& view, double devicePixelRatio) const;

    MapCanvas& m_canvas;
    const QColor m_colour;
    FeatureKeys m_keys;
    std::vector<MapLayer> m_marked; // each layer with its marked features only
    size_t m_vertices = 0; // of all of them
    mutable Picture m_picture;
    QTimer* m_drawSoon; // owned by this object
};

} // namespace Orvane
