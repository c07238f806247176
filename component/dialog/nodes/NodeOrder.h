// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerTreeEntries.h"

#include <optional>
#include <vector>

namespace Orvane {

/// The row for a layer with that text in a list that the database has sorted. It is not known how the
/// database compares texts, so the list itself shows whether case counts.
int SortedRow(const std::vector<LayerEntry>& layers, const QString& text);

/// The row to which the layer at row from goes when its name is this one. Nothing if the texts of the others
/// are not in the order of names without case: then only the database knows.
std::optional<int> PlaceByName(const std::vector<LayerEntry>& layers, int from, const QString& name);

} // namespace Orvane
