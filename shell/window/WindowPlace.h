// SPDX-License-Identifier: MIT
#pragma once

class QMainWindow;

namespace Orvane {

/// The place of the program's window and of its tool bars, kept from one run to the next.
namespace WindowPlace {

/// Puts the window at its last place; the first time so that all its tools are visible, and the layer control
/// has room at its right if the screen is large enough.
void Restore(QMainWindow& window);

/// Stores the window's place.
void Store(const QMainWindow& window);

} // namespace WindowPlace

} // namespace Orvane
