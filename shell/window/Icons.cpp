// SPDX-License-Identifier: MIT
#include "shell/window/Icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

#include <array>

namespace Orvane {

namespace {

constexpr int Size = 24; // of the drawing below; scaled for sharper screens
constexpr int Sharpness = 3;
constexpr QRgb SelectionColour = 0xffffc400;
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

// The corners of a frame around what is to be shown.
void PaintCorners(QPainter& painter)
{
    for (const QPointF corner : {QPointF(2, 2), QPointF(22, 2), QPointF(2, 22), QPointF(22, 22)}) {
        const double in = corner.x() < Size / 2.0 ? 4 : -4;
        const double down = corner.y() < Size / 2.0 ? 4 : -4;
        painter.drawPolyline(QPolygonF{corner + QPointF(in, 0), corner, corner + QPointF(0, down)});
    }
}

void PaintZoomLayer(QPainter& painter)
{
    PaintCorners(painter);
    painter.translate(12, 12);
    painter.scale(0.62, 0.62);
    painter.translate(-12, -12);
    PaintLayers(painter);
}

void PaintZoomSelection(QPainter& painter)
{
    PaintCorners(painter);
    painter.setBrush(QColor(SelectionColour));
    painter.drawPolygon(QPolygonF{{7, 9}, {12, 6}, {18, 10}, {16, 17}, {8, 16}});
}

void PaintZoomRectangle(QPainter& painter)
{
    QPen dashed = painter.pen();
    const QPen solid = dashed;
    dashed.setDashPattern({2, 2});
    painter.setPen(dashed);
    painter.drawRect(QRectF(2, 3, 14, 11));
    painter.setPen(solid);
    painter.translate(8, 8);
    painter.scale(0.68, 0.68);
    PaintLens(painter, false, true);
}

void PaintViewStep(QPainter& painter, bool right)
{
    if (right) {
        painter.translate(Size, 0);
        painter.scale(-1, 1);
    }
    painter.drawLine(QPointF(4, 12), QPointF(20, 12));
    painter.drawPolyline(QPolygonF{{11, 5}, {4, 12}, {11, 19}});
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

void PaintHand(QPainter& painter)
{
    QPainterPath hand({7, 14});
    hand.lineTo(4.6, 11.4);
    hand.cubicTo(3, 9.6, 5, 8, 6.6, 9.4);
    hand.lineTo(8, 10.8);
    for (const double left : {8.0, 11.0, 14.0, 17.0}) {
        const double tip = left == 8.0 ? 4.6 : left == 17.0 ? 6.2 : 3.2;
        hand.lineTo(left, tip);
        hand.cubicTo(left, tip - 1.8, left + 2.6, tip - 1.8, left + 2.6, tip);
        hand.lineTo(left + 2.6, 10.6);
        hand.lineTo(left + 3, 10.6);
    }
    hand.lineTo(20, 14);
    hand.cubicTo(20, 19, 17, 21.5, 13, 21.5);
    hand.cubicTo(10, 21.5, 8.6, 18.4, 7, 14);
    painter.drawPath(hand);
}

void PaintQuestion(QPainter& painter)
{
    painter.drawEllipse(QPointF(12, 12), 9.5, 9.5);
    painter.drawLine(QPointF(12, 11), QPointF(12, 17));
    painter.setBrush(painter.pen().color());
    painter.drawEllipse(QPointF(12, 7.2), 0.7, 0.7);
}

QPolygonF Arrow(QPointF tip)
{
    return QPolygonF{{0, 0}, {0, 13}, {3.2, 10}, {5.2, 14.6}, {7.2, 13.7}, {5.3, 9.2}, {9.4, 9}}.translated(
        tip);
}

void PaintSelect(QPainter& painter)
{
    QPen dashed = painter.pen();
    const QPen solid = dashed;
    dashed.setDashPattern({2, 2});
    painter.setPen(dashed);
    painter.drawRect(QRectF(2.5, 2.5, 15, 13));
    painter.setPen(solid);
    painter.setBrush(solid.color());
    painter.drawPolygon(Arrow({11.5, 8}));
}

void PaintDots(QPainter& painter, const QPolygonF& points)
{
    painter.setBrush(painter.pen().color());
    for (const QPointF& point : points)
        painter.drawEllipse(point, 1.4, 1.4);
}

void PaintRuler(QPainter& painter)
{
    painter.drawPolygon(QPolygonF{{2, 16}, {16, 2}, {22, 8}, {8, 22}});
    for (const double along : {0.0, 3.5, 7.0, 10.5})
        painter.drawLine(QPointF(5 + along, 13 - along), QPointF(5 + along, 13 - along) + QPointF(2.4, 2.4));
}

void PaintMeasuredArea(QPainter& painter)
{
    const QPolygonF corners{{4, 18}, {6, 5}, {18, 4}, {20, 14}, {12, 20}};
    QColor tint = painter.pen().color();
    tint.setAlpha(60);
    painter.setBrush(tint);
    painter.drawPolygon(corners);
    PaintDots(painter, corners);
}

void PaintMove(QPainter& painter)
{
    for (const double angle : {0.0, 90.0, 180.0, 270.0}) {
        painter.save();
        painter.translate(12, 12);
        painter.rotate(angle);
        painter.drawLine(QPointF(3, 0), QPointF(10, 0));
        painter.drawPolyline(QPolygonF{{7, -3}, {10, 0}, {7, 3}});
        painter.restore();
    }
    PaintDots(painter, QPolygonF{{12, 12}});
}

void PaintPointOut(QPainter& painter)
{
    QColor tint = painter.pen().color();
    tint.setAlpha(60);
    painter.setBrush(tint);
    painter.drawPolygon(QPolygonF{{3, 9}, {8, 3}, {17, 5}, {18, 13}, {8, 16}});
    painter.setBrush(painter.pen().color());
    painter.drawPolygon(Arrow({12, 9}));
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
    case IconName::ZoomLayer:
        return PaintZoomLayer(painter);
    case IconName::ZoomSelection:
        return PaintZoomSelection(painter);
    case IconName::ZoomRectangle:
        return PaintZoomRectangle(painter);
    case IconName::PreviousView:
        return PaintViewStep(painter, false);
    case IconName::NextView:
        return PaintViewStep(painter, true);
    case IconName::LayerControl:
        return PaintLayers(painter);
    case IconName::Undo:
        return PaintTurn(painter, false);
    case IconName::Redo:
        return PaintTurn(painter, true);
    case IconName::Pan:
        return PaintHand(painter);
    case IconName::Identify:
        return PaintQuestion(painter);
    case IconName::Select:
        return PaintSelect(painter);
    case IconName::MeasureLine:
        return PaintRuler(painter);
    case IconName::MeasureArea:
        return PaintMeasuredArea(painter);
    case IconName::MoveFeature:
        return PaintMove(painter);
    case IconName::PointOut:
        return PaintPointOut(painter);
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
