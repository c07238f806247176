// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command/MapCheck.h"

#include <QStringList>

#include <vector>

namespace Orvane {

class SqliteLayerDatabase;

/// The values of layers, groups, members and schemes that are of the wrong kind or outside their range, and a
/// last problem that counts those not listed. Raises database errors.
std::vector<MapProblem> FindValueProblems(SqliteLayerDatabase& database);

/// Sets the values that can only be wrong to the defaults of their columns, and returns a sentence for each,
/// translated; the last one counts those not listed. Raises database errors. Call it in a transaction.
QStringList RepairValues(SqliteLayerDatabase& database);

} // namespace Orvane
