// SPDX-License-Identifier: MIT
#pragma once

#include "hosttests/HostContents.h"

/// What layer databases hold in the checks.
namespace Orvane::HostTests {

/// No rows at all.
HostContents NoContents();

/// Layers and groups whose order by ID, by name with and without case, and by ordering all differ; hidden
/// layers, a pseudo group, an empty group, quotes in names.
HostContents Town();

namespace TownLayer {
inline constexpr qint32 Roads = 1;
inline constexpr qint32 Zoning = 2;
inline constexpr qint32 Rivers = 3;
inline constexpr qint32 Airports = 4;
inline constexpr qint32 Hidden = 5; ///< Code -2
inline constexpr qint32 DeeplyHidden = 6; ///< Code -3
inline constexpr qint32 Drafts = 7; ///< Code -1, pseudo, a system layer
inline constexpr qint32 Quoted = 9; ///< quotes, other scripts, placeholders
inline constexpr qint32 None = 4711; ///< not there
} // namespace TownLayer

namespace TownGroup {
inline constexpr qint32 Water = 10;
inline constexpr qint32 Traffic = 20;
inline constexpr qint32 Pseudo = 30;
inline constexpr qint32 Empty = 40;
inline constexpr qint32 Quoted = 50; ///< quotes; expanded
inline constexpr qint32 None = 4711; ///< not there
} // namespace TownGroup

/// Two groups with the same ordering, whose layers take turns.
HostContents TakingTurns();

/// Layer 1 has values; layer 2 has NULL in every column but its ID; group 1 has both and no name.
HostContents WithNulls();

/// Values at the limits of their columns, in layers 1 and 2.
HostContents AtTheLimits();

} // namespace Orvane::HostTests
