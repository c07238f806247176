// SPDX-License-Identifier: MIT
#include "shell/window/EmptyMapHint.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/canvas/MapPicture.h"

#include <QPainter>

namespace Orvane {

namespace {

constexpr int Margin = 24; // pixels
constexpr QRgb OnLight = 0xff5f5f5f;
constexpr QRgb OnDark = 0xffd8d8d8;
constexpr int LeastLight = 128; // brightness, up to 255

} // namespace

EmptyMapHint::EmptyMapHint(MapCanvas& canvas) : m_canvas(canvas)
{
    m_canvas.AddOverlay(this);
}

EmptyMapHint::~EmptyMapHint()
{
    m_canvas.RemoveOverlay(this);
}

void EmptyMapHint::Paint(QPainter& painter, const MapView&) const
{
    if (!m_canvas.Layers().empty())
        return;
    painter.setFont(m_canvas.font());
    const bool isLight = qGray(m_canvas.Picture().Background().rgb()) >= LeastLight;
    painter.setPen(QColor::fromRgb(isLight ? OnLight : OnDark));
    painter.drawText(
        m_canvas.rect().adjusted(Margin, Margin, -Margin, -Margin), Qt::AlignCenter | Qt::TextWordWrap,
        tr("This map is empty. Choose File > Open Data..., or drop data files here."));
}

} // namespace Orvane
