// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/window/TwipsLength.h"
#include "component/dialog/window/ViewState.h"

#include <QRect>
#include <QSize>

class QWidget;

namespace Orvane {

/// The size of a window in twips, and its place on the screens. The frame that a window manager adds is not
/// counted: it is not known before the window is shown, and counting it would let the window grow with each
/// opening.
class WindowGeometry
{
public:
    /// window: not owned; outlives this object.
    explicit WindowGeometry(QWidget& window) : m_window(window) { }

    /// Gives the window that size where it stands, no larger than its screen and no smaller than its layout
    /// allows.
    void Restore(const WindowSize& size);

    /// The window's size; exactly what was restored while its pixels are the same.
    WindowSize Current() const;

    /// Moves the window to the middle of the first screen when it stands outside all of them.
    void KeepOnScreen();

private:
    QSize PixelsOf(const WindowSize& size) const;
    QSize SizeInPixels() const;

    QWidget& m_window;
    TwipsLength m_width;
    TwipsLength m_height;
};

/// The rectangle itself while it meets one of the screens, else moved into the middle of the first one, its
/// size no larger than that screen. screens: available areas; with none, the rectangle stays.
QRect PlacedOnScreens(const QRect& window, const QList<QRect>& screens);

} // namespace Orvane
