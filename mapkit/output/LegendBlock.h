// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/Legend.h"

#include <QSizeF>

class QPainter;
class QRectF;

namespace Orvane {

/// A legend on a page: rows with a sample and a name, in columns. Lengths are in page pixels.
class LegendBlock
{
public:
    /// Where the block is on the page.
    enum class Place {
        Beside, ///< at a side of the map, with few columns
        Below, ///< across the page, with few rows
    };

    LegendBlock(std::vector<LegendRow> rows, Place place) : m_rows(std::move(rows)), m_place(place) { }

    /// The part of the available room that it uses; empty if there are no rows or not even one row fits. If
    /// some rows do not fit, the last row shows their number.
    QSizeF SizeWithin(QSizeF room) const;
    /// Paints the legend into that room.
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
