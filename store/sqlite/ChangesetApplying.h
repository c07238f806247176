// SPDX-License-Identifier: MIT
#pragma once

#include "store/Changeset.h"

#include <optional>

namespace Orvane {

struct SqliteSession;

/// As ILayerStore::Apply. Raises database errors.
std::optional<Changeset> ApplyChangeset(SqliteSession& session, const Changeset& changes);

} // namespace Orvane
