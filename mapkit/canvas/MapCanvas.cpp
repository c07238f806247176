// SPDX-License-Identifier: MIT
#include "mapkit/canvas/MapCanvas.h"

#include "mapkit/canvas/MapTool.h"
#include "mapkit/common/Guard.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <chrono>
#include <cmath>

namespace Orvane {

namespace {

constexpr double ZoomStep = 1.5;
constexpr double WheelNotch = 120; // eighths of a degree, as Qt reports them
constexpr double ArrowPart = 0.2; // of the window
constexpr std::chrono::milliseconds DrawDelay{40};
constexpr quint64 RowGap = 700; // milliseconds; turns of the wheel in which the user does not stop to look
constexpr int WheelRow = -1; // the others are keys
constexpr double ClosePointScale = 10'000;

QPointF ArrowDirection(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {1, 0};
    case Qt::Key_Right:
        return {-1, 0};
    case Qt::Key_Up:
        return {0, 1};
    case Qt::Key_Down:
        return {0, -1};
    default:
        return {};
    }
}

Box BoundsOf(const std::vector<MapLayer>& layers)
{
    Box bounds;
    for (const MapLayer& layer : layers)
        bounds.Add(layer.Bounds());
    return bounds;
}

} // namespace

MapCanvas::MapCanvas(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    ShowCursor();
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_drawSoon.setSingleShot(true);
    m_drawSoon.setInterval(DrawDelay);
    connect(&m_drawSoon, &QTimer::timeout, this, &MapCanvas::DrawAgain);
    connect(&m_picture, &MapPicture::Changed, this, qOverload<>(&QWidget::update));
}

void MapCanvas::SetLayers(std::vector<MapLayer> layers, double metresPerUnit)
{
    m_metresPerUnit = metresPerUnit;
    m_picture.SetLayers(std::move(layers));
    emit LayersChanged();
    update();
}

void MapCanvas::ShowAll(std::vector<MapLayer> layers, double metresPerUnit)
{
    const Box bounds = BoundsOf(layers);
    ShowAt(MapView::Fitting(bounds, size()), std::move(layers), metresPerUnit);
    KeepFitting(bounds);
}

void MapCanvas::ShowAt(const MapView& view, std::vector<MapLayer> layers, double metresPerUnit)
{
    m_metresPerUnit = metresPerUnit;
    ++m_step;
    m_view = view;
    m_fitted.reset();
    m_drawSoon.stop();
    m_picture.Show(std::move(layers), m_view, DenominatorOf(m_view), devicePixelRatioF());
    emit LayersChanged();
    emit ViewChanged();
    update();
}

void MapCanvas::SetBackground(const QColor& colour)
{
    m_picture.SetBackground(colour);
    update();
}

void MapCanvas::SetView(const MapView& view)
{
    if (view == m_view)
        return;
    ++m_step;
    m_row = 0;
    MoveView(view);
}

void MapCanvas::MoveView(const MapView& view)
{
    m_fitted.reset();
    ShowView(view);
}

// Without anything to show there is nothing to keep in view.
void MapCanvas::KeepFitting(const Box& bounds)
{
    if (!bounds.IsEmpty())
        m_fitted = bounds;
}

void MapCanvas::ShowView(const MapView& view)
{
    if (view == m_view)
        return;
    m_view = view;
    m_drawSoon.start();
    update();
    emit ViewChanged();
}

double MapCanvas::ScaleDenominator() const
{
    return DenominatorOf(m_view);
}

void MapCanvas::ZoomToScale(double denominator)
{
    SetView(m_view.ZoomedAt(MiddlePixel(), ScaleDenominator() / denominator));
}

void MapCanvas::ZoomTo(const Box& box)
{
    if (box.IsEmpty())
        return;
    const MapView fitting = MapView::Fitting(box, size());
    const double closest = m_view.UnitsPerPixel() * std::min(1.0, ClosePointScale / ScaleDenominator());
    const bool isPoint = box.Width() == 0 && box.Height() == 0;
    SetView(isPoint ? MapView(fitting.Centre(), closest, size()) : fitting);
}

void MapCanvas::ZoomToAll()
{
    const Box bounds = BoundsOf(m_picture.Layers());
    SetView(MapView::Fitting(bounds, size()));
    KeepFitting(bounds);
}

void MapCanvas::ZoomIn()
{
    SetView(m_view.ZoomedAt(MiddlePixel(), ZoomStep));
}

void MapCanvas::ZoomOut()
{
    SetView(m_view.ZoomedAt(MiddlePixel(), 1 / ZoomStep));
}

void MapCanvas::SetTool(MapTool* tool)
{
    if (tool == Tool())
        return;
    Guard(window(), [&] { m_gestures.SetTool(tool); });
    ShowCursor();
    update();
    emit ToolChanged();
}

void MapCanvas::AddOverlay(const MapOverlay* overlay)
{
    m_overlays.push_back(overlay);
    update();
}

void MapCanvas::RemoveOverlay(const MapOverlay* overlay)
{
    std::erase(m_overlays, overlay);
    update();
}

void MapCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_picture.Background());
    PaintMap(painter);
    PaintOverlays(painter);
}

void MapCanvas::PaintMap(QPainter& painter)
{
    if (m_picture.Image().isNull())
        return;
    const MapView& drawn = m_picture.ImageView();
    const QPointF topLeft = m_view.ToPixel(drawn.ToMap({0, 0}));
    const double stretch = drawn.UnitsPerPixel() / m_view.UnitsPerPixel();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, stretch != 1);
    painter.drawImage(QRectF(topLeft, QSizeF(drawn.Size()) * stretch), m_picture.Image());
}

void MapCanvas::PaintOverlays(QPainter& painter)
{
    for (const MapOverlay* overlay : m_overlays) {
        painter.save();
        overlay->Paint(painter, m_view);
        painter.restore();
    }
    const MapTool* tool = Tool();
    if (tool)
        tool->Paint(painter, m_view);
    const MapTool* shiftDragTool = m_gestures.ShiftDragTool();
    if (shiftDragTool && shiftDragTool != tool)
        shiftDragTool->Paint(painter, m_view);
}

void MapCanvas::resizeEvent(QResizeEvent*)
{
    ShowView(m_fitted ? MapView::Fitting(*m_fitted, size()) : m_view.Resized(size()));
}

void MapCanvas::mousePressEvent(QMouseEvent* event)
{
    bool taken = false;
    Guard(window(), [&] { taken = m_gestures.Press(*event); });
    if (event->button() == Qt::RightButton)
        m_rightPressTaken = taken || m_dragging; // a menu would take the release of the other button
    else if (event->button() == Qt::BackButton)
        emit BackPressed();
    else if (event->button() == Qt::ForwardButton)
        emit ForwardPressed();
    else if (!taken && (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton))
        BeginPan(event->position());
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_dragging) {
        Guard(window(), [&] {
            if (m_gestures.Move(*event) == ToolGestures::Outcome::PanFromPress)
                BeginPan(m_gestures.PressedAt());
        });
    }
    if (m_dragging) {
        MoveView(m_view.Panned(event->position() - m_dragFrom));
        m_dragFrom = event->position();
    }
    emit PointerMoved(m_view.ToMap(event->position()));
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragging = false;
    Guard(window(), [&] { m_gestures.Release(*event); });
    ShowCursor();
}

void MapCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    bool taken = false;
    Guard(window(), [&] { taken = m_gestures.DoubleClick(*event); });
    if (!taken && event->button() == Qt::LeftButton)
        SetView(m_view.ZoomedAt(event->position(), ZoomStep * ZoomStep));
}

void MapCanvas::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / WheelNotch;
    JoinRow(WheelRow, event->timestamp());
    MoveView(m_view.ZoomedAt(event->position(), std::pow(ZoomStep, notches)));
    event->accept();
}

void MapCanvas::keyPressEvent(QKeyEvent* event)
{
    bool taken = false;
    Guard(window(), [&] { taken = m_gestures.Key(*event); });
    if (taken)
        return;
    JoinRow(event->key(), event->timestamp());
    const QPointF direction = ArrowDirection(event->key());
    if (!direction.isNull())
        MoveView(m_view.Panned({direction.x() * width() * ArrowPart, direction.y() * height() * ArrowPart}));
    else if (event->key() == Qt::Key_Home)
        ZoomToAll();
    else if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)
        Zoom(ZoomStep);
    else if (event->key() == Qt::Key_Minus)
        Zoom(1 / ZoomStep);
    else
        QWidget::keyPressEvent(event);
}

void MapCanvas::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Mouse) {
        if (!m_rightPressTaken)
            emit MenuWanted(event->pos());
        return;
    }
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    emit MenuWanted(rect().contains(pointer) ? QPointF(pointer) : MiddlePixel());
}

// Events of one kind that follow each other at once belong to one step.
void MapCanvas::JoinRow(int row, quint64 time)
{
    if (row != m_row || time > m_rowTime + RowGap)
        ++m_step;
    m_row = row;
    m_rowTime = time;
}

void MapCanvas::Zoom(double factor)
{
    MoveView(m_view.ZoomedAt(MiddlePixel(), factor));
}

void MapCanvas::leaveEvent(QEvent*)
{
    emit PointerLeft();
}

void MapCanvas::BeginPan(QPointF from)
{
    m_dragging = true;
    m_dragFrom = from;
    ++m_step;
    m_row = 0;
    setCursor(Qt::ClosedHandCursor);
}

void MapCanvas::ShowCursor()
{
    const MapTool* tool = Tool();
    setCursor(tool ? tool->Cursor() : QCursor(Qt::OpenHandCursor));
}

void MapCanvas::DrawAgain()
{
    m_picture.SetView(m_view, DenominatorOf(m_view), devicePixelRatioF());
}

double MapCanvas::DenominatorOf(const MapView& view) const
{
    return view.ScaleDenominator(m_metresPerUnit, logicalDpiX());
}

QPointF MapCanvas::MiddlePixel() const
{
    return {width() / 2.0, height() / 2.0};
}

} // namespace Orvane
