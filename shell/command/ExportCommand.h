// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

namespace Orvane {

/// "orvane MAP --export FILE [--scheme NAME] [--scale N] ...": draws the map to a PDF, SVG or PNG file. The
/// map file is only read; a scheme is loaded into a copy. Layers whose data cannot be read are reported and
/// left out; the exit code is then ExitCode::Problems. Raises the errors of opening the map, of the scheme
/// and of writing the file.
int ExportCommand(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
