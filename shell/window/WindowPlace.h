// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QMainWindow;

namespace Orvane {

/// The place of the program's window and of its tool bars, kept from one run to the next.
namespace WindowPlace {

/// Puts the window at its last place; the first time so that all its tools are visible, and the layer control
/// has room at its right if the screen is large enough.
void Restore(QMainWindow& window);

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
