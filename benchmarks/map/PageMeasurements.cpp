// SPDX-License-Identifier: MIT
// Many areas of one layer on a page, as a picture for printing.
#include "benchmarks/Measurement.h"
#include "benchmarks/map/BareMap.h"
#include "benchmarks/map/MapData.h"
#include "hostkit/StandardShellServices.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/output/MapPage.h"
#include "mapkit/output/PageSettings.h"
#include "mapkit/output/PageWriter.h"
#include "store/ILayerStore.h"

#include <QImage>

#include <memory>

namespace Orvane::Benchmarks {

namespace {

// A4 across, filled by the map.
PageSettings Settings()
{
    PageSettings settings;
    settings.margin = 0;
    settings.legend = false;
    settings.scaleBar = false;
    return settings;
}

QSize Dots()
{
    return (Settings().size * (Settings().resolution / MillimetresPerInch)).toSize();
}

QString Picture(const char* level)
{
    return MapData::PathOf(QStringLiteral("page %1.png").arg(QLatin1String(level)));
}

// The data are read already, as in a map that is open.
Work BarePage(const JobSize& size)
{
    auto layers = std::make_shared<std::vector<BareMap::Areas>>(BareMap::Read(MapData::File(1, size.layers)));
    const double dotsPerPixel = Settings().resolution / PagePixelsPerInch;
    const MapView view = MapView::Fitting(BareMap::BoundsOf(*layers), (Dots() / dotsPerPixel));
    return [layers, view, dotsPerPixel] {
        QImage picture(Dots(), QImage::Format_RGB32);
        BareMap::Draw(picture, *layers, view, dotsPerPixel);
        if (!picture.save(Picture(BareLevel)))
            qFatal("the picture cannot be written");
    };
}

MapLayer LayerOf(const QString& file)
{
    Progress progress;
    LayerSource source;
    source.layerID = 1;
    source.path = file;
    source.ogrLayer = MapData::LayerName(0);
    const SourceContents contents = ReadSources({source}, MapData::System, progress);
    MapLayer layer;
    layer.layerID = source.layerID;
    layer.values.color = 0x404040;
    layer.values.fillForeColor = 0xc0c080;
    layer.values.fillBackColor = 0xffffff;
    layer.features = contents.features.at(source.layerID);
    return layer;
}

Work MapPagePicture(const JobSize& size)
{
    const MapLayer layer = LayerOf(MapData::File(1, size.layers));
    std::shared_ptr<MapDocument> document = MapDocument::Untitled();
    return [document, layer] {
        const StandardShellServices services;
        Progress progress;
        const MapPage page(
            document->Database(), services, {{layer}, MapData::System, layer.Bounds()}, Settings());
        WritePage(page, Picture("mapkit"), progress);
    };
}

const Announcement Announcements[] = {
    Announcement({"Areas on A4 as PNG", BareLevel, {{3000, 0}, {30000, 0}, {300000, 0}}, BarePage}),
    Announcement({"Areas on A4 as PNG", "mapkit", {{3000, 0}, {30000, 0}, {300000, 0}}, MapPagePicture}),
};

} // namespace

} // namespace Orvane::Benchmarks
