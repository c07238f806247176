// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QMenu;
class QWidget;

namespace Orvane {

/// The menu of the recent maps. A map that no longer exists is reported to the user and removed from the
/// list.
class RecentMapsMenu : public QObject
{
    Q_OBJECT
public:
    /// Neither is owned; both outlive this object.
    RecentMapsMenu(QMenu& menu, QWidget& window);

signals:
    /// The user chose this map, which exists.
    void Chosen(const QString& path);

private:
    void Fill();
    void Choose(const QString& path);

    QMenu& m_menu;
    QWidget& m_window;
};

} // namespace Orvane
