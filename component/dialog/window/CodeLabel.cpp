// SPDX-License-Identifier: MIT
#include "component/dialog/window/CodeLabel.h"

#include "component/common/EventGuard.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace Orvane {

namespace {

bool AsksToEdit(int key)
{
    return key == Qt::Key_F2 || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

} // namespace

CodeLabel::CodeLabel(QWidget* parent) : ValueLabel(parent)
{
}

QSize CodeLabel::sizeHint() const
{
    const int width
        = fontMetrics().horizontalAdvance(QStringLiteral("-32768 ")) + 2 * frameWidth() + 2 * margin();
    return {std::max(width, QLabel::sizeHint().width()), QLabel::sizeHint().height()};
}

void CodeLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        GuardEvent(window(), [this] { emit EditRequested(); });
}

void CodeLabel::keyPressEvent(QKeyEvent* event)
{
    if (AsksToEdit(event->key()))
        GuardEvent(window(), [this] { emit EditRequested(); });
    else
        QLabel::keyPressEvent(event);
}

void CodeLabel::paintEvent(QPaintEvent* event)
{
    ValueLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = contentsRect();
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

} // namespace Orvane
