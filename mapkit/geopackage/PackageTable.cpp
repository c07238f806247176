// SPDX-License-Identifier: MIT
#include "mapkit/geopackage/PackageTable.h"

#include "mapkit/geopackage/PackageCatalogue.h"
#include "mapkit/geopackage/PackageConnection.h"

#include <QStringList>

namespace Orvane {

namespace {

// What GDAL takes for an attribute. All other types may be geometries to it.
bool IsAttributeType(const QString& type)
{
    static const QStringList known
        = {QStringLiteral("BOOLEAN"),   QStringLiteral("TINYINT"), QStringLiteral("SMALLINT"),
           QStringLiteral("MEDIUMINT"), QStringLiteral("INT"),     QStringLiteral("INTEGER"),
           QStringLiteral("FLOAT"),     QStringLiteral("DOUBLE"),  QStringLiteral("REAL"),
           QStringLiteral("NUMERIC"),   QStringLiteral("TEXT"),    QStringLiteral("BLOB"),
           QStringLiteral("DATE"),      QStringLiteral("DATETIME")};
    const QString name = type.left(type.indexOf(QLatin1Char('('))).trimmed();
    return known.contains(name, Qt::CaseInsensitive);
}

// The rows would come in the order of such an index.
void RequireNoIndexOver(const PackageConnection& connection, const PackageLayer& layer)
{
    PackageStatement indexes(connection, "PRAGMA index_list(" + NameInPackage(layer.table) + ")");
    while (indexes.Step()) {
        PackageStatement columns(connection, "PRAGMA index_info(" + NameInPackage(indexes.Text(1)) + ")");
        while (columns.Step()) {
            if (columns.IsNull(2) || columns.Text(2) == layer.geometry)
                throw PackageDoubt();
        }
    }
}

} // namespace

bool IsPlainGeometryType(const QString& type)
{
    static const QStringList known = {QStringLiteral("GEOMETRY"),     QStringLiteral("POINT"),
                                      QStringLiteral("LINESTRING"),   QStringLiteral("POLYGON"),
                                      QStringLiteral("MULTIPOINT"),   QStringLiteral("MULTILINESTRING"),
                                      QStringLiteral("MULTIPOLYGON"), QStringLiteral("GEOMETRYCOLLECTION")};
    return known.contains(type, Qt::CaseInsensitive);
}

QString KeyInPackage(const PackageConnection& connection, const PackageLayer& layer, bool hasIndex)
{
    PackageStatement columns(connection, "PRAGMA table_xinfo(" + NameInPackage(layer.table) + ")");
    QStringList keys;
    bool hasGeometry = false;
    while (columns.Step()) {
        const QString name = columns.Text(1);
        const QString type = columns.Text(2);
        const bool isKey = columns.Whole(5) != 0;
        const bool isGeometry = name == layer.geometry;
        const bool isKnown = isKey ? type.compare(QLatin1String("INTEGER"), Qt::CaseInsensitive) == 0
            : isGeometry           ? IsPlainGeometryType(type)
                                   : IsAttributeType(type);
        if (!isKnown || columns.Whole(6) != 0)
            throw PackageDoubt();
        hasGeometry = hasGeometry || isGeometry;
        if (isKey)
            keys << name;
    }
    if (keys.size() != 1 || !hasGeometry)
        throw PackageDoubt();
    if (hasIndex)
        RequireNoIndexOver(connection, layer);
    return keys.front();
}

} // namespace Orvane
