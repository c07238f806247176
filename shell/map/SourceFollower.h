// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <map>
#include <memory>
#include <vector>

class QThread;
class QWidget;

namespace Orvane {

class MapDocument;
class Progress;

/// Watches the data files of an open map: files that reappear, change or are removed while the map is shown
/// are read again in the background, once they no longer change.
///
///     SourceFollower follower(document, window);
///     connect(&follower, &SourceFollower::Read, this, [this](const SourceContents& contents) { ... });
///     follower.Follow();
class SourceFollower : public QObject
{
    Q_OBJECT
public:
    /// document, owner: not owned; outlive this object. owner: errors are shown over it.
    SourceFollower(const MapDocument& document, QWidget& owner);
    /// Cancels the current read and waits for its end.
    ~SourceFollower() override;

    /// Regards the current state of the files as read. Raises errors of the database.
    void Follow();

signals:
    /// These layers were read again, or could not be.
    void Read(const Orvane::SourceContents& contents);
    /// The map's own file is missing; emitted once until it is back.
    void MapFileGone();

private:
    struct Stamp {
        QString path;
        QDateTime changed; ///< invalid for a missing file
        qint64 size = 0; ///< bytes
        bool operator==(const Stamp&) const = default;
    };
    using Stamps = std::map<qint32, Stamp>; // by layer ID

    static Stamps StampsOf(const std::vector<LayerSource>& sources);
    void Watch();
    void LookForMap();
    void LookAgain();
    void ReadAgain(std::vector<LayerSource> sources);
    void Stop();

    const MapDocument& m_document;
    QWidget& m_owner;
    QFileSystemWatcher m_watcher;
    QTimer m_quiet; // files change in many small steps
    Stamps m_stamps;
    bool m_mapIsThere = true;
    std::unique_ptr<QThread> m_thread;
    std::shared_ptr<Progress> m_progress; // of the thread
};

} // namespace Orvane
