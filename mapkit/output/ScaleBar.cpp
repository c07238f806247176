// SPDX-License-Identifier: MIT
#include "mapkit/output/ScaleBar.h"

#include "mapkit/output/PageFonts.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>

#include <cmath>

namespace Orvane {

namespace {

constexpr double MetresPerKilometre = 1000;
constexpr double BarHeight = 5;
constexpr double BarPadding = 5;
constexpr int Parts = 4;
constexpr int PaperAlpha = 215; // of 255: the map is slightly visible through it

double RoundLengthUpTo(double metres)
{
    const double decade = std::pow(10, std::floor(std::log10(metres)));
    for (const double factor : {5.0, 2.0}) {
        if (factor * decade <= metres)
            return factor * decade;
    }
    return decade;
}

QString LengthText(double metres)
{
    const bool far = metres >= MetresPerKilometre;
    const QString number = QLocale().toString(far ? metres / MetresPerKilometre : metres, 'g', 6);
    return number + (far ? QStringLiteral(" km") : QStringLiteral(" m"));
}

double TextWidth(const QString& text)
{
    return QFontMetricsF(PageFonts::Small()).horizontalAdvance(text);
}

double LineHeight()
{
    return QFontMetricsF(PageFonts::Small()).height();
}

} // namespace

ScaleBar ScaleBar::Fitting(double metresPerPixel, double maxLength, const QString& numberText)
{
    const double metres = RoundLengthUpTo(metresPerPixel * maxLength);
    return {metres, metres / metresPerPixel, numberText};
}

ScaleBar::ScaleBar(double metres, double length, const QString& numberText)
    : m_metres(metres), m_length(length), m_numberText(numberText)
{
}

QString ScaleBar::Label() const
{
    return LengthText(m_metres);
}

// The last label is centred below the bar's end, and so extends beyond it.
QSizeF ScaleBar::Size() const
{
    const double overhang = TextWidth(Label()) / 2;
    const double width
        = std::max(m_length + overhang, TextWidth(m_numberText)) + TextWidth(QStringLiteral("0"));
    const double lines = m_numberText.isEmpty() ? 1 : 2;
    return {width + 2 * BarPadding, lines * LineHeight() + BarHeight + 2 * BarPadding};
}

void ScaleBar::Paint(QPainter& painter, QPointF topLeft) const
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, PaperAlpha));
    painter.drawRect(QRectF(topLeft, Size()));
    const double above = m_numberText.isEmpty() ? 0 : LineHeight();
    const QPointF start
        = topLeft + QPointF(BarPadding + TextWidth(QStringLiteral("0")) / 2, BarPadding + above);
    const QRectF bar(start, QSizeF(m_length, BarHeight));
    painter.setBrush(Qt::white);
    painter.setPen(QPen(Qt::black, 0.75));
    painter.drawRect(bar);
    for (int part = 0; part < Parts; part += 2) {
        const double left = bar.left() + part * m_length / Parts;
        painter.fillRect(QRectF(left, bar.top(), m_length / Parts, BarHeight), Qt::black);
    }
    PaintLabels(painter, bar);
    painter.restore();
}

void ScaleBar::PaintLabels(QPainter& painter, const QRectF& bar) const
{
    painter.setFont(PageFonts::Small());
    painter.setPen(Qt::black);
    const double middle = bar.bottom() + LineHeight() / 2;
    const auto label = [&](double x, const QString& text) {
        const double width = TextWidth(text) + 2;
        painter.drawText(
            QRectF(x - width / 2, middle - LineHeight() / 2, width, LineHeight()), Qt::AlignCenter, text);
    };
    label(bar.left(), QStringLiteral("0"));
    label(bar.right(), Label());
    if (!m_numberText.isEmpty()) {
        const QRectF line(
            bar.left(), bar.top() - LineHeight() - 1, TextWidth(m_numberText) + 2, LineHeight());
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, m_numberText);
    }
}

} // namespace Orvane
