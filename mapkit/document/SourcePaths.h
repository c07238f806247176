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

    /// mapPath: absolute; a map without a file, such as one on a server, stores absolute paths only.
    explicit SourcePaths(const QString& mapPath);
    /// Paths from that folder, for a map that is in none; absolute, or empty for absolute paths only.
    static SourcePaths InFolder(const QString& folder);

    /// The place to store for a file. A name that is not a file, such as another name that GDAL opens, is
    /// stored as it is.
    Place Store(const QString& path) const;

    /// The absolute path of the first of these that exists: the relative path from the map's present folder,
    /// the stored path, and a file of that name in the map's folder. If none exists, the path where the data
    /// should be. Without a folder, a relative path is a missing file: it is shown in a folder named "…",
    /// which Store takes away, and is never looked for in the working directory.
    QString Find(const Place& place) const;

    /// What is stored for data of a map that is copied to here. former: how the map found them, where old was
    /// stored. A relative path stays for those who have the data in another folder.
    Place StoreFrom(const SourcePaths& former, const Place& old) const;

private:
    SourcePaths() = default;
    QString InFolderOfMap(const QString& relative) const;

    QString m_folder; // of the map, or in its place
};

} // namespace Orvane
