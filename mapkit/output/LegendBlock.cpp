// SPDX-License-Identifier: MIT
#include "mapkit/output/LegendBlock.h"

#include "mapkit/output/LegendSample.h"
#include "mapkit/output/PageFonts.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr double RowHeight = 22;
constexpr int SampleWidth = 34;
constexpr int SampleHeight = 16;
constexpr double ColumnGap = 8;
constexpr double WidestText = 200;

QFont FontOf(const LegendRow& row)
{
    return row.heading ? PageFonts::Heading() : PageFonts::Text();
}

double Indent(const LegendRow& row)
{
    return row.indent * ColumnGap;
}

// The distance from the row's left edge to its text.
double TextStart(const LegendRow& row)
{
    return Indent(row) + (row.sample ? SampleWidth + ColumnGap : 0);
}

double WidthOf(const LegendRow& row)
{
    const double text = QFontMetricsF(FontOf(row)).horizontalAdvance(row.text.simplified());
    return TextStart(row) + std::min(text, WidestText) + 2;
}

int Quotient(double dividend, double divisor)
{
    return int(std::floor(dividend / divisor));
}

int RoundedUp(int count, int perPart)
{
    return (count + perPart - 1) / perPart;
}

} // namespace

LegendBlock::Grid LegendBlock::GridWithin(QSizeF room) const
{
    Grid grid;
    for (const LegendRow& row : m_rows)
        grid.columnWidth = std::max(grid.columnWidth, WidthOf(row));
    grid.columnWidth = std::min(grid.columnWidth, room.width());
    const int count = int(m_rows.size());
    const int mostRows = Quotient(room.height(), RowHeight);
    if (count == 0 || mostRows < 1 || grid.columnWidth <= SampleWidth)
        return {};
    const int mostColumns
        = std::max(1, Quotient(room.width() + 2 * ColumnGap, grid.columnWidth + 2 * ColumnGap));
    const int columns = m_place == Place::Below ? mostColumns : RoundedUp(count, mostRows);
    grid.columns = std::min({columns, mostColumns, count});
    grid.rows = std::min(RoundedUp(count, grid.columns), mostRows);
    return grid;
}

QSizeF LegendBlock::SizeWithin(QSizeF room) const
{
    const Grid grid = GridWithin(room);
    if (grid.columns == 0)
        return {0, 0};
    return {grid.columns * (grid.columnWidth + 2 * ColumnGap) - 2 * ColumnGap, grid.rows * RowHeight};
}

void LegendBlock::Paint(QPainter& painter, const QRectF& room) const
{
    const Grid grid = GridWithin(room.size());
    const size_t places = size_t(grid.columns) * size_t(grid.rows);
    for (size_t index = 0; index < std::min(places, m_rows.size()); ++index) {
        const size_t column = index / size_t(grid.rows);
        const QPointF corner(
            double(column) * (grid.columnWidth + 2 * ColumnGap),
            double(index % size_t(grid.rows)) * RowHeight);
        const QRectF place(room.topLeft() + corner, QSizeF(grid.columnWidth, RowHeight));
        if (index + 1 == places && places < m_rows.size()) {
            const QString more = QLocale().toString(m_rows.size() - index);
            const QString text = QCoreApplication::translate("LegendBlock", "and %1 more").arg(more);
            PaintRow(painter, place, LegendRow::Heading(text));
        } else {
            PaintRow(painter, place, m_rows[index]);
        }
    }
}

void LegendBlock::PaintRow(QPainter& painter, const QRectF& place, const LegendRow& row) const
{
    painter.save();
    if (row.sample) {
        const QPointF corner(place.left() + Indent(row), place.top() + (RowHeight - SampleHeight) / 2);
        painter.save();
        painter.translate(corner);
        PaintLegendSample(painter, QRect(0, 0, SampleWidth, SampleHeight), row);
        painter.restore();
    }
    const QFont font = FontOf(row);
    const QRectF textPlace = place.adjusted(TextStart(row), 0, 0, 0);
    const QString text
        = QFontMetricsF(font).elidedText(row.text.simplified(), Qt::ElideRight, textPlace.width());
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(textPlace, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    painter.restore();
}

} // namespace Orvane
