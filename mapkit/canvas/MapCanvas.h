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
/// middle button, the wheel and the arrow keys always move the map. ViewHistory leads back to earlier views.
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
    /// Draws these layers, zoomed so that everything is visible. It stays so when the size of the map
    /// changes, until the view is changed.
    void ShowAll(std::vector<MapLayer> layers, double metresPerUnit);
    /// Draws these layers at this view, when the map's system is another one.
    void ShowAt(const MapView& view, std::vector<MapLayer> layers, double metresPerUnit);
    /// The layers as they were set.
    const std::vector<MapLayer>& Layers() const { return m_picture.Layers(); }

    /// Sets the colour under everything, which is white at first.
    void SetBackground(const QColor& colour);

    const MapView& View() const { return m_view; }
    void SetView(const MapView& view);
    /// A number that tells which views belong together: all of one drag, of a row of wheel turns or of one
    /// arrow key that is held down have the same number, any other change of the view has a new one. A change
    /// of the canvas's size keeps the number.
    quint64 Step() const { return m_step; }
    /// The n of the scale 1:n.
    double ScaleDenominator() const;
    /// Shows the map at 1:denominator around the same centre. denominator: above 0.
    void ZoomToScale(double denominator);
    /// Shows the whole box with a small margin; does nothing if it is empty. A single point is shown in the
    /// middle, at 1:10,000 or at a larger scale.
    void ZoomTo(const Box& box);

    /// The picture that is drawn in the background; its signals report the drawing.
    const MapPicture& Picture() const { return m_picture; }

    /// Sets the current tool; nullptr for none, then gestures only pan and zoom. Not owned.
    void SetTool(MapTool* tool);
    MapTool* Tool() const { return m_gestures.Tool(); }
    /// Sets the tool that gets all drags with Shift, whatever the current tool is; nullptr for none. Not
    /// owned.
    void SetShiftDragTool(MapTool* tool) { m_gestures.SetShiftDragTool(tool); }

    /// Adds an overlay, painted over the map and over earlier overlays. Not owned; remove it before it is
    /// destroyed.
    void AddOverlay(const MapOverlay* overlay);
    void RemoveOverlay(const MapOverlay* overlay);

    QSize sizeHint() const override { return {800, 600}; }

public slots:
    /// Shows all layers completely.
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
    /// The user wants the menu of the map at that place, in logical pixels of the canvas: by the right
    /// button, unless the tool has used it, or by the Menu key.
    void MenuWanted(QPointF pixel);
    /// The back button of the mouse was pressed.
    void BackPressed();
    /// The forward button of the mouse was pressed.
    void ForwardPressed();

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
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void BeginPan(QPointF from);
    void MoveView(const MapView& view);
    void JoinRow(int row, quint64 time);
    void Zoom(double factor);
    void ShowCursor();
    void PaintMap(QPainter& painter);
    void PaintOverlays(QPainter& painter);
    void DrawAgain();
    double DenominatorOf(const MapView& view) const;
    QPointF MiddlePixel() const;
    void ShowView(const MapView& view);
    void KeepFitting(const Box& bounds);

    MapPicture m_picture;
    MapView m_view;
    std::optional<Box> m_fitted; // the box that the view shows, until the user moves the map
    double m_metresPerUnit = 1;
    QPointF m_dragFrom;
    bool m_dragging = false;
    bool m_rightPressTaken = false; // by the tool
    quint64 m_step = 0;
    int m_row = 0; // the wheel, or the key, that made the view; 0 for neither
    quint64 m_rowTime = 0; // milliseconds, of its last event
    ToolGestures m_gestures;
    std::vector<const MapOverlay*> m_overlays;
    QTimer m_drawSoon; // combines the many small steps of a drag or a wheel turn
};

} // namespace Orvane
