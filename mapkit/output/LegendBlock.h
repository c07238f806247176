// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/Legend.h"

#include <QSizeF>

class QPainter;
class QRectF;

namespace Orvane {

/// A legend as it stands on a page: rows with a sample and a name, in columns. Lengths are page pixels.
class LegendBlock
{
public:
    /// Where the room comes from that the block takes.
    enum class Place {
        Beside, ///< at a side of the map: few columns
        Below, ///< across the page: few rows
    };

    LegendBlock(std::vector<LegendRow> rows, Place place) : m_rows(std::move(rows)), m_place(place) { }

    /// What it takes of the room that there is; nothing without rows or where not even a row fits. Rows that
    /// do not fit are counted in the last one.
    QSizeF SizeWithin(QSizeF room) const;
    /// Paints it into such a room.
    void Paint(QPainter& painter, const QRectF& room) const;

private:
    struct Grid {
        int columns = 0;
        int rows = 0; ///< of each column
        double columnWidth = 0;
    };

    Grid GridWithin(QSizeF room) const;
    void PaintRow(QPainter& painter, const QRectF& place, const LegendRow& row) const;

    std::vector<LegendRow> m_rows;
    Place m_place;
};

} // namespace Orvane
