// SPDX-License-Identifier: MIT
#include "mapkit/canvas/RubberBand.h"

#include <QPainter>
#include <QPalette>

#include <utility>

namespace Orvane {

namespace {

constexpr int BandOpacity = 50; // of 255

} // namespace

void RubberBand::Follow(QPointF corner)
{
    if (m_rectangle)
        m_rectangle->setBottomRight(corner);
}

std::optional<QRectF> RubberBand::Take()
{
    const std::optional<QRectF> drawn = std::exchange(m_rectangle, std::nullopt);
    return drawn ? std::optional(drawn->normalized()) : std::nullopt;
}

void RubberBand::Paint(QPainter& painter, const QPalette& palette) const
{
    if (!m_rectangle)
        return;
    QColor colour = palette.color(QPalette::Highlight);
    painter.setPen(QPen(colour, 1, Qt::DashLine));
    colour.setAlpha(BandOpacity);
    painter.setBrush(colour);
    painter.drawRect(m_rectangle->normalized());
}

} // namespace Orvane
