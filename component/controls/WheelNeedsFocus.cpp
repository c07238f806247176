// SPDX-License-Identifier: MIT
#include "component/controls/WheelNeedsFocus.h"

#include <QEvent>
#include <QWidget>

namespace Orvane {

WheelNeedsFocus::WheelNeedsFocus(QWidget& control) : QObject(&control), m_control(control)
{
    if (control.focusPolicy() == Qt::WheelFocus)
        control.setFocusPolicy(Qt::StrongFocus);
    control.installEventFilter(this);
}

bool WheelNeedsFocus::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::Wheel || m_control.hasFocus())
        return false;
    event->ignore(); // then the parent gets it
    return true;
}

} // namespace Orvane
