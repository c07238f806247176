// SPDX-License-Identifier: MIT
#include "mapkit/postgis/PostgisCatalogue.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>

#include <algorithm>

namespace Orvane::PostgisCatalogue {

namespace {

using Row = ServerQueries::Row;

constexpr auto NoKey = "NULL";

// Views, foreign tables and tables with policies could run what others have written. A foreign table may
// also be a part of a table.
constexpr auto LayersQuery = R"sql(
SELECT n.nspname, c.relname, a.attname, t.typname, x.nspname, c.oid, count(*) OVER (PARTITION BY c.oid),
    (SELECT k.attname FROM pg_index AS i
        JOIN pg_attribute AS k ON k.attrelid = i.indrelid AND k.attnum = i.indkey[0]
        WHERE i.indrelid = c.oid AND i.indisprimary AND i.indnkeyatts = 1
            AND k.atttypid IN ('int2'::regtype, 'int4'::regtype, 'int8'::regtype) LIMIT 1),
    format_type(a.atttypid, a.atttypmod)
FROM pg_extension AS e JOIN pg_namespace AS x ON x.oid = e.extnamespace
    JOIN pg_type AS t ON t.typnamespace = x.oid AND t.typname IN ('geometry', 'geography')
    JOIN pg_attribute AS a ON a.atttypid = t.oid AND a.attnum > 0 AND NOT a.attisdropped
    JOIN pg_class AS c ON c.oid = a.attrelid AND c.relkind IN ('r', 'p', 'm') AND NOT c.relrowsecurity
    JOIN pg_namespace AS n ON n.oid = c.relnamespace
WHERE e.extname = 'postgis' AND has_schema_privilege(n.oid, 'USAGE') AND has_table_privilege(c.oid, 'SELECT')
    AND NOT EXISTS (
        WITH RECURSIVE part AS (
            SELECT inhrelid FROM pg_inherits WHERE inhparent = c.oid
            UNION SELECT i.inhrelid FROM pg_inherits AS i JOIN part AS p ON p.inhrelid = i.inhparent)
        SELECT FROM part JOIN pg_class AS f ON f.oid = part.inhrelid WHERE f.relkind = 'f')
ORDER BY 1, 2, 3)sql";

constexpr auto FieldsQuery = R"sql(
SELECT a.attname, t.typcategory = 'N', t.typcategory = 'S'
FROM pg_attribute AS a JOIN pg_type AS t ON t.oid = a.atttypid
WHERE a.attrelid = $1::oid AND a.attnum > 0 AND NOT a.attisdropped
    AND t.typname NOT IN ('geometry', 'geography', 'raster')
ORDER BY a.attnum)sql";

QByteArray BytesIn(const Row& row, size_t column)
{
    return row[column].value_or(QByteArray());
}

QString TextIn(const Row& row, size_t column)
{
    return QString::fromUtf8(BytesIn(row, column));
}

PostgisLayer LayerIn(const Row& row)
{
    PostgisLayer layer;
    layer.name = TextIn(row, 0) + u'.' + TextIn(row, 1);
    if (BytesIn(row, 6) != "1")
        layer.name += QLatin1String(" (") + TextIn(row, 2) + u')';
    layer.type = TextIn(row, 8).section(u'.', -1); // without the schema of PostGIS
    layer.number = BytesIn(row, 5);
    layer.table = ServerQueries::Quoted(TextIn(row, 0)) + '.' + ServerQueries::Quoted(TextIn(row, 1));
    layer.postgis = ServerQueries::Quoted(TextIn(row, 4));
    const QByteArray column = ServerQueries::Quoted(TextIn(row, 2));
    layer.geometry = layer.postgis + ".ST_AsBinary(" + column + ')';
    layer.column = BytesIn(row, 3) == "geometry" ? column : column + "::" + layer.postgis + ".geometry";
    layer.key = row[7] ? ServerQueries::Quoted(TextIn(row, 7)) : QByteArray(NoKey);
    return layer;
}

} // namespace

std::vector<PostgisLayer> Layers(ServerQueries& queries)
{
    std::vector<PostgisLayer> layers;
    queries.Read(LayersQuery, {}, [&](const Row& row) { layers.push_back(LayerIn(row)); });
    return layers;
}

PostgisLayer Find(ServerQueries& queries, const QString& name)
{
    const std::vector<PostgisLayer> layers = Layers(queries);
    const auto found = std::find_if(
        layers.begin(), layers.end(), [&](const PostgisLayer& layer) { return layer.name == name; });
    if (found != layers.end())
        return *found;
    throw RunTimeError(
        SourceUnreadable,
        QCoreApplication::translate(
            "DataSource", "There is no table \"%1\" with geometries on the server that you may read.")
            .arg(name));
}

std::vector<SourceField> Fields(ServerQueries& queries, const PostgisLayer& layer)
{
    std::vector<SourceField> fields;
    queries.Read(FieldsQuery, {layer.number}, [&](const Row& row) {
        fields.push_back({TextIn(row, 0), BytesIn(row, 1) == "t", BytesIn(row, 2) == "t"});
    });
    return fields;
}

QString SystemOf(ServerQueries& queries, const PostgisLayer& layer)
{
    QString system;
    queries.Read(
        "SELECT CASE WHEN upper(s.auth_name) = 'EPSG' THEN 'EPSG:' || s.auth_srid ELSE s.srtext END FROM "
            + layer.postgis + ".spatial_ref_sys AS s WHERE s.srid = (SELECT " + layer.postgis + ".ST_SRID("
            + layer.column + ") FROM " + layer.table + " WHERE " + layer.column + " IS NOT NULL LIMIT 1)",
        {}, [&](const Row& row) { system = TextIn(row, 0); });
    return system;
}

} // namespace Orvane::PostgisCatalogue
