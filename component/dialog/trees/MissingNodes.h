// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"
#include "component/model/LayerTreeEntries.h"

#include <vector>

namespace Orvane {

class LayerTreeList;

/// The chosen nodes that the list shows and that are not in a new reading of it. Neither raises.
std::vector<NodeReference> MissingIn(const std::vector<GroupEntry>& groups, const LayerTreeList& list);
std::vector<NodeReference> MissingIn(const std::vector<LayerEntry>& layers, const LayerTreeList& list);

} // namespace Orvane
