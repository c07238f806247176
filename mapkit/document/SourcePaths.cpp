// SPDX-License-Identifier: MIT
#include "mapkit/document/SourcePaths.h"

#include <QDir>
#include <QFileInfo>

namespace Orvane {

namespace {

bool LeadsUpwards(const QString& relative)
{
    return relative == QLatin1String("..") || relative.startsWith(QLatin1String("../"));
}

} // namespace

SourcePaths::Place SourcePaths::Store(const QString& path) const
{
    if (m_mapPath.isEmpty() || !QFileInfo::exists(path))
        return {path, {}};
    const QString relative = QFileInfo(m_mapPath).absoluteDir().relativeFilePath(path);
    if (QDir::isAbsolutePath(relative))
        return {path, {}};
    return {LeadsUpwards(relative) ? path : relative, relative};
}

QString SourcePaths::Find(const Place& place) const
{
    if (m_mapPath.isEmpty())
        return place.path;
    const QString name = QFileInfo(place.path).fileName();
    QString asKept = InMapFolder(place.path);
    for (const QString& candidate : {InMapFolder(place.relative), asKept, InMapFolder(name)}) {
        if (!candidate.isEmpty() && QFileInfo::exists(candidate))
            return candidate;
    }
    return asKept;
}

// An absolute path stays as it is.
QString SourcePaths::InMapFolder(const QString& relative) const
{
    if (relative.isEmpty())
        return {};
    return QDir::cleanPath(QFileInfo(m_mapPath).absoluteDir().absoluteFilePath(relative));
}

} // namespace Orvane
