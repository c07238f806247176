// SPDX-License-Identifier: MIT
#pragma once

#include "store/Changeset.h"

#include <optional>

namespace Orvane {

struct SqliteSession;

/// Applies the changes to a database in one transaction and returns what actually changed: more than
/// requested if rows were deleted together with others that they refer to. Returns nothing, and changes
/// nothing, if a row is not as the changes expect it or another row is in its place. A row to be deleted may
/// already be gone. Raises database errors.
std::optional<Changeset> ApplyChangeset(SqliteSession& session, const Changeset& changes);

} // namespace Orvane
