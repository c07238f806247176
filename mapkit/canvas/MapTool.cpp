// SPDX-License-Identifier: MIT
#include "mapkit/canvas/MapTool.h"

namespace Orvane {

void MapTool::Click(QPointF, Qt::KeyboardModifiers)
{
}

bool MapTool::DoubleClick(QPointF)
{
    return false;
}

bool MapTool::RightClick(QPointF)
{
    return false;
}

bool MapTool::DragBegin(QPointF, Qt::KeyboardModifiers)
{
    return false;
}

void MapTool::DragTo(QPointF)
{
}

void MapTool::DragEnd(QPointF)
{
}

void MapTool::Hover(QPointF)
{
}

bool MapTool::Key(const QKeyEvent&)
{
    return false;
}

void MapTool::Paint(QPainter&, const MapView&) const
{
}

} // namespace Orvane
