// SPDX-License-Identifier: MIT
#include "mapkit/canvas/ZoomTool.h"

#include "mapkit/canvas/MapCanvas.h"

#include <QKeyEvent>

#include <algorithm>

namespace Orvane {

namespace {

constexpr double ClickFactor = 2;
constexpr double SmallestBand = 3; // pixels; a smaller one was not meant

} // namespace

void ZoomTool::Begin()
{
    emit StatusChanged(tr("Drag a rectangle to zoom to it. A click zooms in, with Ctrl out."));
}

void ZoomTool::Click(QPointF pixel, Qt::KeyboardModifiers modifiers)
{
    const bool out = modifiers.testFlag(Qt::ControlModifier);
    m_canvas.SetView(m_canvas.View().ZoomedAt(pixel, out ? 1 / ClickFactor : ClickFactor));
}

// Both clicks have been made.
bool ZoomTool::DoubleClick(QPointF)
{
    return true;
}

bool ZoomTool::DragBegin(QPointF from, Qt::KeyboardModifiers)
{
    m_band.Begin(from);
    return true;
}

void ZoomTool::DragTo(QPointF pixel)
{
    m_band.Follow(pixel);
    m_canvas.update();
}

void ZoomTool::DragEnd(QPointF pixel)
{
    DragTo(pixel);
    const auto band = m_band.Take();
    if (!band || std::max(band->width(), band->height()) < SmallestBand)
        return;
    const MapView& view = m_canvas.View();
    const double part = std::max(band->width() / view.Size().width(), band->height() / view.Size().height());
    m_canvas.SetView(MapView(view.ToMap(band->center()), view.UnitsPerPixel() * part, view.Size()));
}

bool ZoomTool::Key(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape || !m_band.Take())
        return false;
    m_canvas.update();
    return true;
}

void ZoomTool::Paint(QPainter& painter, const MapView&) const
{
    m_band.Paint(painter, m_canvas.palette());
}

} // namespace Orvane
