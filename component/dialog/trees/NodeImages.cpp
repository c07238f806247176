// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeImages.h"

#include <OrvaneShellLib/LayerValues.h>

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace Orvane {

namespace {

/// Images are drawn on a square of 16 units.
constexpr double Units = 16;

enum class Mode { Various, Normal, Backdrop, Hidden };

Mode ModeOf(qint16 quickMode)
{
    switch (quickMode) {
    case QuickMode::Normal:
        return Mode::Normal;
    case QuickMode::Backdrop:
        return Mode::Backdrop;
    case QuickMode::Hidden:
        return Mode::Hidden;
    default:
        return Mode::Various;
    }
}

// A sheet of paper seen from the side: width 13 units around x = 8.
QPolygonF Sheet(double middle, double halfHeight)
{
    return {{{8, middle - halfHeight}, {14.5, middle}, {8, middle + halfHeight}, {1.5, middle}}};
}

QPolygonF LowerSheetEdge()
{
    return {{{1.5, 9.5}, {8, 14}, {14.5, 9.5}}};
}

QPen OutlinePen(Mode mode, const QColor& colour)
{
    QPen pen(colour, 1.2);
    pen.setJoinStyle(Qt::RoundJoin);
    if (mode == Mode::Backdrop)
        pen.setDashPattern({1.6, 1.8});
    return pen;
}

void PaintFill(QPainter& painter, const QPolygonF& sheet, Mode mode, const QColor& colour)
{
    if (mode != Mode::Normal && mode != Mode::Various)
        return;
    QPainterPath path;
    path.addPolygon(sheet);
    path.closeSubpath();
    if (mode == Mode::Various) {
        QPainterPath leftHalf;
        leftHalf.addRect(0, 0, Units / 2, Units);
        path = path.intersected(leftHalf);
    }
    painter.fillPath(path, colour);
}

void PaintCross(QPainter& painter, const QColor& colour)
{
    painter.setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(2.5, 14), QPointF(13.5, 1.5));
}

/// Paints a node's image in the colour for the item's state.
class NodeIconEngine : public QIconEngine
{
public:
    struct Colours {
        QColor normal;
        QColor disabled;
        QColor selected;
    };

    NodeIconEngine(bool isGroup, qint16 quickMode, const Colours& colours)
        : m_isGroup(isGroup), m_quickMode(quickMode), m_colours(colours)
    {
    }

    // Each row shows one of few images. On a scaled screen a pixmap might lie between its pixels.
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        if (painter->deviceTransform().type() > QTransform::TxTranslate)
            PaintNodeImage(*painter, rect, m_isGroup, m_quickMode, ColourFor(mode));
        else
            painter->drawPixmap(rect.topLeft(), pixmap(rect.size(), mode, state));
    }

    // The default leaves the pixels between the lines undefined.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        QPixmap& painted = m_painted[mode];
        if (painted.size() == size)
            return painted;
        painted = QPixmap(size);
        painted.fill(Qt::transparent);
        QPainter painter(&painted);
        PaintNodeImage(painter, painted.rect(), m_isGroup, m_quickMode, ColourFor(mode));
        return painted;
    }

    QIconEngine* clone() const override { return new NodeIconEngine(*this); }

private:
    const QColor& ColourFor(QIcon::Mode mode) const
    {
        if (mode == QIcon::Selected)
            return m_colours.selected;
        return mode == QIcon::Disabled ? m_colours.disabled : m_colours.normal;
    }

    bool m_isGroup;
    qint16 m_quickMode;
    Colours m_colours;
    std::map<QIcon::Mode, QPixmap> m_painted; ///< in the size in which it was last asked for
};

} // namespace

void PaintNodeImage(
    QPainter& painter, const QRectF& area, bool isGroup, qint16 quickMode, const QColor& colour)
{
    const Mode mode = ModeOf(quickMode);
    const QPolygonF sheet = isGroup ? Sheet(6, 4.5) : Sheet(8, 5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.topLeft());
    painter.scale(area.width() / Units, area.height() / Units);
    PaintFill(painter, sheet, mode, colour);
    painter.setPen(OutlinePen(mode, colour));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(sheet);
    if (isGroup)
        painter.drawPolyline(LowerSheetEdge());
    if (mode == Mode::Hidden)
        PaintCross(painter, colour);
    painter.restore();
}

QIcon NodeImages::Icon(
    bool isGroup, qint16 quickMode, const QPalette& palette, QPalette::ColorGroup colours) const
{
    if (std::exchange(m_palette, palette.cacheKey()) != m_palette)
        m_icons.clear();
    QIcon& icon = m_icons[{colours, {isGroup, quickMode}}];
    if (icon.isNull()) {
        icon = QIcon(new NodeIconEngine(
            isGroup, quickMode,
            {palette.color(colours, QPalette::Text), palette.color(QPalette::Disabled, QPalette::Text),
             palette.color(colours, QPalette::HighlightedText)}));
    }
    return icon;
}

} // namespace Orvane
