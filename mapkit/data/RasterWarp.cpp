// SPDX-License-Identifier: MIT
#include "mapkit/data/RasterWarp.h"

#include "mapkit/coordinates/BoxOnMap.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/SystemReference.h"

#include <QStringList>

#include <array>
#include <cmath>
#include <cpl_conv.h>
#include <cpl_string.h>
#include <gdal_alg.h>
#include <gdal_priv.h>
#include <gdal_utils.h>
#include <optional>

namespace Orvane {

namespace {

CPLStringList Arguments(const QStringList& texts)
{
    CPLStringList list;
    for (const QString& text : texts)
        list.AddString(text.toUtf8().constData());
    return list;
}

QString Number(double value)
{
    return QString::number(value, 'g', 17);
}

// Empty for a text that is not a system: GDAL would open it as a file.
QString KnownSystemText(const QString& system)
{
    return ReferenceOf(system).IsEmpty() ? QString() : system;
}

// The system to take instead of the raster's own; empty for its own.
QString AssumedSystem(GDALDataset& raster, const RasterSystems& systems)
{
    if (!systems.chosen.isEmpty())
        return KnownSystemText(systems.chosen);
    return SystemOfRaster(raster).isEmpty() ? KnownSystemText(systems.map) : QString();
}

using TranslateOptions = std::unique_ptr<GDALTranslateOptions, decltype(&GDALTranslateOptionsFree)>;
using WarpOptions = std::unique_ptr<GDALWarpAppOptions, decltype(&GDALWarpAppOptionsFree)>;

// Without this, places would be shown again outside the valid area of a world projection.
class OnEarthOnly
{
    CPLConfigOptionSetter m_option{"CHECK_WITH_INVERT_PROJ", "YES", false};
};

// Releases a dataset that others may still read from.
struct Releaser {
    void operator()(GDALDataset* dataset) const { dataset->ReleaseRef(); }
};

// Every nth pixel of every nth row; GDAL reads them from overviews if there are any.
std::unique_ptr<GDALDataset, Releaser> Thinned(GDALDataset& raster, int step)
{
    const auto part = [step](int size) { return QString::number(std::max(1, size / step)); };
    CPLStringList arguments = Arguments(
        {QStringLiteral("-of"), QStringLiteral("VRT"), QStringLiteral("-outsize"),
         part(raster.GetRasterXSize()), part(raster.GetRasterYSize())});
    const TranslateOptions options(
        GDALTranslateOptionsNew(arguments.List(), nullptr), GDALTranslateOptionsFree);
    return std::unique_ptr<GDALDataset, Releaser>(
        GDALDataset::FromHandle(GDALTranslate("", GDALDataset::ToHandle(&raster), options.get(), nullptr)));
}

QStringList WarpArguments(GDALDataset& raster, const RasterTarget& target, bool blend)
{
    QStringList list = {"-of", "VRT", "-dstalpha", "-ovr", "NONE", "-r", blend ? "bilinear" : "near"};
    const QString system = KnownSystemText(target.systems.map);
    const QString assumed = AssumedSystem(raster, target.systems);
    if (!system.isEmpty())
        list << "-t_srs" << system;
    if (!assumed.isEmpty())
        list << "-s_srs" << assumed;
    const Box& box = target.extent;
    list << "-te" << Number(box.minX) << Number(box.minY) << Number(box.maxX) << Number(box.maxY);
    list << "-ts" << QString::number(target.pixels.width()) << QString::number(target.pixels.height());
    return list;
}

// The box that the raster covers in its own system; nothing if its rows are not parallel to the axes.
std::optional<Box> OwnBox(GDALDataset& raster)
{
    std::array<double, 6> to = {};
    if (raster.GetGeoTransform(to.data()) != CE_None || to[2] != 0 || to[4] != 0)
        return std::nullopt;
    Box box;
    box.Add(QPointF(to[0], to[3]));
    box.Add(QPointF(to[0] + to[1] * raster.GetRasterXSize(), to[3] + to[5] * raster.GetRasterYSize()));
    return box;
}

// Empty if it cannot be found from the box alone.
Box PlacedBox(GDALDataset& raster, const Box& own, const RasterSystems& systems)
{
    const QString map = KnownSystemText(systems.map);
    const QString chosen = KnownSystemText(systems.chosen);
    const QString system = chosen.isEmpty() ? SystemOfRaster(raster) : chosen;
    if (map.isEmpty() || system.isEmpty() || map == system)
        return own;
    return BoxOnMap(own, system, map);
}

using Transformer = std::unique_ptr<void, decltype(&GDALDestroyGenImgProjTransformer)>;

// From the raster's pixels to map units; nullptr if GDAL knows no way.
Transformer TransformerToMap(GDALDataset& raster, const RasterSystems& systems)
{
    const QByteArray system = KnownSystemText(systems.map).toUtf8();
    const QByteArray assumed = AssumedSystem(raster, systems).toUtf8();
    CPLStringList options;
    if (!system.isEmpty())
        options.SetNameValue("DST_SRS", system.constData());
    if (!assumed.isEmpty())
        options.SetNameValue("SRC_SRS", assumed.constData());
    return {
        GDALCreateGenImgProjTransformer2(GDALDataset::ToHandle(&raster), nullptr, options.List()),
        GDALDestroyGenImgProjTransformer};
}

// As GDAL would make a raster of it in the map's system.
RasterPlace SuggestedPlace(GDALDataset& raster, const RasterSystems& systems)
{
    const Transformer transformer = TransformerToMap(raster, systems);
    if (!transformer)
        return {};
    std::array<double, 6> transform = {};
    std::array<double, 4> box = {};
    int width = 0;
    int height = 0;
    const CPLErr result = GDALSuggestedWarpOutput2(
        GDALDataset::ToHandle(&raster), GDALGenImgProjTransform, transformer.get(), transform.data(), &width,
        &height, box.data(), 0);
    const bool known = result == CE_None
        && std::all_of(box.begin(), box.end(), [](double value) { return std::isfinite(value); });
    return known ? RasterPlace{{box[0], box[1], box[2], box[3]}, std::abs(transform[1])} : RasterPlace();
}

} // namespace

QString SystemOfRaster(GDALDataset& raster)
{
    const QString system = SystemText(raster.GetSpatialRef());
    return system.isEmpty() ? SystemText(raster.GetGCPSpatialRef()) : system;
}

RasterPlace PlaceRaster(GDALDataset& raster, const RasterSystems& systems)
{
    const std::optional<Box> own = OwnBox(raster);
    const Box placed = own ? PlacedBox(raster, *own, systems) : Box();
    if (placed.IsEmpty())
        return SuggestedPlace(raster, systems);
    const double pixels = double(raster.GetRasterXSize()) * raster.GetRasterYSize();
    return {placed, std::sqrt(placed.Width() * placed.Height() / pixels)};
}

std::optional<QPoint> PixelAt(GDALDataset& raster, const RasterSystems& systems, QPointF place)
{
    const OnEarthOnly onEarthOnly;
    const Transformer transformer = TransformerToMap(raster, systems);
    double x = place.x();
    double y = place.y();
    double z = 0;
    int isKnown = FALSE;
    if (!transformer || !GDALGenImgProjTransform(transformer.get(), TRUE, 1, &x, &y, &z, &isKnown))
        return std::nullopt;
    const bool isWithin
        = isKnown && x >= 0 && y >= 0 && x < raster.GetRasterXSize() && y < raster.GetRasterYSize();
    return isWithin ? std::optional(QPoint(int(x), int(y))) : std::nullopt;
}

std::unique_ptr<GDALDataset>
WarpRaster(GDALDataset& raster, const RasterPlace& place, const RasterTarget& target, bool blend)
{
    const double wanted = target.extent.Width() / target.pixels.width();
    const double step = std::clamp(wanted / place.unitsPerPixel, 1.0, 1e6);
    const auto thinned = Thinned(raster, int(step));
    if (!thinned)
        return nullptr;
    const OnEarthOnly onEarthOnly;
    CPLStringList arguments = Arguments(WarpArguments(raster, target, blend));
    const WarpOptions options(GDALWarpAppOptionsNew(arguments.List(), nullptr), GDALWarpAppOptionsFree);
    GDALDatasetH source = GDALDataset::ToHandle(thinned.get());
    return std::unique_ptr<GDALDataset>( // keeps its source datasets open
        GDALDataset::FromHandle(GDALWarp("", nullptr, 1, &source, options.get(), nullptr)));
}

} // namespace Orvane
