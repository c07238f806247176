// SPDX-License-Identifier: MIT
#include "shell/window/WindowPlace.h"

#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QToolBar>

namespace Orvane::WindowPlace {

namespace {

constexpr auto GeometryKey = "MainWindow/Geometry";
constexpr auto StateKey = "MainWindow/State";
constexpr int BarGap = 4; // pixels between tool bars, at most
constexpr int SmallScreen = 1280; // pixels; a narrower one has no room to spare

// The width at which no tool is hidden in the overflow menu of a tool bar.
QSize SizeOfTools(const QMainWindow& window)
{
    QSize tools(0, 0);
    for (const QToolBar* bar : window.findChildren<QToolBar*>())
        tools += QSize(bar->sizeHint().width() + BarGap, 0);
    return tools;
}

void PlaceFirstTime(QMainWindow& window, Beside beside)
{
    const QRect screen = window.screen()->availableGeometry();
    const int width = beside == Beside::LayerControl ? 62 : 86; // per cent
    const QSize size(screen.width() * width / 100, screen.height() * 88 / 100);
    window.resize(
        size.expandedTo(window.minimumSizeHint()).expandedTo(SizeOfTools(window)).boundedTo(screen.size()));
    window.move(screen.left() + screen.width() / 100, screen.top() + screen.height() * 4 / 100);
}

} // namespace

void Restore(QMainWindow& window, Beside beside)
{
    const QSettings settings;
    if (!window.restoreGeometry(settings.value(QLatin1String(GeometryKey)).toByteArray()))
        PlaceFirstTime(window, beside);
    window.restoreState(settings.value(QLatin1String(StateKey)).toByteArray());
}

void Show(QMainWindow& window)
{
    const bool isFirst = !QSettings().contains(QLatin1String(GeometryKey));
    if (isFirst && window.screen()->availableGeometry().width() < SmallScreen)
        window.showMaximized();
    else
        window.show();
}

Place Of(const QMainWindow& window)
{
    return {window.saveGeometry(), window.saveState()};
}

void Store(const Place& place)
{
    QSettings settings;
    settings.setValue(QLatin1String(GeometryKey), place.geometry);
    settings.setValue(QLatin1String(StateKey), place.state);
}

} // namespace Orvane::WindowPlace
