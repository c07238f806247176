// SPDX-License-Identifier: MIT
#include "shell/tools/MoveTool.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/drawing/FeaturePainter.h"
#include "shell/features/FeatureSubset.h"
#include "shell/tools/ToolRules.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QKeyEvent>
#include <QPainter>

#include <utility>

namespace Orvane {

namespace {

constexpr QRgb GhostColour = 0xffd97706;
constexpr double GhostOpacity = 0.75;

LayerLook GhostLook(const LayerLook& layer)
{
    LayerLook look = layer;
    look.outline
        = QPen(QColor::fromRgb(GhostColour), layer.outline.widthF() + 1, Qt::SolidLine, Qt::RoundCap);
    look.symbol = QColor::fromRgb(GhostColour);
    return look;
}

} // namespace

MoveTool::MoveTool(MapCanvas& canvas, Hand hand) : m_canvas(canvas), m_hand(std::move(hand))
{
}

void MoveTool::Begin()
{
    emit StatusChanged(tr("Drag a feature to move it."));
}

void MoveTool::Click(QPointF pixel, Qt::KeyboardModifiers)
{
    const ToolSearch search(m_canvas.Layers(), m_canvas.View(), m_canvas.ScaleDenominator(), ToolUse::Move);
    const auto hits = search.At(pixel);
    emit StatusChanged(
        hits.empty() ? search.MissAt(pixel).Text()
                     : tr("Drag the feature of %1 to move it.").arg(hits.front().layer->name));
}

bool MoveTool::DragBegin(QPointF from, Qt::KeyboardModifiers)
{
    const ToolSearch search(m_canvas.Layers(), m_canvas.View(), m_canvas.ScaleDenominator(), ToolUse::Move);
    const auto hits = search.At(from);
    if (hits.empty()) {
        const Miss miss = search.MissAt(from);
        emit StatusChanged(miss.Text());
        return miss.refusal != Refusal::None; // nothing there: the map moves
    }
    const Hit& hit = hits.front();
    const qint64 featureID = hit.layer->features->FeatureId(hit.feature);
    Grabbed grabbed{{hit.layer->layerID, featureID}, *hit.layer, m_canvas.View().ToMap(from), {}};
    grabbed.layer.features = std::make_shared<const FeatureSet>(SubsetOf(*hit.layer->features, {featureID}));
    if (!MayMove(grabbed.key)) // it may take a while, and the map may be read again meanwhile
        return true;
    emit StatusChanged(tr("Moving a feature of %1. Press Esc to cancel.").arg(grabbed.layer.name));
    m_grabbed = std::move(grabbed);
    return true;
}

bool MoveTool::MayMove(const FeatureKey& key)
{
    try {
        m_hand.check(key);
        return true;
    } catch (const RunTimeError& error) {
        emit StatusChanged(error.Description());
        return false;
    }
}

void MoveTool::DragTo(QPointF pixel)
{
    if (!m_grabbed)
        return;
    m_grabbed->offset = m_canvas.View().ToMap(pixel) - m_grabbed->from;
    m_canvas.update();
}

void MoveTool::DragEnd(QPointF pixel)
{
    DragTo(pixel);
    if (!m_grabbed)
        return;
    const Grabbed moved = *m_grabbed;
    LetGo();
    m_hand.move(moved.key, moved.offset);
    emit StatusChanged(tr("Moved a feature of %1.").arg(moved.layer.name));
}

bool MoveTool::Key(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape)
        return false;
    LetGo();
    emit StatusChanged({});
    return true;
}

void MoveTool::LetGo()
{
    m_grabbed.reset();
    m_canvas.update();
}

void MoveTool::Paint(QPainter& painter, const MapView& view) const
{
    if (!m_grabbed)
        return;
    const std::atomic<bool> never = false;
    const MapView shifted(view.Centre() - m_grabbed->offset, view.UnitsPerPixel(), view.Size());
    painter.setOpacity(GhostOpacity);
    FeaturePainter(painter, shifted, GhostLook(m_grabbed->layer.look))
        .Paint(*m_grabbed->layer.features, never);
    painter.setOpacity(1);
}

} // namespace Orvane
