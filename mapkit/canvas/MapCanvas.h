// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapPicture.h"
#include "mapkit/canvas/ToolGestures.h"
#include "mapkit/drawing/MapView.h"

#include <QTimer>
#include <QWidget>

namespace Orvane {

class MapOverlay;
class MapTool;

/// The window on the map. Drag pans, the wheel zooms at the pointer, a double click zooms in; arrow keys pan,
/// + and - zoom, Home shows everything. A tool takes over what it has a use for; the middle button, the wheel
/// and the arrow keys move the map under any tool.
///
/// While a new picture is being drawn the last one is shown moved and stretched, so that the map follows the
/// hand at once.
class MapCanvas : public QWidget
{
    Q_OBJECT
public:
    explicit MapCanvas(QWidget* parent = nullptr);

    /// Draws these layers from now on; the view stays. metresPerUnit: length of a map unit, for the scale.
    void SetLayers(std::vector<MapLayer> layers, double metresPerUnit);
    /// Draws these layers over that picture (nullptr for none), zoomed so that everything is seen.
    void ShowAll(
        std::vector<MapLayer> layers, std::shared_ptr<const RasterBackdrop> backdrop, double metresPerUnit);
    /// The layers as they were set.
    const std::vector<MapLayer>& Layers() const { return m_picture.Layers(); }

    /// Lays a picture under all layers; nullptr for none.
    void SetBackdrop(std::shared_ptr<const RasterBackdrop> backdrop);

    const MapView& View() const { return m_view; }
    void SetView(const MapView& view);
    /// n of the scale 1:n.
    double ScaleDenominator() const;

    /// The background painter, whose signals tell what is being drawn.
    const MapPicture& Picture() const { return m_picture; }

    /// The tool in hand; nullptr for none, which leaves pan and zoom. Not owned.
    void SetTool(MapTool* tool);
    MapTool* Tool() const { return m_gestures.Tool(); }

    /// Painted over the map from now on, above those added before. Not owned; to be removed before it ends.
    void AddOverlay(const MapOverlay* overlay);
    void RemoveOverlay(const MapOverlay* overlay);

    QSize sizeHint() const override { return {800, 600}; }

public slots:
    /// Shows everything that there is to show.
    void ZoomToAll();
    void ZoomIn();
    void ZoomOut();

signals:
    /// The part of the map that is shown changed.
    void ViewChanged();
    /// The layers were set, which may have changed any of them.
    void LayersChanged();
    /// Another tool is in hand.
    void ToolChanged();
    /// The pointer is over that map point.
    void PointerMoved(QPointF map);
    /// The pointer is over the map no longer.
    void PointerLeft();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void BeginPan(QPointF from);
    void ShowCursor();
    void PaintMap(QPainter& painter);
    void PaintOverlays(QPainter& painter);
    void DrawAnew();
    double DenominatorOf(const MapView& view) const;
    QPointF MiddlePixel() const;

    MapPicture m_picture;
    MapView m_view;
    double m_metresPerUnit = 1;
    QPointF m_dragFrom;
    bool m_dragging = false;
    ToolGestures m_gestures;
    std::vector<const MapOverlay*> m_overlays;
    QTimer m_drawSoon; // gathers the many small steps of a drag or a wheel turn
};

} // namespace Orvane
