// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QMainWindow;

namespace Orvane {

/// The place of the program's window and of its tool bars, kept from one run to the next.
namespace WindowPlace {

/// What the window's first place leaves room for, if the screen is large enough.
enum class Beside {
    Nothing,
    LayerControl, ///< a window at the right
};

/// Puts the window at its last place; the first time so that all its tools are visible.
void Restore(QMainWindow& window, Beside beside);

/// Shows the window; the first time maximised if the screen is small.
void Show(QMainWindow& window);

struct Place {
    QByteArray geometry;
    QByteArray state; // of tool bars and docks
};

/// The window's place as it is now.
Place Of(const QMainWindow& window);

/// Stores a place.
void Store(const Place& place);

} // namespace WindowPlace

} // namespace Orvane
