// SPDX-License-Identifier: MIT
#include "mapkit/files/OpenedData.h"

#include "mapkit/files/DataFiles.h"
#include "mapkit/files/GdalSetup.h"
#include "mapkit/files/TextTable.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <array>
#include <cpl_conv.h>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

struct Format {
    const char* suffix;
    const char* driver; ///< of GDAL
    const char* name; ///< for the user
};

// Formats for which a GDAL may have been built without a driver, or whose driver is not used.
constexpr std::array<Format, 7> OptionalFormats = {{
    {"parquet", "Parquet", "GeoParquet"},
    {"geoparquet", "Parquet", "GeoParquet"},
    {"fgb", "FlatGeobuf", "FlatGeobuf"},
    {"kmz", "LIBKML", "KMZ"},
    {"xlsx", "XLSX", "Excel (.xlsx)"},
    {"xls", "XLS", "Excel (.xls)"},
    {"ods", "ODS", "OpenDocument (.ods)"},
}};

bool EndsWith(const QString& path, std::initializer_list<const char*> suffixes)
{
    return std::any_of(suffixes.begin(), suffixes.end(), [&](const char* suffix) {
        return path.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
    });
}

// The beginning of GDAL's names for what is in the archive; empty for other files.
QString PrefixOfArchive(const QString& path)
{
    const char* system = EndsWith(path, {".zip"})     ? "/vsizip/"
        : EndsWith(path, {".tar", ".tgz", ".tar.gz"}) ? "/vsitar/"
                                                      : nullptr;
    if (!system || !QFileInfo(path).isFile())
        return {};
    return QLatin1String(system) + QLatin1Char('{') + path + QLatin1Char('}');
}

// GDAL knows text tables by their suffix, which may be hidden by that of the compression.
QString NameForGdal(const QString& path)
{
    const bool isCompressed = EndsWith(path, {".gz"}) && QFileInfo(path).isFile();
    const QString name = isCompressed ? QLatin1String("/vsigzip/") + path : path;
    const bool isHidden = EndsWith(name, {".txt", ".csv.gz", ".tsv.gz", ".psv.gz", ".txt.gz"});
    return isHidden ? QLatin1String("CSV:") + name : name;
}

std::unique_ptr<GDALDataset> OpenDataset(const QString& name)
{
    if (IsTextTable(name))
        return OpenTextTable(name);
    constexpr unsigned flags = GDAL_OF_VECTOR | GDAL_OF_READONLY;
    // Its own index is faster, but needs nodes in the order of their numbers; servers write them otherwise.
    const CPLConfigOptionSetter index(
        "OSM_USE_CUSTOM_INDEXING", EndsWith(name, {".osm"}) ? "NO" : "YES", true);
    return std::unique_ptr<GDALDataset>(GDALDataset::Open(name.toUtf8().constData(), flags));
}

bool IsHidden(const QString& member)
{
    return member.startsWith(QLatin1Char('.')) || member.contains(QLatin1String("/."))
        || member.startsWith(QLatin1String("__MACOSX/"));
}

QStringList MembersOf(const QString& archive)
{
    char** entries = VSIReadDirRecursive(archive.toUtf8().constData());
    QStringList members;
    for (char** entry = entries; entry && *entry; ++entry) {
        QString member = QString::fromUtf8(*entry);
        while (member.endsWith(QLatin1Char('/')))
            member.chop(1);
        members << member;
    }
    CSLDestroy(entries);
    return members;
}

// A folder that is a source ends the names of what is in it.
QStringList DataIn(const QString& archive)
{
    QStringList found;
    for (const QString& member : MembersOf(archive)) {
        const QString source = DataFiles::SourceOf(member);
        if (!source.isEmpty() && !IsHidden(source) && !found.contains(source))
            found << source;
    }
    found.sort();
    return found;
}

bool HasGeometry(GDALDataset& dataset)
{
    for (OGRLayer* layer : dataset.GetLayers()) {
        if (layer->GetGeomType() != wkbNone)
            return true;
    }
    return false;
}

// "roads" for "north/roads.shp" in an archive.
QString TitleOf(const QString& member)
{
    return QFileInfo(member).completeBaseName();
}

// The tables of rasters in a GeoPackage, the oldest first.
QStringList RasterTablesOf(const QString& path)
{
    const char* const drivers[] = {"GPKG", nullptr};
    constexpr unsigned flags = GDAL_OF_RASTER | GDAL_OF_READONLY;
    const std::unique_ptr<GDALDataset> file(GDALDataset::Open(path.toUtf8().constData(), flags, drivers));
    const char* sql
        = "SELECT table_name FROM gpkg_contents WHERE data_type IN ('tiles', '2d-gridded-coverage')"
          " ORDER BY rowid";
    OGRLayer* found = file ? file->ExecuteSQL(sql, nullptr, nullptr) : nullptr;
    if (!found)
        return {};
    QStringList tables;
    while (const OGRFeatureUniquePtr row{found->GetNextFeature()})
        tables << QString::fromUtf8(row->GetFieldAsString(0));
    file->ReleaseResultSet(found);
    return tables;
}

QString WithoutSuffix(const QString& member)
{
    return member.chopped(QFileInfo(member).fileName().size()) + TitleOf(member);
}

using Layers = std::vector<OpenedData::Layer>;

// Gives each layer whose name others have too the other name, unless it is empty.
void RenameShared(Layers& layers, const std::vector<QString>& otherNames)
{
    QHash<QString, int> uses;
    for (const OpenedData::Layer& layer : layers)
        ++uses[layer.name];
    for (size_t i = 0; i < layers.size(); ++i) {
        if (uses[layers[i].name] > 1 && !otherNames[i].isEmpty())
            layers[i].name = otherNames[i];
    }
}

} // namespace

OpenedData::OpenedData(const QString& path)
{
    PrepareGdal();
    const QString archive = PrefixOfArchive(path);
    if (!archive.isEmpty())
        OpenArchive(archive);
    else if (auto dataset = OpenDataset(NameForGdal(path)))
        m_members.push_back({{}, std::move(dataset)});
}

OpenedData::~OpenedData() = default;

void OpenedData::OpenArchive(const QString& archive)
{
    const QStringList names = DataIn(archive);
    for (const QString& name : names) {
        if (auto dataset = OpenDataset(archive + QLatin1Char('/') + name))
            m_members.push_back({name, std::move(dataset)});
        else
            m_unopened << name;
    }
    if (!names.isEmpty())
        return;
    if (auto dataset = OpenDataset(archive)) // it may be a source as a whole
        m_members.push_back({{}, std::move(dataset)});
}

std::vector<OpenedData::Layer> OpenedData::NamedLayers() const
{
    std::vector<Layer> layers;
    std::vector<QString> withFolder;
    std::vector<QString> withSuffix;
    for (const Member& member : m_members) {
        const QString title = TitleOf(member.name);
        const bool isTable = !HasGeometry(*member.dataset);
        for (OGRLayer* layer : member.dataset->GetLayers()) {
            QString name = QString::fromUtf8(layer->GetName());
            if (IsNameless(name) && !title.isEmpty())
                name = title;
            layers.push_back({name, layer, isTable, member.dataset.get()});
            const QString within = name == title ? QString() : QLatin1Char('/') + name;
            withFolder.push_back(member.name.isEmpty() ? QString() : WithoutSuffix(member.name) + within);
            withSuffix.push_back(member.name.isEmpty() ? QString() : member.name + within);
        }
    }
    RenameShared(layers, withFolder);
    for (Layer& layer : layers)
        layer.earlierName = layer.name;
    RenameShared(layers, withSuffix);
    return layers;
}

const std::vector<OpenedData::Layer>& OpenedData::Layers() const
{
    if (m_layers.empty())
        m_layers = NamedLayers();
    return m_layers;
}

OGRLayer* OpenedData::Find(const QString& name) const
{
    if (m_members.size() == 1 && m_members.front().name.isEmpty())
        return m_members.front().dataset->GetLayerByName(name.toUtf8().constData());
    for (QString Layer::*known : {&Layer::name, &Layer::earlierName}) {
        for (const Layer& layer : Layers()) {
            if (layer.*known == name)
                return layer.layer;
        }
    }
    return nullptr;
}

GDALDataset* OpenedData::DatasetOf(const OGRLayer& layer) const
{
    for (const Member& member : m_members) {
        for (const OGRLayer* known : member.dataset->GetLayers()) {
            if (known == &layer)
                return member.dataset.get();
        }
    }
    return nullptr;
}

QString OpenedData::FormatOf(const OGRLayer& layer) const
{
    GDALDataset* dataset = DatasetOf(layer);
    return dataset && dataset->GetDriver() ? QString::fromUtf8(dataset->GetDriver()->GetDescription())
                                           : QString();
}

QString OpenedData::FormatTitleOf(const OGRLayer& layer) const
{
    GDALDataset* dataset = DatasetOf(layer);
    return dataset && dataset->GetDriver()
        ? QString::fromUtf8(dataset->GetDriver()->GetMetadataItem(GDAL_DMD_LONGNAME))
        : QString();
}

bool OpenedData::IsNameless(const QString& layer)
{
    return layer == QLatin1String("OGRGeoJSON");
}

QString NameInArchive(const QString& archive, const QString& member)
{
    const QString prefix = PrefixOfArchive(archive);
    return prefix.isEmpty() ? QString() : prefix + QLatin1Char('/') + member;
}

QStringList RastersWithin(const QString& path)
{
    PrepareGdal();
    const QString archive = PrefixOfArchive(path);
    if (archive.isEmpty())
        return DataFiles::MayHoldBoth(path) ? RasterTablesOf(path) : QStringList();
    QStringList rasters = MembersOf(archive);
    rasters.erase(
        std::remove_if(
            rasters.begin(), rasters.end(),
            [](const QString& member) { return IsHidden(member) || !DataFiles::IsRaster(member); }),
        rasters.end());
    rasters.sort();
    return rasters;
}

QString WhyNoDriver(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix();
    for (const Format& format : OptionalFormats) {
        const bool isThis = suffix.compare(QLatin1String(format.suffix), Qt::CaseInsensitive) == 0;
        if (isThis && !GDALGetDriverByName(format.driver)) {
            return QCoreApplication::translate("DataSource", "this program has no driver for %1")
                .arg(QLatin1String(format.name));
        }
    }
    return {};
}

} // namespace Orvane
