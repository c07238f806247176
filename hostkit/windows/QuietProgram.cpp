// SPDX-License-Identifier: MIT
#include "hostkit/windows/QuietProgram.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace Orvane {

namespace {

// Qt's own timers, such as those of animations, must go on. They are not QTimers.
bool IsOfTheProgram(const QObject* timed)
{
    return timed->isWidgetType() || timed->inherits("QTimer") || timed->inherits("QSingleShotTimer")
        || timed->inherits("QChronoTimer");
}

bool IsInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

QuietProgram::QuietProgram(QWidget* speaker) : m_speaker(speaker)
{
    qApp->installEventFilter(this);
}

QuietProgram::~QuietProgram()
{
    qApp->removeEventFilter(this);
}

// A timer whose event is withheld stays active, so it fires again.
bool QuietProgram::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Timer)
        return IsOfTheProgram(watched) && !BelongsToSpeaker(watched);
    if (type == QEvent::Shortcut)
        return !BelongsToSpeaker(watched);
    if (!IsInput(type) || !watched->isWidgetType() || BelongsToSpeaker(watched))
        return false;
    event->ignore();
    return true;
}

bool QuietProgram::BelongsToSpeaker(const QObject* object) const
{
    while (object && object != m_speaker)
        object = object->parent();
    return object != nullptr;
}

} // namespace Orvane
