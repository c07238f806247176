// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

class QWidget;

namespace Orvane {

class MapDocument;
class MapSession;

/// A map file that several windows or programs have open. Each commits its changes at once, so nothing is
/// lost. This class asks before a map is opened twice, and shows the changes of others within a second.
class MapSharing : public QObject
{
    Q_OBJECT
public:
    /// Shows the map again; edits that are not applied stay.
    using ShowAgain = std::function<void()>;

    /// The window outlives this object.
    MapSharing(QWidget& window, ShowAgain showAgain);

    /// Asks whether to open a map file that is already open elsewhere; true without a question for other
    /// files.
    bool MayOpen(const QString& path);
    /// Watches this map from now on; not owned, lives as long as this object or until the next call. Raises
    /// errors of the database.
    void Use(MapSession& session);

private:
    void Look();

    QWidget& m_window;
    ShowAgain m_showAgain;
    const MapDocument* m_document = nullptr;
    QTimer m_lookAgain;
    qint64 m_version = 0; // of the content, as SQLite counts the commits of others
};

} // namespace Orvane
