// SPDX-License-Identifier: MIT
#include "component/dialog/rows/LayerSample.h"

#include "component/model/LayerStyle.h"
#include "ovctrls/LinePatterns.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace Orvane {

namespace {

constexpr std::array SampleSlots{Slot::LineColour,   Slot::FillForeColour, Slot::FillBackColour,
                                 Slot::OutlineStyle, Slot::FillStyle,      Slot::LineThickness};
constexpr int LeastContrast = 48; // of one of red, green and blue
constexpr int ThickestOfHeight = 4;

bool IsLike(qint32 one, qint32 other)
{
    const QColor left = QColorFromBgr(one);
    const QColor right = QColorFromBgr(other);
    return std::abs(left.red() - right.red()) < LeastContrast
        && std::abs(left.green() - right.green()) < LeastContrast
        && std::abs(left.blue() - right.blue()) < LeastContrast;
}

bool HasFillLike(const LayerSample& sample, qint32 listBack)
{
    const FillColours shown = ShownColours(sample.colours, listBack);
    const bool isForeSeen = sample.fillStyle != HollowFill && !IsLike(shown.fore, listBack);
    const bool isBackSeen = sample.fillStyle != SolidFill && !IsLike(shown.back, listBack);
    return !isForeSeen && !isBackSeen;
}

QColor FaintOn(qint32 listBack)
{
    QColor faint = QColorFromBgr(listBack).lightness() < 128 ? Qt::white : Qt::black;
    faint.setAlphaF(0.3);
    return faint;
}

QPen FramePen(const LayerSample& sample, const QRect& area, qint32 listBack)
{
    const bool hasLine = sample.lineStyle != NoLinePattern;
    const bool isLineSeen = hasLine && !IsLike(sample.colours.line, listBack);
    if (!isLineSeen && HasFillLike(sample, listBack))
        return {FaintOn(listBack), 1};
    const int thickest = std::max(1, area.height() / ThickestOfHeight);
    const double width = std::clamp(std::round(std::abs(sample.thickness)), 1.0, double(thickest));
    QPen pen(QColorFromBgr(sample.colours.line), sample.lineStyle == 0 ? width : 1);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    SetLinePattern(pen, sample.lineStyle);
    return pen;
}

} // namespace

std::optional<LayerSample> SampleOf(const LayerStyle& style)
{
    const bool isKnown = std::none_of(
        SampleSlots.begin(), SampleSlots.end(), [&style](qint16 slot) { return style.lsIsNull(slot); });
    if (!isKnown)
        return std::nullopt;
    const auto number = [&style](qint16 slot) { return ToInt32(style.lsGet(slot)); };
    LayerSample sample;
    sample.colours = {number(Slot::LineColour), number(Slot::FillForeColour), number(Slot::FillBackColour)};
    sample.fillStyle = number(Slot::FillStyle);
    sample.lineStyle = number(Slot::OutlineStyle);
    sample.thickness = ToDouble(style.lsGet(Slot::LineThickness));
    return sample;
}

void PaintLayerSample(QPainter& painter, const QRect& area, const LayerSample& sample, qint32 listBack)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    PaintFillSample(painter, area, {sample.fillStyle, sample.picture, sample.colours, listBack});
    const QPen frame = FramePen(sample, area, listBack);
    const double half = frame.style() == Qt::NoPen ? 0 : frame.widthF() / 2;
    painter.setPen(frame);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(area).adjusted(half, half, -half, -half));
    painter.restore();
}

} // namespace Orvane
