// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

namespace Orvane {

/// "orvane list MAP": writes the map's coordinate system, and each layer with its features and its extent in
/// that system; as JSON with "--json". The map file is only read. Layers whose data cannot be read are
/// reported, and the exit code is then ExitCode::Problems. Raises the errors of the map file.
int ListCommand(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
