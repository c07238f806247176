// SPDX-License-Identifier: MIT
#pragma once

#include "shell/systems/SystemChooser.h"

#include <QObject>

class QMenu;
class QStatusBar;
class QToolButton;
class QWidget;

namespace Orvane {

class MapNotice;
class MapSession;
struct ImportPlan;

/// The map's coordinate system: shown in the status bar, and chosen by a click there or in the menu. Also
/// asks for the systems of data that name none, and tells what was assumed about them.
class MapSystemActions : public QObject
{
    Q_OBJECT
public:
    /// window: the parent of the dialogs. menu: gets the command at its end. bar: gets the button, which it
    /// owns. notice: shows what needs no answer. All outlive this object.
    MapSystemActions(QWidget& window, QMenu& menu, QStatusBar& bar, MapNotice& notice);

    /// The command works on this map from now on; not owned.
    void Use(MapSession& session);
    /// Shows the map's system again after something else has changed it.
    void ShowSystem();

    /// The systems to choose from.
    SystemCatalogue& Catalogue() { return m_catalogue; }
    /// Asks over the window for the system of the data of which nothing was found out, if there are any. When
    /// the user cancels, they stay as they are.
    void Settle(ImportPlan& plan, QWidget* over);
    /// Tells what was assumed, without waiting for the user.
    void Tell(const ImportPlan& plan);

signals:
    /// The user has chosen another system, which is stored; the map is to be read again.
    void SystemChosen();
    /// The map is now shown in another system.
    void SystemShown();

private:
    void Ask();
    void TellWithNextReading(const ImportPlan& plan);
    void OnRead();
    QStringList WithoutPlaceTexts() const;

    QWidget& m_window;
    MapNotice& m_notice;
    QToolButton* m_button; // owned by the status bar
    MapSession* m_session = nullptr;
    SystemCatalogue m_catalogue;
    QString m_shown; // the system
    QStringList m_toldLast; // until the map is read
};

} // namespace Orvane
