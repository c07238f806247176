// SPDX-License-Identifier: MIT
#include "mapkit/files/DataFiles.h"

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

constexpr auto RasterSuffixes = "tif tiff jp2 img asc hgt dem dt0 dt1 dt2 bil ecw sid nc mbtiles grd ers";
constexpr auto PictureSuffixes = "png jpg jpeg gif bmp webp"; // most of them are no maps

bool IsDataFile(const QString& name)
{
    static const QStringList patterns = Patterns().split(QLatin1Char(' '));
    return std::any_of(patterns.begin(), patterns.end(), [&](const QString& pattern) {
        return name.endsWith(pattern.mid(1), Qt::CaseInsensitive);
    });
}

bool HasSuffix(const QString& path, const char* suffixes)
{
    const QStringList list = QString::fromLatin1(suffixes).split(QLatin1Char(' '));
    return list.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

// Of such a file beside a picture: "photo.pgw", "photo.pngw", "photo.wld" or "photo.png.aux.xml".
bool HasPlaceBeside(const QString& picture)
{
    const QFileInfo file(picture);
    const QString suffix = file.suffix();
    const QString base = file.dir().filePath(file.completeBaseName()) + QLatin1Char('.');
    const QStringList beside
        = {base + suffix.front() + suffix.back() + QLatin1Char('w'), base + suffix + QLatin1Char('w'),
           base + QLatin1String("wld"), picture + QLatin1String(".aux.xml")};
    return std::any_of(
        beside.begin(), beside.end(), [](const QString& path) { return QFileInfo::exists(path); });
}

// What a world file, overview or other companion of a raster belongs to; empty if it is none.
QString RasterOf(const QString& path)
{
    const QFileInfo file(path);
    for (const char* added : {".aux.xml", ".ovr"}) {
        if (!path.endsWith(QLatin1String(added), Qt::CaseInsensitive))
            continue;
        QString main = path.chopped(int(qstrlen(added)));
        if (QFileInfo(main).isFile())
            return main;
    }
    const bool mayBelong
        = file.suffix().endsWith(QLatin1Char('w'), Qt::CaseInsensitive) || HasSuffix(path, "wld prj");
    if (!mayBelong)
        return {};
    const QString all = QLatin1String(RasterSuffixes) + QLatin1Char(' ') + QLatin1String(PictureSuffixes);
    for (const QString& suffix : (all + QLatin1Char(' ') + all.toUpper()).split(QLatin1Char(' '))) {
        QString main = file.dir().filePath(file.completeBaseName() + QLatin1Char('.') + suffix);
        if (QFileInfo(main).isFile())
            return main;
    }
    return {};
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
            QString main = file.dir().filePath(file.completeBaseName() + QLatin1Char('.') + written);
            if (QFileInfo(main).isFile())
                return main;
        }
    }
    QString raster = RasterOf(path);
    if (!raster.isEmpty())
        return raster;
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

QString RasterPatterns()
{
    QStringList suffixes = QString::fromLatin1(RasterSuffixes).split(QLatin1Char(' '));
    suffixes << QStringLiteral("vrt") << QString::fromLatin1(PictureSuffixes).split(QLatin1Char(' '));
    return QLatin1String("*.") + suffixes.join(QLatin1String(" *."));
}

bool IsNamedAsRaster(const QString& path)
{
    return HasSuffix(path, RasterSuffixes) || HasSuffix(path, PictureSuffixes);
}

bool IsRaster(const QString& path)
{
    return HasSuffix(path, RasterSuffixes) || (HasSuffix(path, PictureSuffixes) && HasPlaceBeside(path));
}

bool MayHoldBoth(const QString& path)
{
    return path.endsWith(QLatin1String(".gpkg"), Qt::CaseInsensitive);
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
            const bool isSource = !SourceOf(entry.fileName()).isEmpty() || IsRaster(path);
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
