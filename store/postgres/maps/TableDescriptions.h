// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreTable.h"

#include <QByteArray>

#include <vector>

namespace Orvane {

class KnownTables;
class ServerRows;

/// The tables of a map as a host would describe them: what is known about them anyway, and what only copying
/// needs, such as defaults, references and indexes. References and indexes of several columns are left out,
/// and so are defaults that are no constants.
namespace TableDescriptions {

/// The query about the first schema of the search path.
QByteArray Query();
/// Reads the answer. Raises what KnownTables raises.
std::vector<StoreTable> Read(KnownTables& tables, const ServerRows& answer);

} // namespace TableDescriptions

} // namespace Orvane
