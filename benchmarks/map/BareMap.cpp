// SPDX-License-Identifier: MIT
#include "benchmarks/map/BareMap.h"

#include <QPainter>

#include <algorithm>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

namespace Orvane::Benchmarks::BareMap {

namespace {

QPolygonF OuterRing(const OGRFeature& feature)
{
    const OGRLinearRing& ring = *feature.GetGeometryRef()->toPolygon()->getExteriorRing();
    QPolygonF points;
    points.reserve(ring.getNumPoints());
    for (int i = 0; i < ring.getNumPoints(); ++i)
        points.append({ring.getX(i), ring.getY(i)});
    return points;
}

} // namespace

std::vector<Areas> Read(const QString& file)
{
    GDALAllRegister();
    const GDALDatasetUniquePtr opened(
        GDALDataset::Open(file.toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY));
    if (!opened)
        qFatal("the data of the benchmark cannot be opened");
    std::vector<Areas> layers;
    layers.reserve(size_t(opened->GetLayerCount()));
    for (OGRLayer* layer : opened->GetLayers()) {
        Areas& areas = layers.emplace_back();
        for (const auto& feature : *layer)
            areas.push_back(OuterRing(*feature));
    }
    return layers;
}

Box BoundsOf(const std::vector<Areas>& layers)
{
    Box bounds;
    for (const Areas& areas : layers) {
        for (const QPolygonF& area : areas) {
            const QRectF around = area.boundingRect();
            bounds.Add(Box{around.left(), around.top(), around.right(), around.bottom()});
        }
    }
    return bounds;
}

void Draw(QImage& picture, const std::vector<Areas>& layers, const MapView& view, double dotsPerPixel)
{
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(dotsPerPixel, dotsPerPixel);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x40, 0x40, 0x40), 1));
    painter.setBrush(QColor(0x80, 0xc0, 0xc0));
    QPolygonF pixels;
    for (const Areas& areas : layers) {
        for (const QPolygonF& area : areas) {
            pixels.resize(area.size());
            std::transform(
                area.begin(), area.end(), pixels.begin(), [&](QPointF map) { return view.ToPixel(map); });
            painter.drawPolygon(pixels);
        }
    }
}

int CountAt(const std::vector<Areas>& layers, const MapView& view, QPointF pixel)
{
    const QPointF point = view.ToMap(pixel);
    int count = 0;
    for (const Areas& areas : layers) {
        count += int(std::count_if(areas.begin(), areas.end(), [point](const QPolygonF& area) {
            return area.boundingRect().contains(point) && area.containsPoint(point, Qt::OddEvenFill);
        }));
    }
    return count;
}

} // namespace Orvane::Benchmarks::BareMap
