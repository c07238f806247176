// SPDX-License-Identifier: MIT
#include "component/dialog/trees/MarkedNode.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTextLayout>

#include <algorithm>

namespace Orvane {

namespace {

const QStyle& StyleOf(const QStyleOptionViewItem& node)
{
    return node.widget ? *node.widget->style() : *QApplication::style();
}

QRect TextArea(const QStyleOptionViewItem& node)
{
    const int margin = StyleOf(node).pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, node.widget) + 1;
    return StyleOf(node)
        .subElementRect(QStyle::SE_ItemViewItemText, &node, node.widget)
        .adjusted(margin, 0, -margin, 0);
}

QColor TextColour(const QStyleOptionViewItem& node)
{
    const bool isEnabled = node.state & QStyle::State_Enabled;
    const bool isActive = node.state & QStyle::State_Active;
    const bool isSelected = node.state & QStyle::State_Selected;
    const QPalette::ColorGroup enabled = isActive ? QPalette::Active : QPalette::Inactive;
    return node.palette.color(
        isEnabled ? enabled : QPalette::Disabled, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

QVector<QTextLayout::FormatRange> Bold(const std::vector<FindWords::Piece>& pieces, int length)
{
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    QVector<QTextLayout::FormatRange> ranges;
    ranges.reserve(int(pieces.size()));
    for (const FindWords::Piece& piece : pieces) {
        if (piece.start < length)
            ranges.append({piece.start, std::min(piece.length, length - piece.start), bold});
    }
    return ranges;
}

// Breaks no line: a name is one line, and what is too long was cut.
qreal LayOut(QTextLayout& layout, const QString& text, const std::vector<FindWords::Piece>& pieces)
{
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setText(text);
    layout.setFormats(Bold(pieces, int(text.size())));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    return line.isValid() ? line.naturalTextWidth() : 0;
}

void PaintText(
    QPainter& painter, const QStyleOptionViewItem& node, const std::vector<FindWords::Piece>& pieces)
{
    const QRect area = TextArea(node);
    QTextLayout layout(QString(), node.font);
    qreal width = LayOut(layout, node.text, pieces);
    if (width > area.width()) { // bold letters are wider than those that are measured here
        const int wider = int(width) - node.fontMetrics.horizontalAdvance(node.text);
        width = LayOut(
            layout, node.fontMetrics.elidedText(node.text, node.textElideMode, area.width() - wider), pieces);
    }
    const bool isLeft = node.direction == Qt::LeftToRight;
    const qreal left = isLeft ? area.left() : area.right() - width;
    const qreal top = area.top() + (area.height() - layout.boundingRect().height()) / 2;
    painter.setPen(TextColour(node));
    layout.draw(&painter, QPointF(left, top), {}, area);
}

} // namespace

void PaintMarkedNode(
    QPainter& painter, const QStyleOptionViewItem& node, const std::vector<FindWords::Piece>& pieces)
{
    QStyleOptionViewItem withoutText = node;
    withoutText.text.clear();
    painter.save();
    StyleOf(node).drawControl(QStyle::CE_ItemViewItem, &withoutText, &painter, node.widget);
    painter.setClipRect(node.rect, Qt::IntersectClip);
    PaintText(painter, node, pieces);
    painter.restore();
}

} // namespace Orvane
