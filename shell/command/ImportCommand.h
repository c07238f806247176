// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

namespace Orvane {

/// "orvane import DATA... --to MAP": adds data files, and those of folders, to a map file, which is made when
/// there is none. Files that cannot be read are reported and left out; the exit code is then
/// ExitCode::Problems. Raises the errors of the map file, which is then as before.
int ImportCommand(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
