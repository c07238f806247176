// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/CommandReader.h"

namespace Orvane {

/// "orvane share PLACE": lists who may read and edit a map on a server, and changes it. Returns the exit
/// code.
int ShareCommand(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane
