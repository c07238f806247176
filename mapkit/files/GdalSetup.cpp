// SPDX-License-Identifier: MIT
#include "mapkit/files/GdalSetup.h"

#include "mapkit/files/OrdinaryFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <cpl_conv.h>
#include <cpl_http.h>
#include <cpl_vsi_virtual.h>
#include <gdal_priv.h>
#include <mutex>
#include <ogr_srs_api.h>

namespace Orvane {

namespace {

// GDAL skips these each time drivers are registered, by this code or by any other.
constexpr auto RemoteDrivers
    = "AmigoCloud Carto CSW DAAS EEDA EEDAI Elasticsearch GMLAS GNMFile GNMDatabase GPSBabel HTTP "
      "MSSQLSpatial"
      " MySQL NGW OAPIF ODBC OGCAPI OGR_OGDI PLMOSAIC PLSCENES PostGISRaster PostgreSQL STACIT STACTA WCS WFS"
      " WMS WMTS";

// These open files by themselves, past GDAL's file systems: a pipe would be waited for.
constexpr auto DriversWithOwnFiles = "COASP FITS HDF4 HDF4Image MFF2 XLS";

constexpr auto LocalFileSystems
    = {"/vsigzip/", "/vsimem/", "/vsisparse/", "/vsisubfile/", "/vsitar/", "/vsizip/"};

// A file system that contains no files.
class ClosedFileSystem : public VSIFilesystemHandler
{
public:
    using VSIFilesystemHandler::Open;
    VSIVirtualHandle* Open(const char*, const char*, bool, CSLConstList) override
    {
        errno = ENOENT;
        return nullptr;
    }
    int Stat(const char*, VSIStatBufL*, int) override
    {
        errno = ENOENT;
        return -1;
    }
};

bool IsLocal(const char* prefix)
{
    return std::any_of(LocalFileSystems.begin(), LocalFileSystems.end(), [&](const char* local) {
        return qstrcmp(prefix, local) == 0;
    });
}

// GDAL does not delete a handler that is replaced; here it stays reachable.
void CloseFileSystems()
{
    static std::vector<VSIFilesystemHandler*> replaced;
    char** prefixes = VSIGetFileSystemsPrefixes();
    for (char** prefix = prefixes; prefix && *prefix; ++prefix) {
        if (IsLocal(*prefix))
            continue;
        replaced.push_back(VSIFileManager::GetHandler(*prefix));
        VSIFileManager::InstallHandler(*prefix, new ClosedFileSystem); // GDAL takes ownership
    }
    CSLDestroy(prefixes);
}

// Some drivers for files also accept web addresses. Without this result GDAL would download them.
CPLHTTPResult*
FetchNothing(const char*, CSLConstList, GDALProgressFunc, void*, CPLHTTPFetchWriteFunc, void*, void*)
{
    auto* refusal = static_cast<CPLHTTPResult*>(CPLCalloc(1, sizeof(CPLHTTPResult))); // owned by the caller
    refusal->nStatus = 1;
    refusal->pszErrBuf = CPLStrdup("Data are not fetched from the network");
    CPLError(CE_Failure, CPLE_AppDefined, "%s", refusal->pszErrBuf);
    return refusal;
}

// Neither a file nor a folder, for example a pipe; GDAL would wait for a writer.
QFileInfoList SpecialFilesIn(const QString& folder)
{
    QFileInfoList special = QDir(folder).entryInfoList(QDir::System | QDir::Hidden);
    const auto isOrdinary
        = [](const QFileInfo& file) { return !file.exists() || file.isFile() || file.isDir(); };
    special.erase(std::remove_if(special.begin(), special.end(), isOrdinary), special.end());
    return special;
}

// GDAL opens the files in a folder, and those that accompany a file and have its name.
QString SpecialPartOf(const QFileInfo& data)
{
    const QString beginning = data.isDir() ? QString() : data.completeBaseName() + QLatin1Char('.');
    for (const QFileInfo& file : SpecialFilesIn(data.isDir() ? data.filePath() : data.path())) {
        if (file.fileName().startsWith(beginning, Qt::CaseInsensitive))
            return file.fileName();
    }
    return {};
}

} // namespace

void PrepareGdal()
{
    static std::once_flag once;
    std::call_once(once, [] {
        const QByteArray skipped = QByteArray(RemoteDrivers) + ' ' + DriversWithOwnFiles;
        CPLSetConfigOption("GDAL_SKIP", skipped.constData());
        CPLSetConfigOption("GDAL_VRT_ENABLE_PYTHON", "NO");
        CPLSetConfigOption("CPL_VSIL_GZIP_WRITE_PROPERTIES", "NO"); // a file beside the data
        CPLSetConfigOption("GML_DOWNLOAD_WFS_SCHEMA", "NO");
        OSRSetPROJEnableNetwork(0);
        CPLHTTPSetFetchCallback(FetchNothing, nullptr);
        GDALAllRegister();
        CloseFileSystems();
        OpenOnlyOrdinaryFiles();
    });
}

QString WhyNotOpened(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        return QCoreApplication::translate("DataSource", "\"%1\" is missing from \"%2\".")
            .arg(file.fileName(), QDir::toNativeSeparators(file.path()));
    }
    if (!file.isFile() && !file.isDir()) {
        return QCoreApplication::translate("DataSource", "\"%1\" contains no readable data.")
            .arg(file.fileName());
    }
    const QString part = SpecialPartOf(file);
    if (!part.isEmpty()) {
        return QCoreApplication::translate(
                   "DataSource", "\"%1\" was not opened because \"%2\" is not an ordinary file.")
            .arg(file.fileName(), part);
    }
    return {};
}

} // namespace Orvane
