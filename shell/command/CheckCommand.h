// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

namespace Orvane {

/// "orvane check MAP [--repair]": lists what is wrong with a map file, one problem a line, and mends it when
/// asked to. Answers ExitCode::Problems when anything is, or stays, wrong. Raises what opening the map
/// raises.
int CheckCommand(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
