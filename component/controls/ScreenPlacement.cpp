// SPDX-License-Identifier: MIT
#include "component/controls/ScreenPlacement.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace Orvane {

QRect MovedInside(QRect rectangle, const QRect& area)
{
    const int left = std::min(rectangle.left(), area.left() + area.width() - rectangle.width());
    const int top = std::min(rectangle.top(), area.top() + area.height() - rectangle.height());
    rectangle.moveTo(std::max(left, area.left()), std::max(top, area.top()));
    return rectangle;
}

QRect AvailableAreaAt(QPoint point)
{
    const QScreen* screen = QGuiApplication::screenAt(point);
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

} // namespace Orvane
