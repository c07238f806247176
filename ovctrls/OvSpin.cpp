// SPDX-License-Identifier: MIT
#include "ovctrls/OvSpin.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Orvane {

OvSpin::OvSpin(QWidget* parent)
    : QWidget(parent), m_up(NewButton("cmdUp", Qt::UpArrow, QT_TR_NOOP("Step up"))),
      m_down(NewButton("cmdDown", Qt::DownArrow, QT_TR_NOOP("Step down")))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_up);
    layout->addWidget(m_down);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_up, &QToolButton::clicked, this, &OvSpin::StepUp);
    connect(m_down, &QToolButton::clicked, this, &OvSpin::StepDown);
    ShowEnds();
}

QToolButton* OvSpin::NewButton(const char* name, Qt::ArrowType arrow, const char* english)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setArrowType(arrow);
    button->setAccessibleName(QLatin1String(english)); // translated with the form around it
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus); // the keyboard steps from the bound text
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    button->setIconSize(QSize(8, 8));
    return button;
}

void OvSpin::SetValue(float value)
{
    if (std::isnan(value))
        return;
    const float clamped = std::min(std::max(value, m_minimum), m_maximum);
    if (clamped == m_value)
        return;
    m_value = clamped;
    ShowEnds();
    emit Change(m_value);
}

void OvSpin::setMinValue(float minimum)
{
    SetRange(minimum, m_maximum);
}

void OvSpin::setMaxValue(float maximum)
{
    SetRange(m_minimum, maximum);
}

void OvSpin::SetRange(float minimum, float maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    ShowEnds();
    SetValue(m_value);
}

void OvSpin::SetBoundText(QWidget* control)
{
    if (m_boundText)
        m_boundText->removeEventFilter(this);
    m_boundText = control;
    if (control)
        control->installEventFilter(this);
}

void OvSpin::StepUp()
{
    StepBy(1);
}

void OvSpin::StepDown()
{
    StepBy(-1);
}

void OvSpin::StepBy(int steps)
{
    SetValue(m_value + float(steps) * m_step);
}

bool OvSpin::StepByKey(int key)
{
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return false;
    StepBy(key == Qt::Key_Up ? 1 : -1);
    return true;
}

bool OvSpin::StepByWheel(int angle)
{
    if (angle != 0)
        StepBy(angle > 0 ? 1 : -1);
    return angle != 0;
}

bool OvSpin::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_boundText || !isEnabled())
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return StepByKey(static_cast<QKeyEvent*>(event)->key());
    if (event->type() == QEvent::Wheel)
        return StepByWheel(static_cast<QWheelEvent*>(event)->angleDelta().y());
    return false;
}

void OvSpin::wheelEvent(QWheelEvent* event)
{
    event->setAccepted(StepByWheel(event->angleDelta().y()));
}

void OvSpin::ShowEnds()
{
    m_up->setEnabled(m_value < m_maximum);
    m_down->setEnabled(m_value > m_minimum);
}

} // namespace Orvane
