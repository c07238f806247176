// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerTreeEntries.h"

#include <vector>

namespace Orvane {

/// The row at which a layer of that text belongs in a list that the database has sorted. How the database
/// compares texts is not known: the list itself shows whether case counts.
int SortedRow(const std::vector<LayerEntry>& layers, const QString& text);

} // namespace Orvane
