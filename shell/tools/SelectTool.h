// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapTool.h"
#include "mapkit/canvas/RubberBand.h"
#include "shell/tools/ToolRules.h"

namespace Orvane {

class FeatureSelection;
class MapCanvas;

/// Selects features of selectable layers: a click selects the topmost one, a drag all that its rectangle
/// touches. With Ctrl a click adds or removes, and a drag adds. A click on no feature, or Esc, clears the
/// selection.
class SelectTool : public MapTool
{
    Q_OBJECT
public:
    /// Neither is owned; both outlive this object.
    SelectTool(MapCanvas& canvas, FeatureSelection& selection);

    QCursor Cursor() const override { return Qt::PointingHandCursor; }
    void End() override { m_band.Take(); }
    void Click(QPointF pixel, Qt::KeyboardModifiers modifiers) override;
    bool DoubleClick(QPointF) override { return true; }
    bool DragBegin(QPointF from, Qt::KeyboardModifiers modifiers) override;
    void DragTo(QPointF pixel) override;
    void DragEnd(QPointF pixel) override;
    bool Key(const QKeyEvent& event) override;
    void Paint(QPainter& painter, const MapView& view) const override;

private:
    ToolSearch Search() const;
    void TellCount();

    MapCanvas& m_canvas;
    FeatureSelection& m_selection;
    RubberBand m_band;
    bool m_adding = false;
};

} // namespace Orvane
