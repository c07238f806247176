// SPDX-License-Identifier: MIT
#include "shell/window/ElidedLabel.h"

#include <QStyle>
#include <QStylePainter>

namespace Orvane {

namespace {

constexpr int FewestLetters = 6; // times the width of an "x"

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::minimumSizeHint();
    return {
        qMin(whole.width(), FewestLetters * fontMetrics().horizontalAdvance(QLatin1Char('x'))),
        whole.height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    const QRect place = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    const int direction = int(QStyle::visualAlignment(layoutDirection(), alignment()));
    painter.drawItemText(place, direction, palette(), isEnabled(), shown, foregroundRole());
}

} // namespace Orvane
