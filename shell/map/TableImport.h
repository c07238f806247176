// SPDX-License-Identifier: MIT
#pragma once

#include "shell/map/DataImport.h"

namespace Orvane {

/// Examines tables on the server of a map, as LookInto does with files; for any thread. A table that cannot
/// be read becomes a problem. Raises Cancelled.
FoundData LookIntoTables(
    const std::shared_ptr<const ServerTables>& server, const QStringList& tables, Progress& progress);

} // namespace Orvane
