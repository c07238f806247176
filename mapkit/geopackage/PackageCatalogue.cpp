// SPDX-License-Identifier: MIT
#include "mapkit/geopackage/PackageCatalogue.h"

#include "mapkit/geopackage/PackageConnection.h"
#include "mapkit/geopackage/PackageTable.h"

#include <limits>

namespace Orvane {

namespace {

constexpr int MostLayers = 9000; // from 10,000 on, GDAL leaves some out
constexpr int OtherSystem = -1;

// None of these changes what the geometries of a table are.
bool IsKnownExtension(const QString& name)
{
    static const QSet<QString> known
        = {QStringLiteral("gpkg_rtree_index"), QStringLiteral("gpkg_schema"),
           QStringLiteral("gpkg_metadata"),    QStringLiteral("gpkg_crs_wkt"),
           QStringLiteral("gpkg_crs_wkt_1_1"), QStringLiteral("gpkg_related_tables"),
           QStringLiteral("related_tables"),   QStringLiteral("gdal_aspatial")};
    return known.contains(name);
}

// Readers treat these as their own.
bool IsReserved(const QString& table)
{
    const QString name = table.toLower();
    return name.isEmpty() || name.startsWith(QLatin1String("gpkg"))
        || name.startsWith(QLatin1String("sqlite_")) || name.startsWith(QLatin1String("rtree_"))
        || name == QLatin1String("ogr_empty_table");
}

} // namespace

PackageCatalogue::PackageCatalogue(const PackageConnection& connection)
{
    ReadTables(connection);
    for (const char* name : {"gpkg_contents", "gpkg_geometry_columns", "gpkg_spatial_ref_sys"}) {
        if (!m_tables.contains(QLatin1String(name)))
            throw PackageDoubt();
    }
    ReadExtensions(connection);
    ReadSystems(connection);
    ReadCounts(connection);
    ReadLayers(connection);
}

// A virtual table has no page.
void PackageCatalogue::ReadTables(const PackageConnection& connection)
{
    PackageStatement rows(
        connection,
        "SELECT type, name, tbl_name, rootpage FROM sqlite_master WHERE type IN ('table', 'index', 'view')");
    while (rows.Step()) {
        const QString type = rows.Text(0);
        const QString name = rows.Text(1);
        if (type == QLatin1String("index"))
            m_indexed.insert(rows.Text(2));
        else
            ++m_uses[name.toLower()];
        if (type == QLatin1String("table") && !rows.IsNull(3) && rows.Whole(3) > 0)
            m_tables.insert(name);
    }
}

void PackageCatalogue::ReadExtensions(const PackageConnection& connection)
{
    const QString table = QStringLiteral("gpkg_extensions");
    if (!m_tables.contains(table)) {
        if (m_uses.contains(table))
            throw PackageDoubt();
        return;
    }
    PackageStatement rows(connection, "SELECT table_name, extension_name FROM gpkg_extensions");
    while (rows.Step()) {
        if (IsKnownExtension(rows.Text(1)))
            continue;
        if (rows.IsNull(0))
            throw PackageDoubt();
        m_doubtful.insert(rows.Text(0).toLower());
    }
}

// A system may hold for a date only.
void PackageCatalogue::ReadSystems(const PackageConnection& connection)
{
    bool hasDate = false;
    PackageStatement columns(connection, "PRAGMA table_xinfo(gpkg_spatial_ref_sys)");
    while (columns.Step())
        hasDate = hasDate || columns.Text(1).compare(QLatin1String("epoch"), Qt::CaseInsensitive) == 0;
    PackageStatement rows(
        connection,
        QByteArray("SELECT srs_id, organization, organization_coordsys_id, ") + (hasDate ? "epoch" : "NULL")
            + " FROM gpkg_spatial_ref_sys");
    while (rows.Step()) {
        const qint64 number = rows.Whole(0);
        const bool isKnown = number > 0 && number <= std::numeric_limits<int>::max()
            && rows.Text(1).compare(QLatin1String("EPSG"), Qt::CaseInsensitive) == 0
            && rows.Whole(2) == number && rows.IsNull(3) && !m_systems.contains(number);
        m_systems[number] = isKnown ? int(number) : OtherSystem;
    }
}

void PackageCatalogue::ReadCounts(const PackageConnection& connection)
{
    if (!m_tables.contains(QStringLiteral("gpkg_ogr_contents")))
        return;
    PackageStatement rows(
        connection,
        "SELECT table_name, feature_count FROM gpkg_ogr_contents WHERE feature_count IS NOT NULL");
    while (rows.Step())
        m_counts[rows.Text(0)] = rows.Whole(1);
}

void PackageCatalogue::ReadLayers(const PackageConnection& connection)
{
    PackageStatement all(connection, "SELECT count(*) FROM gpkg_contents");
    if (!all.Step() || all.Whole(0) > MostLayers)
        throw PackageDoubt();
    PackageStatement rows(
        connection,
        "SELECT g.table_name, g.column_name, g.geometry_type_name, g.srs_id, g.z, g.m, c.srs_id, c.data_type"
        " FROM gpkg_geometry_columns g JOIN gpkg_contents c ON g.table_name = c.table_name");
    QSet<QString> found; // in lower case
    while (rows.Step()) {
        const QString table = rows.Text(0);
        const QString lower = table.toLower();
        if (found.contains(lower)) { // several columns, or tables with almost the same name
            m_doubtful.insert(lower);
            continue;
        }
        found.insert(lower);
        const bool isPlain = rows.Text(7) == QLatin1String("features") && IsPlainGeometryType(rows.Text(2))
            && HasOneSystem(rows.Whole(3), rows.IsNull(6) ? rows.Whole(3) : rows.Whole(6))
            && rows.Whole(4) >= 0 && rows.Whole(4) <= 2 && rows.Whole(5) >= 0 && rows.Whole(5) <= 2;
        if (isPlain)
            m_layers[table]
                = {table, {}, rows.Text(1), m_systems.value(rows.Whole(3)), m_counts.value(table, -1)};
    }
}

bool PackageCatalogue::HasOneSystem(qint64 number, qint64 other) const
{
    return number == other && m_systems.value(number, OtherSystem) != OtherSystem;
}

const PackageLayer& PackageCatalogue::Layer(const QString& name) const
{
    const auto found = m_layers.constFind(name);
    const QString lower = name.toLower();
    if (found == m_layers.constEnd() || IsReserved(name) || !m_tables.contains(name)
        || m_uses.value(lower) != 1 || m_doubtful.contains(lower))
        throw PackageDoubt();
    return *found;
}

} // namespace Orvane
