// SPDX-License-Identifier: MIT
#include "mapkit/data/DataFiles.h"

#include <QDirIterator>

#include <algorithm>
#include <array>

namespace Orvane::DataFiles {

namespace {

const QString& FolderSuffix()
{
    static const QString suffix = QStringLiteral(".gdb");
    return suffix;
}

bool IsDataFile(const QString& name)
{
    static const QStringList patterns = Patterns().split(QLatin1Char(' '));
    return std::any_of(patterns.begin(), patterns.end(), [&](const QString& pattern) {
        return name.endsWith(pattern.mid(1), Qt::CaseInsensitive);
    });
}

// What the .dbf of a .shp, and the like, belongs to; the path itself if it belongs to nothing.
QString MainFileOf(const QString& path)
{
    struct Companion {
        const char* suffix;
        const char* main;
    };
    static constexpr std::array<Companion, 13> Companions = {{
        {"dbf", "shp"},
        {"shx", "shp"},
        {"prj", "shp"},
        {"cpg", "shp"},
        {"qpj", "shp"},
        {"sbn", "shp"},
        {"sbx", "shp"},
        {"qix", "shp"},
        {"mid", "mif"},
        {"dat", "tab"},
        {"map", "tab"},
        {"id", "tab"},
        {"ind", "tab"},
    }};
    const QFileInfo file(path);
    for (const Companion& companion : Companions) {
        if (file.suffix().compare(QLatin1String(companion.suffix), Qt::CaseInsensitive) != 0)
            continue;
        const QString suffix = QLatin1String(companion.main);
        for (const QString& written : {suffix, suffix.toUpper()}) {
            const QString main = file.dir().filePath(file.completeBaseName() + QLatin1Char('.') + written);
            if (QFileInfo(main).isFile())
                return main;
        }
    }
    const QString source = SourceOf(path);
    return source.isEmpty() || !QFileInfo(source).isDir() ? path : source;
}

} // namespace

QStringList Meant(const QStringList& chosen, const std::function<void()>& atEach)
{
    QStringList meant;
    for (const QString& path : chosen) {
        const QString source = MainFileOf(path);
        const bool isFolder = SourceOf(source).isEmpty() && QFileInfo(source).isDir();
        const QStringList inside = isFolder ? In(source, atEach) : QStringList();
        meant << (inside.isEmpty() ? QStringList(source) : inside);
    }
    meant.removeDuplicates();
    return meant;
}

QString Patterns()
{
    return QStringLiteral(
        "*.gpkg *.shp *.geojson *.json *.geojsonl *.topojson *.kml *.kmz *.gml *.gpx *.dxf *.tab *.mif *.fgb "
        "*.csv *.tsv *.xlsx *.ods *.sqlite *.parquet *.geoparquet *.vrt *.gmt *.zip *.shz *.tgz *.tar.gz "
        "*.geojson.gz *.json.gz *.csv.gz *.gml.gz *.gpx.gz *.kml.gz");
}

QString SourceOf(const QString& path)
{
    qsizetype end = 0;
    while ((end = path.indexOf(FolderSuffix(), end, Qt::CaseInsensitive)) >= 0) {
        end += FolderSuffix().size();
        if (end == path.size() || path.at(end) == QLatin1Char('/'))
            return path.left(end);
    }
    return IsDataFile(path) ? path : QString();
}

QStringList In(const QString& folder, const std::function<void()>& atEach)
{
    QStringList found;
    QStringList folders(folder);
    while (!folders.isEmpty()) {
        QDirIterator entries(folders.takeFirst(), QDir::AllEntries | QDir::NoDotAndDotDot);
        while (entries.hasNext()) {
            if (atEach)
                atEach();
            const QString path = entries.next();
            const QFileInfo entry = entries.fileInfo();
            const bool isSource = !SourceOf(entry.fileName()).isEmpty();
            const bool isFolder = entry.isDir();
            if (isSource && isFolder == entry.fileName().endsWith(FolderSuffix(), Qt::CaseInsensitive))
                found << path;
            else if (isFolder && !entry.isSymLink())
                folders << path;
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace Orvane::DataFiles
