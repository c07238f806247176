// SPDX-License-Identifier: MIT
#include "shell/tools/HoverHighlight.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Guard.h"
#include "shell/tools/ToolRules.h"

#include <QGuiApplication>

namespace Orvane {

namespace {

constexpr QRgb HoverColour = 0xff00a3c4;

} // namespace

HoverHighlight::HoverHighlight(MapCanvas& canvas) : m_canvas(canvas), m_highlight(canvas, HoverColour)
{
    connect(&canvas, &MapCanvas::PointerMoved, this, [this](QPointF map) {
        Guard(m_canvas.window(), [&] { LookAt(map); });
    });
    connect(&canvas, &MapCanvas::PointerLeft, this, &HoverHighlight::Forget);
    connect(&canvas, &MapCanvas::LayersChanged, this, &HoverHighlight::Forget);
}

void HoverHighlight::SetOn(bool on)
{
    m_on = on;
    Forget();
}

void HoverHighlight::LookAt(QPointF map)
{
    if (!m_on || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    const QPointF pixel = m_canvas.View().ToPixel(map);
    const ToolSearch search(
        m_canvas.Layers(), m_canvas.View(), m_canvas.ScaleDenominator(), ToolUse::PointOut);
    const auto hits = search.At(pixel);
    if (hits.empty()) {
        m_highlight.Clear();
        Tell(search.MissAt(pixel).Text());
        return;
    }
    const MapLayer& layer = *hits.front().layer;
    m_highlight.Show({{layer.layerID, layer.features->FeatureId(hits.front().feature)}});
    Tell(layer.name);
}

void HoverHighlight::Forget()
{
    m_highlight.Clear();
    Tell({});
}

void HoverHighlight::Tell(const QString& text)
{
    if (text == m_told)
        return;
    m_told = text;
    emit StatusChanged(text);
}

} // namespace Orvane
