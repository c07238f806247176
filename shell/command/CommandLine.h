// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

#include <QString>

#include <variant>

namespace Orvane {

/// What the window is to show, according to the command line.
struct WindowRequest {
    QString map; ///< file to open; empty for the last one
    QString traceFile; ///< empty for no trace
    bool layerControl = false;
};

/// True when the arguments ask for something that needs no window, and so no display: a command, an export,
/// the help. arguments: the program's own name first.
bool NeedsNoWindow(const QStringList& arguments);

/// Runs a command that needs no window and returns its exit code; else returns what the window is to show.
std::variant<int, WindowRequest> RunCommandLine(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
