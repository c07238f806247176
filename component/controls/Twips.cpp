// SPDX-License-Identifier: MIT
#include "component/controls/Twips.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QWidget>

#include <algorithm>
#include <limits>

namespace Orvane {

namespace {

constexpr double twipsPerInch = 1440;

qint32 SaturatedRound(double number)
{
    using Limits = std::numeric_limits<qint32>;
    return qint32(std::clamp(RoundHalfToEven(number), double(Limits::min()), double(Limits::max())));
}

} // namespace

Twips TwipsPerPixel::WidthToTwips(int pixels) const
{
    return SaturatedRound(pixels * x);
}

Twips TwipsPerPixel::HeightToTwips(int pixels) const
{
    return SaturatedRound(pixels * y);
}

int TwipsPerPixel::WidthToPixels(Twips twips) const
{
    return SaturatedRound(twips / x);
}

int TwipsPerPixel::HeightToPixels(Twips twips) const
{
    return SaturatedRound(twips / y);
}

TwipPoint TwipsPerPixel::ToTwips(QPoint pixels) const
{
    return {WidthToTwips(pixels.x()), HeightToTwips(pixels.y())};
}

TwipSize TwipsPerPixel::ToTwips(QSize pixels) const
{
    return {WidthToTwips(pixels.width()), HeightToTwips(pixels.height())};
}

QPoint TwipsPerPixel::ToPixels(TwipPoint twips) const
{
    return {WidthToPixels(twips.x), HeightToPixels(twips.y)};
}

QSize TwipsPerPixel::ToPixels(TwipSize twips) const
{
    return {WidthToPixels(twips.width), HeightToPixels(twips.height)};
}

TwipsPerPixel TwipsPerPixelOf(const QWidget& widget)
{
    return {twipsPerInch / widget.logicalDpiX(), twipsPerInch / widget.logicalDpiY()};
}

TwipPoint PopupAnchor(const QWidget& button)
{
    const TwipsPerPixel scale = TwipsPerPixelOf(button);
    const QSize size = scale.ToPixels(scale.ToTwips(button.size()));
    return scale.ToTwips(button.mapToGlobal(QPoint(size.width(), size.height())));
}

} // namespace Orvane
