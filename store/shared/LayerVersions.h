// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/LayerColumns.h>

#include <QtGlobal>

#include <algorithm>

namespace Orvane {

/// The newest version of the tables of a layer database, the same for all kinds of stores. Version 1 has the
/// three tables; version 2 adds the indexes that make lists and groups fast. The columns of layers and their
/// versions are in LayerColumns.
inline constexpr qint32 NewestLayerVersion = std::max(2, NewestLayerColumn());

} // namespace Orvane
