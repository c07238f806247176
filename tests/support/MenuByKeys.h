// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QtTest>

namespace Orvane::Testing {

/// Presses the Menu key in the widget.
inline void PressMenuKey(QWidget& widget)
{
    const QPoint place = widget.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    QCoreApplication::processEvents();
}

/// The menu that is open; nullptr for none.
inline QMenu* OpenedMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// Presses the Menu key and returns the menu that opens; nullptr for none.
inline QMenu* OpenMenuByKey(QWidget& widget)
{
    PressMenuKey(widget);
    return OpenedMenu();
}

/// The entry with that text; nullptr for none.
inline QAction* EntryOf(const QMenu& menu, const QString& text)
{
    for (QAction* action : menu.actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

/// Goes to the entry and presses Enter; false if there is none that can be chosen.
inline bool PickByKeys(QMenu& menu, const QString& text)
{
    QAction* entry = EntryOf(menu, text);
    if (!entry || !entry->isEnabled())
        return false;
    menu.setActiveAction(entry);
    QTest::keyClick(&menu, Qt::Key_Return);
    QCoreApplication::processEvents();
    return true;
}

} // namespace Orvane::Testing
