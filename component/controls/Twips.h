// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QSize>
#include <QtGlobal>

class QWidget;

namespace Orvane {

/// A length of 1/1440 inch; forms and popups are placed and stored in twips.
using Twips = qint32;

struct TwipPoint {
    Twips x = 0;
    Twips y = 0;
    bool operator==(const TwipPoint&) const = default;
};

struct TwipSize {
    Twips width = 0;
    Twips height = 0;
    bool operator==(const TwipSize&) const = default;
};

/// The number of twips per pixel of one screen: 1440 / logical dots per inch, 15 at 96 dpi. It need not be a
/// whole number: 110 dpi gives 13.09.
///
///     const TwipsPerPixel scale = TwipsPerPixelOf(*this);
///     resize(scale.ToPixels(storedSize));
///
/// Both directions round to the nearest whole number, half to even, and saturate at the 32-bit range. Pixels
/// converted to twips and back stay exact on every screen below 1440 dpi; twips converted to pixels and back
/// may change.
struct TwipsPerPixel {
    double x = 15;
    double y = 15;

    Twips WidthToTwips(int pixels) const;
    Twips HeightToTwips(int pixels) const;
    int WidthToPixels(Twips twips) const;
    int HeightToPixels(Twips twips) const;

    TwipPoint ToTwips(QPoint pixels) const;
    TwipSize ToTwips(QSize pixels) const;
    QPoint ToPixels(TwipPoint twips) const;
    QSize ToPixels(TwipSize twips) const;
};

/// The scale of the screen that the widget is on.
TwipsPerPixel TwipsPerPixelOf(const QWidget& widget);

/// The bottom right corner of a button in screen twips: frmDropSlider opens its popup there, right-aligned.
TwipPoint PopupAnchor(const QWidget& button);

} // namespace Orvane
