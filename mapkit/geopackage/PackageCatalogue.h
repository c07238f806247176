// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace Orvane {

class PackageConnection;

/// A table with features in a GeoPackage.
struct PackageLayer {
    QString table;
    QString key; ///< the column with the IDs of features
    QString geometry; ///< the column with geometries
    int system = 0; ///< EPSG's number of the coordinate system
    qint64 featureCount = -1; ///< as the file says, which may be wrong; -1 if it says nothing
};

/// What the tables about tables in a GeoPackage say, read once.
class PackageCatalogue
{
public:
    /// Raises PackageDoubt for a file that is not as the standard says, or has an extension that is not known
    /// here and may change how the whole file is read.
    explicit PackageCatalogue(const PackageConnection& connection);

    /// The layer of that name, without its key. Raises PackageDoubt if there is none, or if it may be read in
    /// several ways: a view, a table with several geometry columns or an extension that is not known here, a
    /// coordinate system that is not EPSG's.
    const PackageLayer& Layer(const QString& name) const;
    /// Whether the table has an index of SQLite, other than the key itself.
    bool HasIndex(const QString& table) const { return m_indexed.contains(table); }

private:
    void ReadTables(const PackageConnection& connection);
    void ReadExtensions(const PackageConnection& connection);
    void ReadSystems(const PackageConnection& connection);
    void ReadCounts(const PackageConnection& connection);
    void ReadLayers(const PackageConnection& connection);
    bool HasOneSystem(qint64 number, qint64 other) const;

    QSet<QString> m_tables; // views and virtual tables are not among them
    QSet<QString> m_indexed;
    QSet<QString> m_doubtful; // with an extension or several columns, in lower case
    QHash<qint64, int> m_systems; // the number of EPSG for each number of the file; -1 for others
    QHash<QString, qint64> m_counts;
    QHash<QString, int> m_uses; // of a name in lower case
    QHash<QString, PackageLayer> m_layers;
};

} // namespace Orvane
