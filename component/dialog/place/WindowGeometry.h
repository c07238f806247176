// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/place/TwipsLength.h"
#include "component/dialog/place/ViewState.h"

#include <QRect>
#include <QSize>

#include <optional>

class QWidget;

namespace Orvane {

/// The size of a window in twips, and its position on the screens. A window that a host has put into another
/// widget follows that widget; the size is then the one that it last had as a window. The frame that a window
/// manager adds is not included: it is not known before the window is shown, and with it the window would
/// grow each time it is opened.
class WindowGeometry
{
public:
    /// window: not owned; outlives this object.
    explicit WindowGeometry(QWidget& window) : m_window(window) { }

    /// Gives the window that size at its present position, no larger than its screen and no smaller than its
    /// layout allows.
    void Restore(const WindowSize& size);

    /// Gives it back the size that it last had as a window if it has become one again. Call when its parent
    /// has changed.
    void FollowParent();

    /// Notes the size for the time when it is no window.
    void Note();

    /// The window's size; exactly the restored size while its pixels are the same.
    WindowSize Current() const;

    /// Moves the window to the middle of the first screen if it is outside all of them.
    void KeepOnScreen();

private:
    QSize PixelsOf(const WindowSize& size) const;
    QSize SizeInPixels() const;

    QWidget& m_window;
    TwipsLength m_width;
    TwipsLength m_height;
    std::optional<WindowSize> m_asWindow;
    bool m_wasWindow = true;
};

/// The rectangle itself if it meets one of the screens; else moved to the middle of the first one and made no
/// larger than that screen. screens: available areas; if there are none, the rectangle stays.
QRect PlacedOnScreens(const QRect& window, const QList<QRect>& screens);

} // namespace Orvane
