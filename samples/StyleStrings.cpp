// SPDX-License-Identifier: MIT
#include "samples/StyleStrings.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Orvane {

namespace {

constexpr int millimetreBrush = 8;
constexpr int pixelBrush = -1;
constexpr int widestUnlabelledPixels = 5;

QString Text(int number)
{
    return QString::number(number);
}

QString LocaleText(float number)
{
    return ToText(number).replace(QLatin1Char('.'), QString(QLocale().decimalPoint()));
}

int HalfDownwards(int number)
{
    return int(std::floor(number / 2.0));
}

} // namespace

QString StyleStrings::Command(const QString& body) const
{
    return m_prefix + body + QLatin1Char('.');
}

QString StyleStrings::ColourItem(qint32 colour, const SwatchExtent& extent) const
{
    if (colour == TransparentColour)
        return m_words.transparent;
    const QString c = Text(colour);
    const QString w = LocaleText(extent.width);
    const QString h = LocaleText(extent.height);
    const QString polygon = QStringLiteral(":M0,1:F0,1,") + w + ",1," + w + ',' + h + ",0," + h + ",0,1";
    return Command("FG=" + c) + Command("DRB=" + c + ":P=" + c + polygon);
}

QString StyleStrings::LineItemText(const LineItem& line, const LineExtent& extent) const
{
    if (line.style == NoLineStyle)
        return m_words.noLine;
    return line.style == 0 ? SolidLine(line.thickness, extent) : PatternedLine(line.style, extent);
}

QString StyleStrings::PatternedLine(qint16 style, const LineExtent& extent) const
{
    return Command(
        "DRP=0/" + Text(style) + "/0/:M0," + Text(extent.middle) + ":D" + Text(extent.length) + ",+0");
}

QString StyleStrings::SolidLine(qint16 thickness, const LineExtent& extent) const
{
    const int width = std::min(std::abs(int(thickness)), extent.height - 2);
    const int top = extent.middle - HalfDownwards(width);
    const QString length = Text(extent.length);
    const QString bottom = Text(top + width);
    const QString brush = Text(thickness >= 0 ? millimetreBrush : pixelBrush);
    return LeadIn(thickness)
        + Command(
               "DRB=0/" + brush + ":P=0/0/0/:M0," + Text(top) + ":F" + length + ",+0," + length + ',' + bottom
               + ",0," + bottom);
}

// Even the thinnest line has a tab; lines with a small width in pixels have neither label nor tab.
QString StyleStrings::LeadIn(qint16 thickness) const
{
    if (thickness < 0 && thickness >= -widestUnlabelledPixels)
        return {};
    const QString unit = thickness > 0 ? m_words.millimetres : m_words.pixels;
    const QString label
        = thickness == 0 ? QString() : Text(std::abs(int(thickness))) + ' ' + unit + QStringLiteral("  ");
    return label + QLatin1Char('\t');
}

QString StyleStrings::FillItem() const
{
    return Command("UD");
}

QString StyleStrings::CustomLineCaption() const
{
    return Command("FCMS Sans Serif,8,") + m_words.customLineStyle;
}

} // namespace Orvane
