// SPDX-License-Identifier: MIT
#include "shell/window/RecentMapsMenu.h"

#include "mapkit/common/Guard.h"
#include "shell/window/RecentMaps.h"
#include "store/StorePlace.h"

#include <QMenu>
#include <QMessageBox>

namespace Orvane {

namespace {

// A map on a server may have any name.
QString ActionText(const QString& place)
{
    return StorePlace::TitleOf(place).replace(u'&', QLatin1String("&&"));
}

} // namespace

RecentMapsMenu::RecentMapsMenu(QMenu& menu, QWidget& window) : m_menu(menu), m_window(window)
{
    connect(&menu, &QMenu::aboutToShow, this, [this] { Guard(&m_window, [this] { Fill(); }); });
}

void RecentMapsMenu::Fill()
{
    m_menu.clear();
    for (const QString& path : RecentMaps::All()) {
        QAction* action = m_menu.addAction(ActionText(path));
        action->setStatusTip(path);
        connect(action, &QAction::triggered, this, [this, path] { Guard(&m_window, [&] { Choose(path); }); });
    }
    if (m_menu.isEmpty())
        m_menu.addAction(tr("No maps yet"))->setEnabled(false);
}

void RecentMapsMenu::Choose(const QString& path)
{
    if (RecentMaps::MayExist(path)) {
        emit Chosen(path);
        return;
    }
    RecentMaps::Remove(path);
    QMessageBox box(
        QMessageBox::Information, tr("Open Recent"),
        tr("The map \"%1\" no longer exists. It was removed from the list.").arg(path), QMessageBox::Ok,
        &m_window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace Orvane
