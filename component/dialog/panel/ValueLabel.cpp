// SPDX-License-Identifier: MIT
#include "component/dialog/panel/ValueLabel.h"

#include <QPainter>

#include <algorithm>

namespace Orvane {

namespace {

constexpr int outline = 1; // pixels
constexpr int textIndent = 3;

// In pixels of the device, where a line cannot fall between two of them.
void PaintFrame(QPainter& painter, const QWidget& field)
{
    const double ratio = field.devicePixelRatioF();
    const int line = std::max(int(ratio), 1);
    const int right = int(field.width() * ratio);
    const int bottom = int(field.height() * ratio);
    painter.scale(1 / ratio, 1 / ratio);
    const QColor colour = field.palette().color(QPalette::Mid);
    painter.fillRect(0, 0, right, line, colour);
    painter.fillRect(0, bottom - line, right, line, colour);
    painter.fillRect(0, 0, line, bottom, colour);
    painter.fillRect(right - line, 0, line, bottom, colour);
}

} // namespace

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent)
{
    setMargin(outline);
    setIndent(textIndent);
}

void ValueLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    PaintFrame(painter, *this);
}

} // namespace Orvane
