// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace Orvane::Benchmarks {

/// The file of a map with this many layers. It is made at its first use and removed when the program ends.
/// The same number gives the same map.
///
/// Layers 1 to n are in groups of 50 with IDs from 1; every tenth layer is a backdrop. All layers share their
/// properties except name and code, so that an apply writes every column. The larger groups are pseudo
/// groups, so that they are not in the tree.
QString BenchmarkMap(int layerCount);

/// The group that holds this many of the first layers: 50, 1,000 or all of the map.
qint32 GroupOf(int memberCount);

} // namespace Orvane::Benchmarks
