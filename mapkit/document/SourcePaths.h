// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// How a map file names the data that it shows, so that they are found again when both were moved.
///
///     const SourcePaths paths(document.Path());
///     row = paths.Store(fileName);        // when a layer gets its data
///     fileName = paths.Find(row);         // when they are read
///
/// Nothing here raises.
class SourcePaths
{
public:
    /// What is kept of one file's place.
    struct Place {
        QString path; ///< relative for data in the map's folder or below, else absolute
        QString relative; ///< from the map's folder, also upwards; empty where there is no such way
    };

    /// mapPath: absolute; empty for a map without a file, which keeps absolute paths only.
    explicit SourcePaths(const QString& mapPath) : m_mapPath(mapPath) { }

    /// The place to keep for a file. What is no file, such as another name that GDAL opens, is kept as it is.
    Place Store(const QString& path) const;

    /// The absolute path of the first of these that exists: the relative way from where the map is now, the
    /// path, a file of that name in the map's folder. When none does, where the data should be.
    QString Find(const Place& place) const;

private:
    QString InMapFolder(const QString& relative) const;

    QString m_mapPath;
};

} // namespace Orvane
