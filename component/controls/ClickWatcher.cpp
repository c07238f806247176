// SPDX-License-Identifier: MIT
#include "component/controls/ClickWatcher.h"

#include "component/common/EventGuard.h"

#include <QMouseEvent>
#include <QWidget>

namespace Orvane {

ClickWatcher::ClickWatcher(QWidget* widget) : QObject(widget)
{
    widget->installEventFilter(this);
}

bool ClickWatcher::eventFilter(QObject* watched, QEvent* event)
{
    const bool isClick = event->type() == QEvent::MouseButtonRelease
        && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (isClick)
        GuardEvent(static_cast<QWidget*>(watched)->window(), [this] { emit Clicked(); });
    return false;
}

} // namespace Orvane
