// SPDX-License-Identifier: MIT
#include "mapkit/data/RasterSource.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/RasterShades.h"
#include "mapkit/data/RasterValues.h"
#include "mapkit/data/RasterWarp.h"
#include "mapkit/data/ReadingFailure.h"
#include "mapkit/files/DataFiles.h"
#include "mapkit/files/GdalSetup.h"
#include "mapkit/files/OpenedData.h"
#include "mapkit/files/ReadingBound.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QMutexLocker>

#include <array>
#include <cmath>
#include <gdal_priv.h>
#include <mutex>

namespace Orvane {

namespace {

constexpr int RowsAtOnce = 64; // between checks whether drawing was cancelled
constexpr int MillisecondsBetweenChecks = 20; // while another thread uses the raster

std::atomic<int> keptOpen = 0; // of all rasters, because the limit holds for the whole process

bool MayKeepOpen()
{
    int kept = keptOpen;
    while (kept < RasterSource::MostKeptOpen) {
        if (keptOpen.compare_exchange_weak(kept, kept + 1))
            return true;
    }
    return false;
}

constexpr unsigned OpenFlags = GDAL_OF_RASTER | GDAL_OF_READONLY;

std::unique_ptr<GDALDataset> OpenDataset(const QString& name)
{
    return std::unique_ptr<GDALDataset>(GDALDataset::Open(name.toUtf8().constData(), OpenFlags));
}

// One of the rasters in a GeoPackage.
std::unique_ptr<GDALDataset> OpenTable(const QString& path, const QString& table)
{
    const char* const drivers[] = {"GPKG", nullptr};
    const QByteArray option = "TABLE=" + table.toUtf8();
    const char* const options[] = {option.constData(), nullptr};
    return std::unique_ptr<GDALDataset>(
        GDALDataset::Open(path.toUtf8().constData(), OpenFlags, drivers, options));
}

// nullptr if there is none.
std::unique_ptr<GDALDataset> OpenFirstTable(const QString& path)
{
    const QStringList tables = RastersWithin(path);
    const bool isKnown = DataFiles::MayHoldBoth(path) && !tables.isEmpty();
    return isKnown ? OpenTable(path, tables.front()) : nullptr;
}

// May be held by another thread for as long as it draws; meanwhile reading can be cancelled.
std::unique_lock<QMutex> LockInTime(QMutex& mutex, const QString& path)
{
    while (!mutex.tryLock(MillisecondsBetweenChecks))
        RequireReadingInTime(path);
    return std::unique_lock(mutex, std::adopt_lock);
}

std::unique_ptr<GDALDataset> OpenRaster(const QString& path, const QString& member)
{
    const QString whyNot = WhyNotOpened(path);
    if (!whyNot.isEmpty())
        throw RunTimeError(SourceUnreadable, whyNot);
    const GdalErrors errors;
    const QString archived = member.isEmpty() ? QString() : NameInArchive(path, member);
    const bool isTable = !member.isEmpty() && archived.isEmpty();
    std::unique_ptr<GDALDataset> dataset
        = isTable ? OpenTable(path, member) : OpenDataset(archived.isEmpty() ? path : archived);
    if (dataset && dataset->GetRasterCount() == 0 && member.isEmpty()) // it had only one when it was added
        dataset = OpenFirstTable(path);
    if (dataset && dataset->GetRasterCount() > 0)
        return dataset;
    RequireReadingInTime(path);
    const QString nothing = QCoreApplication::translate("RasterSource", "\"%1\" contains no picture.");
    if (errors.First().isEmpty())
        throw RunTimeError(SourceUnreadable, nothing.arg(QFileInfo(path).fileName()));
    FailReading(path, errors.First());
}

bool IsPlaced(GDALDataset& dataset)
{
    std::array<double, 6> transform = {};
    return dataset.GetGeoTransform(transform.data()) == CE_None || dataset.GetGCPCount() > 0;
}

// "photo.pgw" for "photo.png".
QString WorldFileOf(const QFileInfo& picture)
{
    const QString suffix = picture.suffix();
    if (suffix.isEmpty())
        return picture.fileName() + QLatin1String(".wld");
    return picture.completeBaseName() + QLatin1Char('.') + suffix.front() + suffix.back() + QLatin1Char('w');
}

[[noreturn]] void FailUnplaced(const QString& path)
{
    const QFileInfo file(path);
    const QString text = QCoreApplication::translate(
        "RasterSource",
        "\"%1\" does not say where it lies: there is no world file \"%2\" beside it, and it contains no "
        "coordinates of its own, as a GeoTIFF does.");
    throw RunTimeError(RasterNotPlaced, text.arg(file.fileName(), WorldFileOf(file)));
}

RasterDetails DetailsOf(GDALDataset& raster)
{
    RasterDetails details;
    if (GDALDriver* driver = raster.GetDriver())
        details.driver = QString::fromUtf8(driver->GetMetadataItem(GDAL_DMD_LONGNAME));
    details.size = {raster.GetRasterXSize(), raster.GetRasterYSize()};
    details.bands = raster.GetRasterCount();
    std::array<double, 6> transform = {};
    if (raster.GetGeoTransform(transform.data()) == CE_None)
        details.pixelSize = {std::hypot(transform[1], transform[4]), std::hypot(transform[2], transform[5])};
    return details;
}

// The pixels of an image of that size that the picture covers.
QRect CoveredPixels(const Box& picture, const Box& extent, QSize pixels)
{
    const double perX = pixels.width() / extent.Width();
    const double perY = pixels.height() / extent.Height();
    const int left = int(std::floor((std::max(picture.minX, extent.minX) - extent.minX) * perX));
    const int right = int(std::ceil((std::min(picture.maxX, extent.maxX) - extent.minX) * perX));
    const int top = int(std::floor((extent.maxY - std::min(picture.maxY, extent.maxY)) * perY));
    const int bottom = int(std::ceil((extent.maxY - std::max(picture.minY, extent.minY)) * perY));
    return QRect(left, top, right - left, bottom - top).intersected(QRect({}, pixels));
}

Box MapArea(const QRect& area, const Box& extent, QSize pixels)
{
    const double unitsX = extent.Width() / pixels.width();
    const double unitsY = extent.Height() / pixels.height();
    return {
        extent.minX + area.left() * unitsX, extent.maxY - (area.top() + area.height()) * unitsY,
        extent.minX + (area.left() + area.width()) * unitsX, extent.maxY - area.top() * unitsY};
}

} // namespace

// An open raster, for as long as this object lives at least. The raster is locked by the caller.
class RasterSource::Use
{
public:
    explicit Use(const RasterSource& raster) : m_raster(raster)
    {
        if (!raster.m_dataset)
            raster.m_dataset = OpenRaster(raster.m_path, raster.m_member);
    }
    ~Use()
    {
        m_raster.m_isKept = m_raster.m_isKept || MayKeepOpen();
        const GdalErrors quiet;
        if (!m_raster.m_isKept)
            m_raster.m_dataset.reset();
    }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

    GDALDataset& Dataset() const { return *m_raster.m_dataset; }

private:
    const RasterSource& m_raster;
};

RasterSource::RasterSource(const QString& path, const QString& member, const QString& chosenSystem)
    : m_path(path), m_member(member), m_chosenSystem(chosenSystem)
{
    PrepareGdal();
    const ReadingBound bound;
    m_dataset = OpenRaster(path, member);
    const GdalErrors quiet;
    if (!IsPlaced(*m_dataset))
        FailUnplaced(member.isEmpty() ? path : member);
    m_shades = std::make_unique<const RasterShades>(*m_dataset);
    m_system = SystemOfRaster(*m_dataset);
    m_details = DetailsOf(*m_dataset);
    RequireReadingInTime(path);
    const Use untilHere(*this);
}

RasterSource::~RasterSource()
{
    const GdalErrors quiet;
    m_dataset.reset();
    if (m_isKept)
        --keptOpen;
}

Box RasterSource::Extent() const
{
    return ExtentIn({});
}

Box RasterSource::ExtentIn(const QString& mapSystem) const
{
    const QMutexLocker lock(&m_mutex);
    const GdalErrors quiet;
    const ReadingBound bound;
    const Use raster(*this);
    return PlaceIn(mapSystem, raster.Dataset()).extent;
}

// Finding it takes longer than drawing a small raster.
const RasterPlace& RasterSource::PlaceIn(const QString& mapSystem, GDALDataset& raster) const
{
    if (!m_place || m_placeSystem != mapSystem) {
        m_place = std::make_unique<const RasterPlace>(PlaceRaster(raster, {mapSystem, m_chosenSystem}));
        m_placeSystem = mapSystem;
    }
    return *m_place;
}

QImage RasterSource::Draw(
    const QString& mapSystem, const Box& extent, QSize pixels, const std::atomic<bool>& cancelled) const
{
    const QMutexLocker lock(&m_mutex);
    const GdalErrors errors;
    const ReadingBound untilCancelled(cancelled);
    ReadingBound bound(ReadingBound::LongestWait);
    const Use raster(*this);
    const RasterSystems systems{mapSystem, m_chosenSystem};
    const RasterPlace& place = PlaceIn(mapSystem, raster.Dataset());
    if (cancelled || !place.extent.Intersects(extent))
        return {};
    const QRect area = CoveredPixels(place.extent, extent, pixels);
    if (area.isEmpty())
        return {};
    const auto warped = WarpRaster(
        raster.Dataset(), place, {systems, MapArea(area, extent, pixels), area.size()}, m_shades->MayBlend());
    if (!warped)
        FailReading(m_path, errors.First());
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int row = 0; row < area.height() && !cancelled; row += RowsAtOnce) {
        const QRect rows(0, row, area.width(), std::min(RowsAtOnce, area.height() - row));
        if (!m_shades->Read(*warped, rows, image, area.topLeft() + rows.topLeft()))
            FailReading(m_path, errors.First());
        bound.Renew();
    }
    return cancelled ? QImage() : image;
}

std::vector<RasterValue> RasterSource::ValuesAt(const QString& mapSystem, QPointF place) const
{
    const std::unique_lock<QMutex> lock = LockInTime(m_mutex, m_path);
    const GdalErrors errors;
    const ReadingBound bound(ReadingBound::LongestWait);
    const Use raster(*this);
    GDALDataset& dataset = raster.Dataset();
    const std::optional<QPoint> pixel = PixelAt(dataset, {mapSystem, m_chosenSystem}, place);
    if (!pixel)
        return {};
    std::vector<RasterValue> values;
    values.reserve(size_t(dataset.GetRasterCount()));
    for (GDALRasterBand* band : dataset.GetBands()) {
        const std::optional<RasterValue> value = ValueAt(*band, *pixel);
        RequireReadingInTime(m_path);
        if (!value)
            FailReading(m_path, errors.First());
        values.push_back(*value);
    }
    return values;
}

SourceLayer DescribeRaster(const QString& path, const QString& member)
{
    const RasterSource raster(path, member);
    SourceLayer layer;
    layer.name = member;
    layer.dataKind = DataKind::Raster;
    layer.system = raster.System();
    layer.extent = raster.Extent();
    return layer;
}

} // namespace Orvane
