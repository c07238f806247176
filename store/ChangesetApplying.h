// SPDX-License-Identifier: MIT
#pragma once

#include "store/Changeset.h"

#include <optional>

namespace Orvane {

struct SqliteSession;

/// Makes the changes in a database, in one transaction, and answers what changed by it: more than was asked
/// for where rows went with others that they refer to. Answers nothing, and changes nothing, when a row is
/// not as the changes expect it, or another row stands in its place. A row that is to go may be gone already.
/// Raises errors of the database.
std::optional<Changeset> ApplyChangeset(SqliteSession& session, const Changeset& changes);

} // namespace Orvane
