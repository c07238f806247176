// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapTool.h"

#include <QCoreApplication>

namespace Orvane {

class MapCanvas;

/// Shows on a map without layers and backdrop how to add data.
class EmptyMapHint : public MapOverlay
{
    Q_DECLARE_TR_FUNCTIONS(Orvane::EmptyMapHint)
public:
    /// canvas: not owned; outlives this object.
    explicit EmptyMapHint(MapCanvas& canvas);
    ~EmptyMapHint() override;

    void Paint(QPainter& painter, const MapView& view) const override;

private:
    MapCanvas& m_canvas;
};

} // namespace Orvane
