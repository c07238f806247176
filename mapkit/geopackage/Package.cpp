// SPDX-License-Identifier: MIT
#include "mapkit/geopackage/Package.h"

#include "mapkit/files/GdalSetup.h"
#include "mapkit/geopackage/PackageTable.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace Orvane {

namespace {

// Where SQLite writes about a file into its beginning, in bytes.
constexpr qsizetype HeaderSize = 100;
constexpr qsizetype WriteVersionAt = 18;
constexpr qsizetype ReadVersionAt = 19;
constexpr qsizetype UserVersionAt = 60;
constexpr qsizetype ApplicationAt = 68;
constexpr char WithJournal = 1; // 2 is for files with a write-ahead log

// The versions of the standard that are known: 1.2 up to 1.4; earlier ones have a name of their own.
bool IsKnownVersion(const QByteArray& header)
{
    const QByteArray application = header.mid(ApplicationAt, 4);
    const auto version = qFromBigEndian<quint32>(header.constData() + UserVersionAt);
    const bool isEarly = application == "GP10" || application == "GP11";
    return isEarly || (application == "GPKG" && version >= 10200 && version < 10500);
}

QByteArray HeaderOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(HeaderSize) : QByteArray();
}

// Reading a file with a write-ahead log would make files beside it.
QString RequirePlain(const QString& path)
{
    const QFileInfo file(path);
    const bool isNamedSo = file.suffix().compare(QLatin1String("gpkg"), Qt::CaseInsensitive) == 0;
    if (!isNamedSo || !WhyNotOpened(path).isEmpty() || !file.isFile())
        throw PackageDoubt();
    PrepareGdal();
    const QByteArray header = HeaderOf(path);
    const bool isPlain = header.size() == HeaderSize && header.startsWith("SQLite format 3")
        && header[WriteVersionAt] == WithJournal && header[ReadVersionAt] == WithJournal;
    if (!isPlain || !IsKnownVersion(header))
        throw PackageDoubt();
    return file.absoluteFilePath();
}

} // namespace

Package::Package(const QString& path) : m_connection(RequirePlain(path)), m_catalogue(m_connection)
{
}

PackageLayer Package::Layer(const QString& name) const
{
    PackageLayer layer = m_catalogue.Layer(name);
    layer.key = KeyInPackage(m_connection, layer, m_catalogue.HasIndex(layer.table));
    return layer;
}

PackageStatement Package::Features(const PackageLayer& layer) const
{
    return PackageStatement(
        m_connection,
        "SELECT " + NameInPackage(layer.key) + ", " + NameInPackage(layer.geometry) + " FROM "
            + NameInPackage(layer.table) + " NOT INDEXED");
}

} // namespace Orvane
