// SPDX-License-Identifier: MIT
#include "component/dialog/window/FindEdit.h"

#include "component/common/EventGuard.h"

#include <QPainter>
#include <QStyleOptionFrame>

namespace Orvane {

namespace {

constexpr qreal GridOfGlass = 16; // units of the drawing, each way

void PaintGlass(QPainter& painter, const QRectF& area, const QColor& colour)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.topLeft());
    painter.scale(area.width() / GridOfGlass, area.height() / GridOfGlass);
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QRectF(2.5, 2.5, 8, 8));
    painter.drawLine(QPointF(9.8, 9.8), QPointF(13.5, 13.5));
}

} // namespace

FindEdit::FindEdit(QWidget* parent) : QLineEdit(parent)
{
    MakeRoom();
}

// An action of the field would be a button without a function, for a screen reader too.
void FindEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    GuardPaint([this] {
        QPainter painter(this);
        PaintGlass(painter, GlassArea(), palette().color(QPalette::PlaceholderText));
    });
}

void FindEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    const QEvent::Type type = event->type();
    if (type == QEvent::FontChange || type == QEvent::LayoutDirectionChange)
        MakeRoom();
}

QRect FindEdit::GlassArea() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const int side = fontMetrics().height();
    const QRect area(inside.left() + 2, inside.top() + (inside.height() - side) / 2, side, side);
    return QStyle::visualRect(layoutDirection(), inside, area);
}

void FindEdit::MakeRoom()
{
    const int room = fontMetrics().height() + 2;
    const bool isLeft = layoutDirection() == Qt::LeftToRight;
    setTextMargins(isLeft ? room : 0, 0, isLeft ? 0 : room, 0);
}

} // namespace Orvane
