// SPDX-License-Identifier: MIT
#include "shell/map/SourceFollower.h"

#include "mapkit/common/Guard.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/ServerTables.h"
#include "mapkit/document/MapDocument.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QThread>

#include <chrono>
#include <utility>

namespace Orvane {

namespace {

constexpr std::chrono::milliseconds QuietTime{400};
constexpr qsizetype MostFiles = 2000; // the system limits the number of watches

// The folder that a file is in, or would be in: the nearest one that exists.
QString FolderOf(const QString& path)
{
    QString folder = QFileInfo(path).path();
    while (!QFileInfo(folder).isDir() && folder != QFileInfo(folder).path())
        folder = QFileInfo(folder).path();
    return folder;
}

} // namespace

SourceFollower::SourceFollower(const MapDocument& document, QWidget& owner)
    : m_document(document), m_owner(owner)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(QuietTime);
    const auto wait = [this] { m_quiet.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, wait);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, wait);
    connect(&m_quiet, &QTimer::timeout, this, [this] { Guard(&m_owner, [this] { LookAgain(); }); });
}

SourceFollower::~SourceFollower()
{
    Stop();
}

void SourceFollower::Follow()
{
    m_stamps = StampsOf(m_document.Sources());
    Watch();
}

SourceFollower::Stamps SourceFollower::StampsOf(const std::vector<LayerSource>& sources)
{
    std::map<QString, Stamp> known;
    Stamps stamps;
    for (const LayerSource& source : sources) {
        if (IsServerTable(source.path))
            continue;
        const auto [stamp, isNew] = known.try_emplace(source.path);
        if (isNew) {
            const QFileInfo file(source.path);
            stamp->second = {source.path, file.lastModified(), file.size()};
        }
        stamps[source.layerID] = stamp->second;
    }
    return stamps;
}

void SourceFollower::Watch()
{
    QSet<QString> wanted;
    QSet<QString> files;
    for (const auto& [layerID, stamp] : m_stamps) {
        wanted.insert(FolderOf(stamp.path));
        if (stamp.changed.isValid())
            files.insert(stamp.path);
    }
    const QString map = m_document.FilePath();
    if (!map.isEmpty())
        wanted.insert(FolderOf(map));
    if (files.size() <= MostFiles)
        wanted += files;
    const QStringList watchedPaths = m_watcher.files() + m_watcher.directories();
    const QSet<QString> watched(watchedPaths.begin(), watchedPaths.end());
    const QSet<QString> gone = watched - wanted;
    const QSet<QString> missing = wanted - watched;
    if (!gone.isEmpty())
        m_watcher.removePaths(gone.values());
    if (!missing.isEmpty())
        m_watcher.addPaths(missing.values());
}

void SourceFollower::LookForMap()
{
    const QString path = m_document.FilePath();
    const bool isThere = path.isEmpty() || QFileInfo::exists(path);
    const bool wasThere = std::exchange(m_mapIsThere, isThere);
    if (wasThere && !isThere)
        emit MapFileGone();
}

void SourceFollower::LookAgain()
{
    std::vector<LayerSource> sources = m_document.Sources();
    Stamps now = StampsOf(sources);
    std::erase_if(sources, [&](const LayerSource& source) {
        const auto was = m_stamps.find(source.layerID);
        return IsServerTable(source.path) || was == m_stamps.end() || was->second == now[source.layerID];
    });
    m_stamps = std::move(now);
    Watch();
    if (!sources.empty())
        ReadAgain(std::move(sources));
    LookForMap();
}

void SourceFollower::ReadAgain(std::vector<LayerSource> sources)
{
    Stop();
    m_progress = std::make_shared<Progress>();
    m_thread.reset(QThread::create([this, progress = m_progress, system = m_document.System(),
                                    chosen = m_document.ChosenReadings(), sources = std::move(sources)] {
        SourceContents contents = ReadSources(sources, system, *progress);
        QMetaObject::invokeMethod(
            this,
            [this, system, chosen, contents = std::move(contents)] {
                // Otherwise all of it has been read again already.
                Guard(&m_owner, [&] {
                    if (m_document.System() == system && m_document.ChosenReadings() == chosen)
                        emit Read(contents);
                });
            },
            Qt::QueuedConnection);
    }));
    m_thread->start();
}

void SourceFollower::Stop()
{
    if (!m_thread)
        return;
    m_progress->Cancel();
    m_thread->wait();
    m_thread.reset();
}

} // namespace Orvane
