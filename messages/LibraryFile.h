// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The file of the shared library that this code was linked into, or of the program; empty if the platform
/// does not tell. The path may be relative to the folder that was current when the library was loaded.
QString LibraryFile();

} // namespace Orvane
