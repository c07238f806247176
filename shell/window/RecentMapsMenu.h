// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QMenu;
class QWidget;

namespace Orvane {

/// The menu of the recent maps. One that is gone is told to the person and taken off the list.
class RecentMapsMenu : public QObject
{
    Q_OBJECT
public:
    /// Neither is owned; both outlive this object.
    RecentMapsMenu(QMenu& menu, QWidget& window);

signals:
    /// The person wants this map, which is there.
    void Chosen(const QString& path);

private:
    void Fill();
    void Choose(const QString& path);

    QMenu& m_menu;
    QWidget& m_window;
};

} // namespace Orvane
