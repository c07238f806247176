// SPDX-License-Identifier: MIT
#include "shell/Icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

#include <array>

namespace Orvane {

namespace {

constexpr int Size = 24; // of the drawing below; scaled for sharper screens
constexpr int Sharpness = 3;
constexpr std::array<QRgb, 3> LayerColours = {0xff7fb0cc, 0xffb6d0a4, 0xfff0dfbd}; // bottom first

QPolygonF Sheet(double top)
{
    return {{12, top}, {22, top + 5}, {12, top + 10}, {2, top + 5}};
}

void PaintLayers(QPainter& painter)
{
    double top = 12;
    for (const QRgb colour : LayerColours) {
        painter.setBrush(QColor(colour));
        painter.drawPolygon(Sheet(top));
        top -= 5;
    }
}

void PaintLens(QPainter& painter, bool minus, bool plus)
{
    painter.drawEllipse(QPointF(10, 10), 7, 7);
    painter.drawLine(QPointF(15.2, 15.2), QPointF(21, 21));
    if (minus || plus)
        painter.drawLine(QPointF(7, 10), QPointF(13, 10));
    if (plus)
        painter.drawLine(QPointF(10, 7), QPointF(10, 13));
}

void PaintFrame(QPainter& painter)
{
    for (const QPointF corner : {QPointF(3, 3), QPointF(21, 3), QPointF(3, 21), QPointF(21, 21)}) {
        const double in = corner.x() < Size / 2.0 ? 5 : -5;
        const double down = corner.y() < Size / 2.0 ? 5 : -5;
        painter.drawPolyline(QPolygonF{corner + QPointF(in, 0), corner, corner + QPointF(0, down)});
    }
    painter.drawEllipse(QPointF(12, 12), 4, 4);
}

void PaintPage(QPainter& painter)
{
    painter.drawPolygon(QPolygonF{{5, 2}, {14, 2}, {19, 7}, {19, 22}, {5, 22}});
    painter.drawPolyline(QPolygonF{{14, 2}, {14, 7}, {19, 7}});
}

void PaintFolder(QPainter& painter)
{
    painter.drawPolygon(QPolygonF{{2, 20}, {2, 5}, {9, 5}, {11, 8}, {22, 8}, {22, 20}});
}

void PaintData(QPainter& painter)
{
    painter.drawEllipse(QRectF(4, 2, 16, 6));
    painter.drawPolyline(QPolygonF{{4, 5}, {4, 19}});
    painter.drawPolyline(QPolygonF{{20, 5}, {20, 19}});
    for (const double bottom : {9.0, 16.0})
        painter.drawArc(QRectF(4, bottom, 16, 6), 180 * 16, 180 * 16);
}

// An arrow that turns back to the left, or to the right.
void PaintTurn(QPainter& painter, bool right)
{
    if (right) {
        painter.translate(Size, 0);
        painter.scale(-1, 1);
    }
    QPainterPath path(QPointF(4, 9));
    path.lineTo(14, 9);
    path.arcTo(QRectF(9, 9, 11, 10), 90, -180);
    path.lineTo(9, 19);
    painter.drawPath(path);
    painter.drawPolyline(QPolygonF{{9, 4}, {4, 9}, {9, 14}});
}

void Paint(QPainter& painter, IconName name)
{
    switch (name) {
    case IconName::NewMap:
        return PaintPage(painter);
    case IconName::OpenMap:
        return PaintFolder(painter);
    case IconName::OpenData:
        return PaintData(painter);
    case IconName::ZoomIn:
        return PaintLens(painter, false, true);
    case IconName::ZoomOut:
        return PaintLens(painter, true, false);
    case IconName::ZoomAll:
        return PaintFrame(painter);
    case IconName::LayerControl:
        return PaintLayers(painter);
    case IconName::Undo:
        return PaintTurn(painter, false);
    case IconName::Redo:
        return PaintTurn(painter, true);
    }
}

QIcon Painted(IconName name, const QColor& ink)
{
    QPixmap pixmap(Size * Sharpness, Size * Sharpness);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(Sharpness, Sharpness);
    painter.setPen(QPen(ink, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    Paint(painter, name);
    return QIcon(pixmap);
}

} // namespace

QIcon ShellIcon(IconName name, const QPalette& palette)
{
    return Painted(name, palette.color(QPalette::ButtonText));
}

QIcon ProgramIcon()
{
    return Painted(IconName::LayerControl, QColor(0xff3d4f5c));
}

} // namespace Orvane
