// SPDX-License-Identifier: MIT
#include "shell/tools/SelectTool.h"

#include "mapkit/canvas/MapCanvas.h"
#include "shell/features/FeatureSelection.h"

#include <QKeyEvent>
#include <QLocale>

namespace Orvane {

namespace {

FeatureKey KeyOf(const Hit& hit)
{
    return {hit.layer->layerID, hit.layer->features->FeatureId(hit.feature)};
}

} // namespace

SelectTool::SelectTool(MapCanvas& canvas, FeatureSelection& selection)
    : m_canvas(canvas), m_selection(selection)
{
}

void SelectTool::Click(QPointF pixel, Qt::KeyboardModifiers modifiers)
{
    const bool adding = modifiers.testFlag(Qt::ControlModifier);
    const ToolSearch search = Search();
    const auto hits = search.At(pixel);
    if (hits.empty()) {
        if (!adding)
            m_selection.Clear();
        emit StatusChanged(search.MissAt(pixel).Text());
        return;
    }
    if (adding)
        m_selection.Toggle(KeyOf(hits.front()));
    else
        m_selection.Set({KeyOf(hits.front())});
    TellCount();
}

bool SelectTool::DragBegin(QPointF from, Qt::KeyboardModifiers modifiers)
{
    m_band.Begin(from);
    m_adding = modifiers.testFlag(Qt::ControlModifier);
    return true;
}

void SelectTool::DragTo(QPointF pixel)
{
    m_band.Follow(pixel);
    m_canvas.update();
}

void SelectTool::DragEnd(QPointF pixel)
{
    DragTo(pixel);
    const auto band = m_band.Take();
    if (!band)
        return;
    FeatureKeys keys;
    for (const Hit& hit : Search().Within(*band))
        keys.insert(KeyOf(hit));
    if (m_adding)
        m_selection.Add(keys);
    else
        m_selection.Set(keys);
    if (keys.empty())
        emit StatusChanged(tr("No selectable feature in the rectangle."));
    else
        TellCount();
}

bool SelectTool::Key(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape)
        return false;
    if (!m_band.Take())
        m_selection.Clear();
    m_canvas.update();
    emit StatusChanged({});
    return true;
}

void SelectTool::Paint(QPainter& painter, const MapView&) const
{
    m_band.Paint(painter, m_canvas.palette());
}

ToolSearch SelectTool::Search() const
{
    return ToolSearch(m_canvas.Layers(), m_canvas.View(), m_canvas.ScaleDenominator(), ToolUse::Select);
}

void SelectTool::TellCount()
{
    emit StatusChanged(tr("Selected features: %1").arg(QLocale().toString(m_selection.Keys().size())));
}

} // namespace Orvane
