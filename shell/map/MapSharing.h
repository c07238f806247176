// SPDX-License-Identifier: MIT
#pragma once

#include "store/IChangeNews.h"

#include <QObject>
#include <QTimer>

#include <functional>

class QStatusBar;
class QWidget;

namespace Orvane {

class MapSession;
class SharingStatus;

/// A map that several windows or programs have open. Each commits its changes at once, so nothing is lost.
/// This class asks before a map file is opened twice, and shows the changes of others within a second. For a
/// map on a server it also shows who has it open, and whether the server can be reached.
class MapSharing : public QObject
{
    Q_OBJECT
public:
    /// Shows the map again; edits that are not applied stay.
    using ShowAgain = std::function<void()>;

    /// The window outlives this object.
    MapSharing(QWidget& window, ShowAgain showAgain);

    /// Shows in this bar what there is to tell about others.
    void ShowIn(QStatusBar& bar);

    /// Asks whether to open a map file that is already open elsewhere; true without a question for other
    /// files, and for maps on servers, which are made for it.
    bool MayOpen(const QString& path);
    /// Watches this map from now on; not owned, lives as long as this object or until the next call. Raises
    /// errors of the database.
    void Use(MapSession& session);
    /// Somebody else has the map open, on a server; not known of files.
    bool IsShared() const { return m_news && !m_news->Users().isEmpty(); }

private:
    void Listen(IChangeNews& news);
    void LookIfFree();
    void Look();
    void Take(const ForeignChange& change);
    void Follow();
    void ShowState();

    QWidget& m_window;
    ShowAgain m_showAgain;
    MapSession* m_session = nullptr;
    IChangeNews* m_news = nullptr; // of the map, if it tells any
    SharingStatus* m_status = nullptr; // owned by the status bar
    QTimer m_lookAgain;
    ForeignChange m_change; // not shown yet
    qint64 m_version = 0; // of the content, as SQLite counts the commits of others
};

} // namespace Orvane
