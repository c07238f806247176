// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardShellServices.h"
#include "mapkit/DataFolder.h"
#include "mapkit/Drawings.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/output/MapPage.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <QImage>
#include <QPainter>

namespace Orvane::Testing {

/// A map of red squares in a projected system, a thousand metres wide unless a test says otherwise.
class OutputFixture : public testing::Test
{
protected:
    MapLayer& AddSquare(const QString& name, double west = 0, double east = 1000)
    {
        NewLayer layer;
        layer.name = name;
        layer.values.fillForeColor = 0x0000FF;
        layer.values.fillBackColor = 0xFFFFFF;
        layer.values.outlineStyle = 15;
        m_layers.push_back({});
        m_layers.back().layerID = m_document->AddLayer(layer);
        m_layers.back().values = layer.values;
        m_layers.back().features = Area(500000 + west, 5300000, 500000 + east, 5300000 + (east - west));
        return m_layers.back();
    }

    MapPage Page(const PageSettings& settings) const
    {
        Box area;
        for (const MapLayer& layer : m_layers)
            area.Add(layer.features->Bounds());
        return {m_document->Database(), m_services, {m_layers, "EPSG:32632", area, m_background}, settings};
    }

    /// A square page with only a map.
    static PageSettings Bare(double side = 100) { return {{side, side}, 0, 254, {}, false, false, 0}; }

    /// The page at this many dots per millimetre.
    static QImage Painted(const MapPage& page, double dotsPerMillimetre = 10)
    {
        QImage image((page.Settings().size * dotsPerMillimetre).toSize(), QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        const double scale = dotsPerMillimetre / PagePixelsPerMillimetre;
        painter.scale(scale, scale);
        const std::atomic<bool> cancelled = false;
        page.Paint(painter, cancelled);
        return image;
    }

    const std::unique_ptr<MapDocument> m_document = MapDocument::Untitled();
    const StandardShellServices m_services{};
    const DataFolder m_folder{};
    QColor m_background = Qt::white;
    std::vector<MapLayer> m_layers;
};

} // namespace Orvane::Testing
