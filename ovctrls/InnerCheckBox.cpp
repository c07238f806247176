// SPDX-License-Identifier: MIT
#include "ovctrls/InnerCheckBox.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace Orvane {

InnerCheckBox::InnerCheckBox(QWidget* parent) : QCheckBox(parent)
{
    setMouseTracking(true);
}

bool InnerCheckBox::event(QEvent* event)
{
    bool handled = false;
    m_errors.Guard([&] { handled = QCheckBox::event(event); });
    return handled;
}

void InnerCheckBox::keyPressEvent(QKeyEvent* event)
{
    const QPointer self(this);
    bool swallow = false;
    emit KeyPressed(*event, swallow);
    if (self && !swallow)
        QCheckBox::keyPressEvent(event);
}

void InnerCheckBox::keyReleaseEvent(QKeyEvent* event)
{
    const QPointer self(this);
    if (!event->isAutoRepeat())
        emit KeyReleased(*event);
    if (self)
        QCheckBox::keyReleaseEvent(event);
}

void InnerCheckBox::mousePressEvent(QMouseEvent* event)
{
    QCheckBox::mousePressEvent(event);
    emit MousePressed(*event);
}

void InnerCheckBox::mouseMoveEvent(QMouseEvent* event)
{
    QCheckBox::mouseMoveEvent(event);
    emit MouseMoved(*event);
}

void InnerCheckBox::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer self(this);
    m_releasingMouse = true;
    QCheckBox::mouseReleaseEvent(event);
    if (!self)
        return;
    m_releasingMouse = false;
    emit MouseReleased(*event);
}

bool InnerCheckBox::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

void InnerCheckBox::nextCheckState()
{
    if (!m_releasingMouse)
        setCheckState(checkState() == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
}

} // namespace Orvane
