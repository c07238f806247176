// SPDX-License-Identifier: MIT
#include "component/dialog/place/WindowGeometry.h"

#include "component/controls/Twips.h"
#include "component/dialog/place/ExactWidth.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

// If less than this is visible, a title bar cannot be caught with the pointer.
constexpr int VisibleMargin = 32;

int PixelsOfSide(float twips, double twipsPerPixel, int most)
{
    const double pixels = std::min(std::round(double(twips) / twipsPerPixel), double(most));
    return std::max(int(pixels), 1);
}

QSize ScreenSize(const QWidget& window)
{
    const QScreen* screen = window.screen();
    return screen ? screen->availableGeometry().size() : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

} // namespace

void WindowGeometry::Restore(const WindowSize& size)
{
    m_asWindow = size;
    if (!m_window.isWindow())
        return;
    m_window.resize(PixelsOf(size));
    // A side that the screen or the layout has changed is a new size, not the stored one.
    const TwipsPerPixel scale = TwipsPerPixelOf(m_window);
    if (std::round(double(size.width) / scale.x) == m_window.width())
        m_width.Restore(size.width, m_window.width());
    if (std::round(double(size.height) / scale.y) == m_window.height())
        m_height.Restore(size.height, m_window.height());
}

void WindowGeometry::FollowParent()
{
    const bool isAgain = m_window.isWindow() && !m_wasWindow;
    m_wasWindow = m_window.isWindow();
    if (isAgain && m_asWindow)
        Restore(*m_asWindow);
}

void WindowGeometry::Note()
{
    if (m_window.isWindow())
        m_asWindow = Current();
}

WindowSize WindowGeometry::Current() const
{
    if (!m_window.isWindow() && m_asWindow)
        return *m_asWindow;
    const TwipsPerPixel scale = TwipsPerPixelOf(m_window);
    const QSize pixels = SizeInPixels();
    const int slack = RoundedPixels(m_window);
    return {
        m_width.TwipsOf(pixels.width(), scale.x, slack), m_height.TwipsOf(pixels.height(), scale.y, slack)};
}

void WindowGeometry::KeepOnScreen()
{
    if (!m_window.isWindow())
        return;
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    const QRect now = m_window.geometry();
    const QRect placed = PlacedOnScreens(now, screens);
    if (placed != now)
        m_window.setGeometry(placed);
}

QSize WindowGeometry::PixelsOf(const WindowSize& size) const
{
    const TwipsPerPixel scale = TwipsPerPixelOf(m_window);
    const QSize most = ScreenSize(m_window);
    return {
        PixelsOfSide(size.width, scale.x, most.width()), PixelsOfSide(size.height, scale.y, most.height())};
}

QSize WindowGeometry::SizeInPixels() const
{
    const bool filled = m_window.isWindow() && (m_window.isMaximized() || m_window.isFullScreen());
    const QSize normal = m_window.normalGeometry().size();
    return filled && normal.isValid() ? normal : m_window.size();
}

QRect PlacedOnScreens(const QRect& window, const QList<QRect>& screens)
{
    const auto meets = [&](const QRect& screen) {
        const QRect shown = screen.intersected(window);
        return shown.width() >= std::min(VisibleMargin, window.width())
            && shown.height() >= std::min(VisibleMargin, window.height());
    };
    if (screens.isEmpty() || std::any_of(screens.begin(), screens.end(), meets))
        return window;
    const QRect& screen = screens.first();
    QRect placed(QPoint(), window.size().boundedTo(screen.size()));
    placed.moveCenter(screen.center());
    return placed;
}

} // namespace Orvane
