// SPDX-License-Identifier: MIT
#include "mapkit/document/SourcePaths.h"

#include "mapkit/data/ServerTables.h"
#include "store/StorePlace.h"

#include <QDir>
#include <QFileInfo>

namespace Orvane {

namespace {

const QString UnknownFolder = QStringLiteral("\u2026/"); // in no message does a path look like another

bool LeadsUpwards(const QString& relative)
{
    return relative == QLatin1String("..") || relative.startsWith(QLatin1String("../"));
}

bool HasFolder(const QString& mapPath)
{
    return !mapPath.isEmpty() && StorePlace::IsFile(mapPath);
}

// Other names that are not absolute are those that GDAL opens.
bool IsRelativeFile(const SourcePaths::Place& place)
{
    return QDir::isRelativePath(place.path) && !IsServerTable(place.path)
        && (place.path == place.relative || QFileInfo::exists(place.path));
}

} // namespace

SourcePaths::SourcePaths(const QString& mapPath)
    : m_folder(HasFolder(mapPath) ? QFileInfo(mapPath).absolutePath() : QString())
{
}

SourcePaths SourcePaths::InFolder(const QString& folder)
{
    SourcePaths paths;
    paths.m_folder = folder;
    return paths;
}

SourcePaths::Place SourcePaths::Store(const QString& path) const
{
    if (path.startsWith(UnknownFolder)) {
        const QString relative = path.mid(UnknownFolder.size());
        return {relative, relative};
    }
    if (m_folder.isEmpty() || IsServerTable(path) || !QFileInfo::exists(path))
        return {path, {}};
    const QString relative = QDir(m_folder).relativeFilePath(path);
    if (QDir::isAbsolutePath(relative))
        return {path, {}};
    return {LeadsUpwards(relative) ? path : relative, relative};
}

QString SourcePaths::Find(const Place& place) const
{
    if (m_folder.isEmpty() && IsRelativeFile(place))
        return UnknownFolder + place.path;
    if (m_folder.isEmpty() || IsServerTable(place.path))
        return place.path;
    const QString name = QFileInfo(place.path).fileName();
    QString asKept = InFolderOfMap(place.path);
    for (const QString& candidate : {InFolderOfMap(place.relative), asKept, InFolderOfMap(name)}) {
        if (!candidate.isEmpty() && QFileInfo::exists(candidate))
            return candidate;
    }
    return asKept;
}

SourcePaths::Place SourcePaths::StoreFrom(const SourcePaths& former, const Place& old) const
{
    Place place = Store(former.Find(old));
    if (place.relative.isEmpty())
        place.relative = old.relative;
    return place;
}

// An absolute path stays as it is.
QString SourcePaths::InFolderOfMap(const QString& relative) const
{
    if (relative.isEmpty())
        return {};
    return QDir::cleanPath(QDir(m_folder).absoluteFilePath(relative));
}

} // namespace Orvane
