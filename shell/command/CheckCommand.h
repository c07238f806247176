// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

namespace Orvane {

/// "orvane check MAP [--repair] [--time-limit SECONDS]": lists the problems of a map file, one per line, and
/// repairs them on request. Returns ExitCode::Problems when there are problems, or some remain. Raises the
/// errors of opening the map.
int CheckCommand(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
