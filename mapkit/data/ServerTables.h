// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataSource.h"

#include <QString>
#include <QStringList>

#include <unordered_map>
#include <vector>

namespace Orvane {

class Progress;
struct LayerSource;

/// The path of data that are tables on the server of their map. It names no server: a map can only refer to
/// the one that it is on.
inline constexpr auto ServerTablePath = "pg:";

/// Whether a path is ServerTablePath.
inline bool IsServerTable(const QString& path)
{
    return path == QLatin1String(ServerTablePath);
}

/// The tables with geometries on the server of a map, as data of its layers. The layer in such a source is
/// "schema.table", or "schema.table (column)" if the table has several columns with geometries.
///
/// Every member may be called on any thread, and raises as the member of DataSource with that name does; the
/// errors name the table.
class ServerTables
{
public:
    virtual ~ServerTables() = default;
    ServerTables(const ServerTables&) = delete;
    ServerTables& operator=(const ServerTables&) = delete;

    /// The names of all layers that the user may read, sorted.
    virtual QStringList Names(Progress& progress) const = 0;
    /// A layer by its name. Reads all its geometries on the server.
    virtual SourceLayer Describe(const QString& layer, Progress& progress) const = 0;
    /// What is known about a layer without reading it; the number of features and the extent are not.
    virtual SourceDetails Details(const QString& layer) const = 0;
    /// The features of a layer in the map's coordinate system.
    virtual FeatureSet
    Read(const LayerSource& source, const QString& mapSystem, Progress& progress) const = 0;
    /// The attributes of a layer, in the order of the table's columns.
    virtual std::vector<SourceField> Fields(const QString& layer) const = 0;
    /// The values of one attribute by feature ID.
    virtual std::unordered_map<qint64, FieldValue>
    ReadField(const LayerSource& source, const QString& field, Progress& progress) const = 0;
    /// The attributes of one feature; none if there is no longer a feature with that ID.
    virtual std::vector<FeatureAttribute> Attributes(const QString& layer, qint64 featureID) const = 0;

protected:
    ServerTables() = default;
};

/// The tables that a layer's data are in. Raises RunTimeError with SourceUnreadable if its map is not on a
/// server.
const ServerTables& TablesOf(const LayerSource& source);

/// Why the layer's data cannot be used by what works with files only, as a sentence; empty if they can.
QString WhyNoFile(const LayerSource& source);

} // namespace Orvane
