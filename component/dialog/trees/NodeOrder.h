// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerTreeEntries.h"

#include <vector>

namespace Orvane {

/// The row for a layer with that text in a list that the database has sorted. It is not known how the
/// database compares texts, so the list itself shows whether case counts.
int SortedRow(const std::vector<LayerEntry>& layers, const QString& text);

} // namespace Orvane
