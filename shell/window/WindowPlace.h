// SPDX-License-Identifier: MIT
#pragma once

class QMainWindow;

namespace Orvane {

/// Where the program's window stands, with its tool bars, kept from one run to the next.
namespace WindowPlace {

/// Puts the window where it stood last; the first time so that its tools are seen, and the layer control has
/// room at its right where the screen has it.
void Restore(QMainWindow& window);

/// Notes where the window stands.
void Store(const QMainWindow& window);

} // namespace WindowPlace

} // namespace Orvane
