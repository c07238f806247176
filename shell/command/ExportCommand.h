// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

namespace Orvane {

/// "orvane MAP --export FILE [--scheme NAME] [--scale N] ...": draws the map to a PDF, SVG or PNG file. The
/// map file is only read; a scheme is loaded into a copy. Layers whose data cannot be read are told and left
/// out; the answer is then ExitCode::Problems. Raises what opening the map, the scheme and writing the file
/// raise.
int ExportCommand(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
