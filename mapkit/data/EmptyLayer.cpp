// SPDX-License-Identifier: MIT
#include "mapkit/data/EmptyLayer.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/SystemReference.h"
#include "mapkit/files/GdalSetup.h"
#include "mapkit/files/ReadingBound.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <gdal_priv.h>
#include <memory>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

constexpr qsizetype LongestTableName = 60; // characters

OGRwkbGeometryType TypeOf(FeatureKind kind)
{
    switch (kind) {
    case FeatureKind::Point:
        return wkbPoint;
    case FeatureKind::Line:
        return wkbLineString;
    case FeatureKind::Area:
        break;
    }
    return wkbPolygon;
}

std::unique_ptr<GDALDataset> OpenOrMake(const QString& path)
{
    const QByteArray file = path.toUtf8();
    if (QFile::exists(path)) {
        const char* drivers[] = {"GPKG", nullptr};
        return std::unique_ptr<GDALDataset>(static_cast<GDALDataset*>(
            GDALOpenEx(file.constData(), GDAL_OF_VECTOR | GDAL_OF_UPDATE, drivers, nullptr, nullptr)));
    }
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("GPKG");
    return std::unique_ptr<GDALDataset>(
        driver ? driver->Create(file.constData(), 0, 0, 0, GDT_Unknown, nullptr) : nullptr);
}

// A table's name may not begin with a special character.
QString TableName(const QString& name)
{
    const QString line = name.simplified();
    const bool beginsWell
        = !line.isEmpty() && (line.front().isLetterOrNumber() || line.front().isSurrogate());
    return (beginsWell ? line : QStringLiteral("layer ") + line).left(LongestTableName);
}

QString UnusedName(GDALDataset& dataset, const QString& name)
{
    const QString first = TableName(name);
    QString unused = first;
    for (int number = 2; dataset.GetLayerByName(unused.toUtf8().constData()); ++number)
        unused = first + QLatin1Char(' ') + QString::number(number);
    return unused;
}

bool AddLayer(GDALDataset& dataset, const QString& name, FeatureKind kind, const QString& system)
{
    OGRSpatialReference reference = ReferenceOf(system);
    if (reference.IsEmpty())
        return false;
    OGRLayer* layer = dataset.CreateLayer(name.toUtf8().constData(), &reference, TypeOf(kind));
    OGRFieldDefn field("name", OFTString);
    return layer && layer->CreateField(&field) == OGRERR_NONE && layer->SyncToDisk() == OGRERR_NONE;
}

} // namespace

QString CreateEmptyLayer(const QString& path, const QString& name, FeatureKind kind, const QString& system)
{
    PrepareGdal();
    const GdalErrors quiet;
    const ReadingBound bound;
    const bool isNew = !QFile::exists(path);
    auto dataset = OpenOrMake(path);
    QString table = dataset ? UnusedName(*dataset, name) : QString();
    if (dataset && AddLayer(*dataset, table, kind, system))
        return table;
    dataset.reset();
    if (isNew)
        QFile::remove(path);
    throw RunTimeError(
        LayerUncreatable,
        QCoreApplication::translate("EmptyLayer", "A layer cannot be created in the file \"%1\".")
            .arg(QFileInfo(path).fileName()));
}

} // namespace Orvane
