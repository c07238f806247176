// SPDX-License-Identifier: MIT
#include "component/dialog/window/QuickModeToolbar.h"

#include "component/common/EventGuard.h"
#include "component/dialog/trees/NodeImages.h"

#include <OrvaneShellLib/LayerValues.h>

#include <QEvent>
#include <QToolButton>

#include <array>

namespace Orvane {

namespace {

qint16 BitOf(std::size_t button)
{
    constexpr std::array modes{QuickMode::Normal, QuickMode::Backdrop, QuickMode::Hidden};
    return modes[button];
}

} // namespace

QuickModeToolbar::QuickModeToolbar(QWidget& bar, const std::array<QToolButton*, 3>& buttons, QObject* parent)
    : QObject(parent), m_bar(bar), m_buttons(buttons)
{
    for (QToolButton* button : m_buttons) {
        button->installEventFilter(this);
        connect(button, &QToolButton::clicked, this, [this, button] {
            GuardEvent(m_bar.window(), [this, button] { OnClicked(button); });
        });
    }
    RefreshImages();
}

void QuickModeToolbar::SetAllowed(bool allowed)
{
    for (QToolButton* button : m_buttons)
        button->setVisible(allowed);
    m_bar.setVisible(allowed);
}

void QuickModeToolbar::SetEnabled(bool enabled)
{
    for (QToolButton* button : m_buttons)
        button->setEnabled(enabled);
}

void QuickModeToolbar::ShowMode(qint16 mode)
{
    m_shownMode = mode;
    Press(mode);
}

void QuickModeToolbar::FollowMode(qint16 mode)
{
    const bool isEdited = IsEdited();
    m_shownMode = mode;
    if (!isEdited)
        Press(mode);
}

void QuickModeToolbar::Press(qint16 mode)
{
    for (std::size_t button = 0; button < m_buttons.size(); ++button)
        m_buttons[button]->setChecked(mode & BitOf(button));
}

qint16 QuickModeToolbar::ReadMode() const
{
    qint16 mode = QuickMode::Various;
    for (std::size_t button = 0; button < m_buttons.size(); ++button) {
        if (m_buttons[button]->isChecked())
            mode = qint16(mode | BitOf(button));
    }
    return mode;
}

void QuickModeToolbar::RefreshImages()
{
    const NodeImages images;
    for (std::size_t button = 0; button < m_buttons.size(); ++button)
        m_buttons[button]->setIcon(
            images.Icon(false, BitOf(button), m_buttons[button]->palette(), QPalette::Active));
}

bool QuickModeToolbar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        GuardEvent(m_bar.window(), [this] { RefreshImages(); });
    return QObject::eventFilter(watched, event);
}

void QuickModeToolbar::OnClicked(const QToolButton* clicked)
{
    for (QToolButton* button : m_buttons)
        button->setChecked(button == clicked);
    if (IsEdited())
        emit Edited();
}

} // namespace Orvane
