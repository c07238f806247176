// SPDX-License-Identifier: MIT
#include "component/dialog/panel/PressOpener.h"

#include "component/common/EventGuard.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPointer>

namespace Orvane {

namespace {

// The keys besides Space, which presses a button anyway.
bool OpensToo(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down;
}

} // namespace

PressOpener::PressOpener(QAbstractButton& button, std::function<void()> open)
    : QObject(&button), m_button(button), m_open(std::move(open))
{
    connect(&button, &QAbstractButton::pressed, this, &PressOpener::Open);
    button.installEventFilter(this);
}

bool PressOpener::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (!OpensToo(key.key()) || key.isAutoRepeat() || !m_button.isEnabled())
        return false;
    m_button.setDown(true);
    Open();
    return true;
}

void PressOpener::Open()
{
    const QPointer<PressOpener> self(this);
    const std::function<void()> open = m_open; // a copy, because this object may be destroyed while it runs
    GuardEvent(m_button.window(), open);
    // The popup received the release, and the form may have been destroyed meanwhile.
    if (self)
        m_button.setDown(false);
}

} // namespace Orvane
