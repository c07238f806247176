// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The paths that a map file stores for its data, so that the data is found again after both were moved.
///
///     const SourcePaths paths(document.Path());
///     row = paths.Store(fileName);        // when a layer gets its data
///     fileName = paths.Find(row);         // when they are read
///
/// Nothing here raises.
class SourcePaths
{
public:
    /// What is stored about the location of one file.
    struct Place {
        QString path; ///< relative for data in the map's folder or below, otherwise absolute
        QString relative; ///< relative to the map's folder, also with ".."; empty if there is no such path
    };

    /// mapPath: absolute; empty for a map without a file, which stores absolute paths only.
    explicit SourcePaths(const QString& mapPath) : m_mapPath(mapPath) { }

    /// The place to store for a file. A name that is not a file, such as another name that GDAL opens, is
    /// stored as it is.
    Place Store(const QString& path) const;

    /// The absolute path of the first of these that exists: the relative path from the map's present folder,
    /// the stored path, and a file of that name in the map's folder. If none exists, the path where the data
    /// should be.
    QString Find(const Place& place) const;

private:
    QString InMapFolder(const QString& relative) const;

    QString m_mapPath;
};

} // namespace Orvane
