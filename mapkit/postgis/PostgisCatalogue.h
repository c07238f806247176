// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataSource.h"
#include "store/opening/ServerQueries.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace Orvane {

/// A column with geometries in a table of a server.
struct PostgisLayer {
    QString name; ///< as a map stores it: "schema.table", with the column in parentheses if there are several
    QString type; ///< of the geometries, as PostGIS names it: "geometry(LineString,25832)"
    QByteArray number; ///< the OID of the table
    QByteArray table; ///< with its schema, as a query writes it
    QByteArray geometry; ///< the geometry as WKB, as a query writes it
    QByteArray column; ///< the geometry, as PostGIS's functions for geometries take it
    QByteArray key; ///< the column with the features' IDs, as a query writes it; "NULL" for none
    QByteArray postgis; ///< the schema of PostGIS, as a query writes it
    bool HasKey() const { return key != "NULL"; }
};

/// What the catalogue of a server tells about the tables of PostGIS. Raises errors of the server.
namespace PostgisCatalogue {

/// All that the user may read, by name; none on a server without PostGIS.
std::vector<PostgisLayer> Layers(ServerQueries& queries);
/// The layer of that name. Raises RunTimeError with SourceUnreadable if there is none.
PostgisLayer Find(ServerQueries& queries, const QString& name);
/// The columns of its table that are no geometries.
std::vector<SourceField> Fields(ServerQueries& queries, const PostgisLayer& layer);
/// The coordinate system of its first geometry, as in CoordinateSystems.h; empty for none.
QString SystemOf(ServerQueries& queries, const PostgisLayer& layer);

} // namespace PostgisCatalogue

} // namespace Orvane
