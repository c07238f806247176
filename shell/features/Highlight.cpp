// SPDX-License-Identifier: MIT
#include "shell/features/Highlight.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/drawing/FeaturePainter.h"
#include "shell/features/FeatureSubset.h"

#include <QPainter>
#include <QTimer>

#include <chrono>

namespace Orvane {

namespace {

constexpr double Wider = 3; // pixels more than the layer's own line
constexpr double CasingWider = 2; // pixels more than that
constexpr int HighlightOpacity = 70; // of 255
constexpr size_t FewVertices = 20000; // drawn within a frame
constexpr std::chrono::milliseconds DrawDelay{80};
constexpr double SymbolGrowth = 2; // pixels

LayerLook LookFor(const LayerLook& layer, const QColor& colour)
{
    LayerLook look;
    look.outline = QPen(colour, layer.outline.widthF() + Wider, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    QColor fill = colour;
    fill.setAlpha(HighlightOpacity);
    look.fill = fill;
    look.symbol = colour;
    look.symbolRadius = layer.symbolRadius + SymbolGrowth;
    return look;
}

// Visible on dark and on light backgrounds.
LayerLook CasingFor(const LayerLook& layer)
{
    LayerLook look = LookFor(layer, Qt::white);
    look.outline.setWidthF(look.outline.widthF() + CasingWider);
    look.fill = Qt::NoBrush;
    return look;
}

std::map<qint32, std::set<qint64>> ByLayer(const FeatureKeys& keys)
{
    std::map<qint32, std::set<qint64>> byLayer;
    for (const FeatureKey& key : keys)
        byLayer[key.layerID].insert(key.featureID);
    return byLayer;
}

} // namespace

Highlight::Highlight(MapCanvas& canvas, const QColor& colour)
    : m_canvas(canvas), m_colour(colour), m_drawSoon(new QTimer(this))
{
    m_drawSoon->setSingleShot(true);
    m_drawSoon->setInterval(DrawDelay);
    connect(m_drawSoon, &QTimer::timeout, this, [this] {
        m_picture.outdated = true;
        m_canvas.update();
    });
    m_canvas.AddOverlay(this);
    connect(&m_canvas, &MapCanvas::LayersChanged, this, &Highlight::Collect);
}

Highlight::~Highlight()
{
    m_canvas.RemoveOverlay(this);
}

void Highlight::Show(FeatureKeys keys)
{
    if (keys == m_keys)
        return;
    m_keys = std::move(keys);
    Collect();
    m_canvas.update();
}

void Highlight::Collect()
{
    m_marked.clear();
    m_vertices = 0;
    m_picture = {};
    const auto wanted = ByLayer(m_keys);
    for (const MapLayer& layer : m_canvas.Layers()) {
        const auto found = wanted.find(layer.layerID);
        if (found == wanted.end() || !layer.features)
            continue;
        m_marked.push_back(layer);
        m_marked.back().features
            = std::make_shared<const FeatureSet>(SubsetOf(*layer.features, found->second));
        m_vertices += m_marked.back().features->VertexCount();
    }
}

void Highlight::Paint(QPainter& painter, const MapView& view) const
{
    if (m_vertices <= FewVertices)
        return PaintMarked(painter, view);
    if (m_picture.outdated)
        DrawPicture(view, m_canvas.devicePixelRatioF());
    else if (view != m_picture.next)
        m_drawSoon->start();
    m_picture.next = view;
    const QPointF topLeft = view.ToPixel(m_picture.view.ToMap({0, 0}));
    const double stretch = m_picture.view.UnitsPerPixel() / view.UnitsPerPixel();
    painter.drawImage(QRectF(topLeft, QSizeF(m_picture.view.Size()) * stretch), m_picture.image);
}

void Highlight::PaintMarked(QPainter& painter, const MapView& view) const
{
    const std::atomic<bool> never = false;
    const double denominator = m_canvas.ScaleDenominator();
    for (const MapLayer& layer : m_marked) {
        if (!layer.IsShownAt(denominator))
            continue;
        FeaturePainter(painter, view, CasingFor(layer.look)).Paint(*layer.features, never);
        FeaturePainter(painter, view, LookFor(layer.look, m_colour)).Paint(*layer.features, never);
    }
}

void Highlight::DrawPicture(const MapView& view, double devicePixelRatio) const
{
    const QSizeF size = QSizeF(view.Size()) * devicePixelRatio;
    m_picture = {QImage(size.toSize(), QImage::Format_ARGB32_Premultiplied), view, view, false};
    m_picture.image.setDevicePixelRatio(devicePixelRatio);
    m_picture.image.fill(Qt::transparent);
    QPainter painter(&m_picture.image);
    PaintMarked(painter, view);
}

} // namespace Orvane
