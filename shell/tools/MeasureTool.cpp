// SPDX-License-Identifier: MIT
#include "shell/tools/MeasureTool.h"

#include "mapkit/canvas/MapCanvas.h"
#include "shell/tools/ToolRules.h"

#include <QKeyEvent>
#include <QPainter>

#include <array>
#include <cmath>

namespace Orvane {

namespace {

constexpr QRgb Ink = 0xffb3261e;
constexpr int AreaOpacity = 50; // of 255
constexpr double VertexSize = 6; // pixels, like all sizes below
constexpr double SnapSize = 12;
constexpr double LabelGap = 6;
constexpr double LabelPadding = 3;

QRectF SquareAround(QPointF centre, double size)
{
    return {centre.x() - size / 2, centre.y() - size / 2, size, size};
}

void PaintLabel(QPainter& painter, QPointF centre, const QString& text)
{
    const QSizeF size = painter.fontMetrics().size(0, text);
    QRectF box(centre - QPointF(size.width(), size.height()) / 2, size);
    box.adjust(-LabelPadding, -LabelPadding / 2, LabelPadding, LabelPadding / 2);
    const QRect window = painter.window(); // the label is kept inside it
    box.moveLeft(std::clamp(box.left(), 0.0, std::max(0.0, window.width() - box.width())));
    box.moveTop(std::clamp(box.top(), 0.0, std::max(0.0, window.height() - box.height())));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 220));
    painter.drawRoundedRect(box, LabelPadding, LabelPadding);
    painter.setPen(QColor::fromRgb(Ink));
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace

MeasureTool::MeasureTool(MapCanvas& canvas, Kind kind) : m_canvas(canvas), m_kind(kind)
{
}

void MeasureTool::SetSystem(const QString& system)
{
    m_measure = EarthMeasure(system);
    Forget();
}

void MeasureTool::Begin()
{
    Tell();
}

void MeasureTool::Click(QPointF pixel, Qt::KeyboardModifiers)
{
    if (m_finished)
        Forget();
    m_vertices.push_back(Snapped(pixel));
    m_pointer.reset();
    Tell();
}

bool MeasureTool::DoubleClick(QPointF)
{
    Finish();
    return true;
}

bool MeasureTool::RightClick(QPointF)
{
    const bool ends = !m_finished && !m_vertices.empty();
    if (ends)
        Finish();
    return ends;
}

void MeasureTool::Hover(QPointF pixel)
{
    m_pointer = Snapped(pixel);
    if (!m_finished && !m_vertices.empty())
        Tell();
    m_canvas.update();
}

bool MeasureTool::Key(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Finish();
        return true;
    case Qt::Key_Escape:
        Forget();
        Tell();
        return true;
    case Qt::Key_Backspace:
        if (!m_vertices.empty())
            m_vertices.pop_back();
        m_finished = false;
        Tell();
        return true;
    default:
        return false;
    }
}

QPointF MeasureTool::Snapped(QPointF pixel)
{
    const ToolSearch search(m_canvas.Layers(), m_canvas.View(), m_canvas.ScaleDenominator(), ToolUse::SnapTo);
    const auto point = search.SnapPoint(pixel);
    m_snapped = point.has_value();
    return point.value_or(m_canvas.View().ToMap(pixel));
}

void MeasureTool::Finish()
{
    m_finished = !m_vertices.empty();
    Tell();
}

void MeasureTool::Forget()
{
    m_vertices.clear();
    m_pointer.reset();
    m_finished = false;
    m_canvas.update();
}

void MeasureTool::Tell()
{
    emit StatusChanged(Status(Shape()));
    m_canvas.update();
}

std::vector<QPointF> MeasureTool::Shape() const
{
    std::vector<QPointF> shape = m_vertices;
    if (m_pointer && !m_finished && !m_vertices.empty())
        shape.push_back(*m_pointer);
    return shape;
}

QString MeasureTool::LengthOf(std::span<const QPointF> line) const
{
    const auto length = m_measure.Length(line);
    return length ? LengthText(*length, m_measure.KnowsEarth()) : tr("outside the projection");
}

QString MeasureTool::Result(const std::vector<QPointF>& shape) const
{
    if (m_kind == Kind::Line)
        return LengthOf(shape);
    const auto area = m_measure.Area(shape);
    return area ? AreaText(*area, m_measure.KnowsEarth()) : tr("outside the projection");
}

QString MeasureTool::Status(const std::vector<QPointF>& shape) const
{
    if (shape.empty())
        return tr("Click to set a vertex, double-click to end.");
    if (m_kind == Kind::Line)
        return tr("Length: %1").arg(Result(shape));
    std::vector<QPointF> closed = shape;
    closed.push_back(shape.front());
    return tr("Area: %1, perimeter: %2").arg(Result(shape), LengthOf(closed));
}

void MeasureTool::Paint(QPainter& painter, const MapView& view) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    QPolygonF pixels;
    for (const QPointF& point : Shape())
        pixels << view.ToPixel(point);
    if (!pixels.isEmpty()) {
        PaintShape(painter, pixels);
        PaintLabels(painter, pixels);
    }
    PaintSnap(painter, view);
}

void MeasureTool::PaintShape(QPainter& painter, const QPolygonF& pixels) const
{
    QColor fill = QColor::fromRgb(Ink);
    fill.setAlpha(AreaOpacity);
    const std::array<QPen, 2> pens = {QPen(Qt::white, 4), QPen(QColor::fromRgb(Ink), 2)};
    painter.setBrush(Qt::NoBrush);
    for (const QPen& pen : pens) {
        painter.setPen(pen);
        if (m_kind == Kind::Area)
            painter.drawPolygon(pixels);
        else
            painter.drawPolyline(pixels);
    }
    if (m_kind == Kind::Area) {
        painter.setBrush(fill);
        painter.setPen(Qt::NoPen);
        painter.drawPolygon(pixels);
    }
    painter.setPen(QPen(QColor::fromRgb(Ink), 1));
    painter.setBrush(Qt::white);
    for (const QPointF& pixel : pixels)
        painter.drawRect(SquareAround(pixel, VertexSize));
}

void MeasureTool::PaintLabels(QPainter& painter, const QPolygonF& pixels) const
{
    const std::vector<QPointF> shape = Shape();
    const double lineHeight = painter.fontMetrics().height();
    if (m_kind == Kind::Area) {
        if (shape.size() > 2)
            PaintLabel(painter, pixels.boundingRect().center(), Result(shape));
        return;
    }
    for (qsizetype i = 1; shape.size() > 2 && i < pixels.size(); ++i) {
        const QString text = LengthOf(std::span(shape).subspan(size_t(i) - 1, 2));
        if (QLineF(pixels[i - 1], pixels[i]).length() > painter.fontMetrics().horizontalAdvance(text) * 1.5)
            PaintLabel(painter, (pixels[i - 1] + pixels[i]) / 2, text);
    }
    if (shape.size() > 1)
        PaintLabel(painter, pixels.last() - QPointF(0, lineHeight + LabelGap), Result(shape));
}

void MeasureTool::PaintSnap(QPainter& painter, const MapView& view) const
{
    if (!m_snapped || !m_pointer)
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 4));
    painter.drawRect(SquareAround(view.ToPixel(*m_pointer), SnapSize));
    painter.setPen(QPen(QColor::fromRgb(Ink), 2));
    painter.drawRect(SquareAround(view.ToPixel(*m_pointer), SnapSize));
}

} // namespace Orvane
