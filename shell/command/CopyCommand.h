// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

namespace Orvane {

/// Runs "orvane copy", which copies a map between files and servers. arguments: the program's own name first.
/// Returns the exit code; raises errors of the stores.
int CopyCommand(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
