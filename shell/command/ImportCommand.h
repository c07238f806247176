// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

namespace Orvane {

/// "orvane import DATA... --to MAP": adds data files, and those of folders, to a map file, which is made when
/// there is none. Files that cannot be read are told and left out; the answer is then ExitCode::Problems.
/// Raises what the map file raises; it is then as before.
int ImportCommand(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
