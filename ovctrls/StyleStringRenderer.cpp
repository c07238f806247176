// SPDX-License-Identifier: MIT
#include "ovctrls/StyleStringRenderer.h"

#include "ovctrls/LinePatterns.h"
#include "ovctrls/StyleStringParser.h"
#include "samples/BgrColour.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace Orvane {

namespace {

bool HasFamily(const QString& family)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QFontDatabase::hasFamily(family);
#else
    return QFontDatabase().hasFamily(family);
#endif
}

constexpr int outlineAlpha = 80; // of 255
constexpr int lightnessOfPaper = 200; // of 255, as the difference from the lightness of the text
constexpr double smallestPoints = 1;
constexpr double largestPoints = 200;

// Paints the elements of one item one after the other.
class ItemPainter
{
public:
    ItemPainter(QPainter& painter, const QRect& rectangle, const StyleStringLook& look)
        : m_painter(painter), m_rectangle(rectangle), m_look(look), m_font(look.font)
    {
    }

    void operator()(const TextRun& run)
    {
        m_painter.setFont(m_font);
        m_painter.setPen(m_foreColour.value_or(m_look.textColour));
        const QRect place = m_rectangle.adjusted(m_cursor, 0, 0, 0);
        m_painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, run.text);
        m_cursor += QFontMetrics(m_font, m_painter.device()).horizontalAdvance(run.text);
    }

    void operator()(const TabStop&) { m_cursor = m_origin = std::max(m_cursor, m_look.tabColumn); }

    void operator()(const ForeColour& fore) { m_foreColour = QColorFromBgr(fore.colour); }

    void operator()(const FontChange& change)
    {
        if (!HasFamily(change.face))
            return;
        m_font.setFamily(change.face);
        if (change.points >= smallestPoints && change.points <= largestPoints)
            m_font.setPointSizeF(change.points);
    }

    void operator()(const Drawing& drawing)
    {
        m_painter.save();
        m_painter.translate(m_rectangle.topLeft() + QPoint(m_origin, 0));
        for (const Figure& figure : drawing.figures)
            PaintFigure(drawing, figure);
        m_painter.restore();
    }

    void operator()(const UserDrawn&) { }

private:
    QColor DrawingColour(qint32 colour) const
    {
        return colour == 0 && !m_foreColour ? m_look.textColour : QColorFromBgr(colour);
    }

    QPen PenOf(const Drawing& drawing) const
    {
        QPen pen(DrawingColour(drawing.penColour), std::max(drawing.penWidth, 1.0));
        pen.setCapStyle(Qt::FlatCap);
        SetLinePattern(pen, drawing.penStyle);
        return pen;
    }

    // A filled figure has exactly its height; only a flat one needs the pen to be visible.
    void PaintFigure(const Drawing& drawing, const Figure& figure)
    {
        const QRectF bounds = figure.points.boundingRect();
        const bool hasArea = bounds.width() > 0 && bounds.height() > 0;
        if (figure.isFilled && hasArea) {
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(DrawingColour(drawing.brushColour));
            m_painter.drawPolygon(figure.points);
            if (m_foreColour && IsLostOnPaper(QColorFromBgr(drawing.brushColour)))
                PaintOutline(bounds.toAlignedRect());
        } else {
            m_painter.setPen(PenOf(drawing));
            m_painter.drawPolyline(figure.points);
        }
    }

    // True if the colour is as far from the text colour as the list's background is.
    bool IsLostOnPaper(const QColor& colour) const
    {
        return std::abs(colour.lightness() - m_look.textColour.lightness()) > lightnessOfPaper;
    }

    void PaintOutline(const QRect& bounds)
    {
        QColor faint = m_look.textColour;
        faint.setAlpha(outlineAlpha);
        m_painter.setPen(faint);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(bounds.adjusted(0, 0, -1, -1));
    }

    QPainter& m_painter;
    QRect m_rectangle;
    const StyleStringLook& m_look;
    QFont m_font;
    std::optional<QColor> m_foreColour;
    int m_cursor = 0; // where the next text starts, from the left edge
    int m_origin = 0; // of drawings, from the left edge
};

} // namespace

bool StyleStringRenderer::IsUserDrawn(const QString& item) const
{
    const auto elements = ParseStyleTexts(item, m_prefix);
    return std::any_of(elements.begin(), elements.end(), [](const StyleElement& element) {
        return std::holds_alternative<UserDrawn>(element);
    });
}

QString StyleStringRenderer::PlainText(const QString& item) const
{
    QString text;
    for (const StyleElement& element : ParseStyleTexts(item, m_prefix)) {
        if (const auto* run = std::get_if<TextRun>(&element))
            text += run->text;
    }
    return text.simplified();
}

int StyleStringRenderer::LabelWidth(const QString& item, const QFont& font) const
{
    int width = 0;
    for (const StyleElement& element : ParseStyleTexts(item, m_prefix)) {
        if (std::holds_alternative<TabStop>(element))
            return width;
        if (const auto* run = std::get_if<TextRun>(&element))
            width += QFontMetrics(font).horizontalAdvance(run->text);
    }
    return 0;
}

void StyleStringRenderer::Paint(
    QPainter& painter, const QRect& rectangle, const QString& item, const StyleStringLook& look) const
{
    painter.save();
    painter.setClipRect(rectangle, Qt::IntersectClip);
    ItemPainter itemPainter(painter, rectangle, look);
    for (const StyleElement& element : ParseStyleString(item, m_prefix))
        std::visit(itemPainter, element);
    painter.restore();
}

} // namespace Orvane
