// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QtTest>

namespace Orvane::Testing {

/// Opens the list with the mouse and clicks the item, as a user does; the effects of the choice are complete
/// when it returns.
inline void PickByMouse(QComboBox& list, int item)
{
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0); // a list ignores clicks for this time after it opens
    QTest::mouseClick(&list, Qt::LeftButton, {}, list.rect().center());
    QCoreApplication::processEvents();
    QApplication::setDoubleClickInterval(interval);
    QAbstractItemView& items = *list.view();
    const QModelIndex index = items.model()->index(item, list.modelColumn());
    items.scrollTo(index);
    QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualRect(index).center());
    QCoreApplication::processEvents();
}

} // namespace Orvane::Testing
