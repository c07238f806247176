// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapPicture.h"
#include "mapkit/canvas/ToolGestures.h"
#include "mapkit/drawing/MapView.h"

#include <QTimer>
#include <QWidget>

#include <optional>

namespace Orvane {

class MapOverlay;
class MapTool;

/// The widget that shows the map. Dragging pans, the wheel zooms at the pointer, a double click zooms in;
/// arrow keys pan, + and - zoom, Home shows everything. A tool may handle some of these gestures itself; the
/// middle button, the wheel and the arrow keys always move the map.
///
/// While a new picture is being drawn, the last one is shown moved and scaled, so that the map follows the
/// pointer at once.
class MapCanvas : public QWidget
{
    Q_OBJECT
public:
    explicit MapCanvas(QWidget* parent = nullptr);

    /// Replaces the layers; the view stays. metresPerUnit: length of a map unit, for the scale.
    void SetLayers(std::vector<MapLayer> layers, double metresPerUnit);
    /// Draws these layers over that picture (nullptr for none), zoomed so that everything is visible. It
    /// stays so when the size of the map changes, until the view is changed.
    void ShowAll(
        std::vector<MapLayer> layers, std::shared_ptr<const RasterBackdrop> backdrop, double metresPerUnit);
    /// Draws these layers over that picture at this view, when the map's system is another one.
    void ShowAt(
        const MapView& view, std::vector<MapLayer> layers, std::shared_ptr<const RasterBackdrop> backdrop,
        double metresPerUnit);
    /// The layers as they were set.
    const std::vector<MapLayer>& Layers() const { return m_picture.Layers(); }

    /// Sets the picture under all layers; nullptr for none.
    void SetBackdrop(std::shared_ptr<const RasterBackdrop> backdrop);

    const MapView& View() const { return m_view; }
    void SetView(const MapView& view);
    /// The n of the scale 1:n.
    double ScaleDenominator() const;

    /// The picture that is drawn in the background; its signals report the drawing.
    const MapPicture& Picture() const { return m_picture; }

    /// Sets the current tool; nullptr for none, then gestures only pan and zoom. Not owned.
    void SetTool(MapTool* tool);
    MapTool* Tool() const { return m_gestures.Tool(); }

    /// Adds an overlay, painted over the map and over earlier overlays. Not owned; remove it before it is
    /// destroyed.
    void AddOverlay(const MapOverlay* overlay);
    void RemoveOverlay(const MapOverlay* overlay);

    QSize sizeHint() const override { return {800, 600}; }

public slots:
    /// Shows all layers and the picture under them completely.
    void ZoomToAll();
    void ZoomIn();
    void ZoomOut();

signals:
    /// The part of the map that is shown changed.
    void ViewChanged();
    /// The layers were set; any of them may have changed.
    void LayersChanged();
    /// The current tool has changed.
    void ToolChanged();
    /// The pointer has moved to that map point.
    void PointerMoved(QPointF map);
    /// The pointer has left the map.
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
    void DrawAgain();
    double DenominatorOf(const MapView& view) const;
    QPointF MiddlePixel() const;
    void ChangeView(const MapView& view);
    void KeepFitting(const Box& bounds);

    MapPicture m_picture;
    MapView m_view;
    std::optional<Box> m_fitted; // the box that the view shows, until the user moves the map
    double m_metresPerUnit = 1;
    QPointF m_dragFrom;
    bool m_dragging = false;
    ToolGestures m_gestures;
    std::vector<const MapOverlay*> m_overlays;
    QTimer m_drawSoon; // combines the many small steps of a drag or a wheel turn
};

} // namespace Orvane
