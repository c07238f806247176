// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace Orvane {

class MapDocument;
class MapSession;

/// A map file that several windows or programs have open. Each commits what it changes at once, so nothing is
/// lost; this asks before a map is opened twice, and shows what others changed as soon as the person comes
/// back to this window.
class MapSharing : public QObject
{
    Q_OBJECT
public:
    /// Shows the map anew; false when an editor that holds edits stays open, and nothing was done.
    using ShowAgain = std::function<bool()>;

    /// The window outlives this object.
    MapSharing(QWidget& window, ShowAgain showAgain);

    /// Asks whether to open a map file that is open elsewhere, too; true without a question for any other.
    bool MayOpen(const QString& path);
    /// Looks after this map from now on; not owned, lives as long as this object or until the next call.
    /// Raises errors of the database.
    void Use(MapSession& session);

private:
    void Look();

    QWidget& m_window;
    ShowAgain m_showAgain;
    const MapDocument* m_document = nullptr;
    qint64 m_version = 0; // of the content, as SQLite counts the commits of others
};

} // namespace Orvane
