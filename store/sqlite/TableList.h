// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreTable.h"

#include <vector>

namespace Orvane {

struct SqliteSession;

/// As ILayerStore::Tables, from the catalogue of an SQLite file.
std::vector<StoreTable> TablesOf(SqliteSession& session);

} // namespace Orvane
