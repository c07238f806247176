// SPDX-License-Identifier: MIT
#include "mapkit/data/DataFiles.h"

#include <QDir>

namespace Orvane::DataFiles {

QString Patterns()
{
    return QStringLiteral(
        "*.gpkg *.shp *.geojson *.json *.kml *.kmz *.gml *.gpx *.dxf *.tab *.mif *.fgb *.csv *.vrt");
}

QStringList In(const QString& folder)
{
    const QDir place(folder);
    QStringList files;
    for (const QString& name : place.entryList(Patterns().split(QLatin1Char(' ')), QDir::Files, QDir::Name))
        files << place.filePath(name);
    return files;
}

} // namespace Orvane::DataFiles
