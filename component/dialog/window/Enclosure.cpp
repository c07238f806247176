// SPDX-License-Identifier: MIT
#include "component/dialog/window/Enclosure.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

std::vector<QPointer<QWidget>> WidgetsAround(const QWidget& form)
{
    std::vector<QPointer<QWidget>> around;
    if (form.isWindow())
        return around;
    for (QWidget* widget = form.parentWidget(); widget; widget = widget->parentWidget())
        around.emplace_back(widget); // past windows too: a floating dock closes with its main window
    return around;
}

template <typename Widgets> bool IsAmong(const Widgets& widgets, const QWidget* widget)
{
    return std::find(widgets.begin(), widgets.end(), widget) != widgets.end();
}

} // namespace

Enclosure::Enclosure(QWidget& form, std::function<bool()> mayClose, std::function<void()> close)
    : m_form(form), m_mayClose(std::move(mayClose)), m_close(std::move(close))
{
    m_form.installEventFilter(this);
    Follow();
}

void Enclosure::Leave()
{
    m_left = true;
    m_form.removeEventFilter(this);
    for (const QPointer<QWidget>& widget : std::exchange(m_watched, {}))
        Release(widget);
}

bool Enclosure::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ParentChange)
        Follow();
    else if (event->type() == QEvent::Close && watched != &m_form && !m_closing && !m_left)
        return PassClose(static_cast<QWidget*>(watched), event);
    return false;
}

void Enclosure::Follow()
{
    if (m_left)
        return;
    const std::vector<QPointer<QWidget>> former = std::exchange(m_watched, WidgetsAround(m_form));
    for (const QPointer<QWidget>& widget : former) {
        if (!IsAmong(m_watched, widget))
            Release(widget);
    }
    for (const QPointer<QWidget>& widget : m_watched) {
        if (!IsAmong(former, widget))
            Watch(widget);
    }
    // Qt gives shortcuts of such a widget only to the one that has the focus.
    if (!m_form.isWindow())
        m_form.setWindowFlags((m_form.windowFlags() & ~Qt::WindowType_Mask) | Qt::SubWindow);
}

void Enclosure::Watch(QWidget* widget)
{
    widget->installEventFilter(this);
    if (auto* dialog = qobject_cast<QDialog*>(widget))
        connect(dialog, &QDialog::finished, this, [this, dialog] { OnFinished(dialog); });
}

void Enclosure::Release(QWidget* widget)
{
    if (!widget)
        return;
    widget->removeEventFilter(this);
    disconnect(widget, nullptr, this, nullptr);
}

// The event is sent on from here, so that the form closes only if the host lets the widget close.
bool Enclosure::PassClose(QWidget* closing, QEvent* event)
{
    const QPointer self(this);
    const QPointer alive(closing);
    const bool may = m_mayClose();
    if (!self || m_left)
        return !alive;
    if (!may || !alive) {
        event->ignore();
        return true;
    }
    m_closing = true;
    QCoreApplication::sendEvent(closing, event);
    if (!self)
        return true;
    m_closing = false;
    if (event->isAccepted() && !m_left)
        m_close();
    return true;
}

// A dialog that is accepted or rejected sends no event before it hides.
void Enclosure::OnFinished(QWidget* dialog)
{
    if (m_closing || m_left)
        return;
    const QPointer self(this);
    const QPointer alive(dialog);
    if (m_mayClose() && self)
        m_close();
    else if (self && alive)
        dialog->show();
}

} // namespace Orvane
