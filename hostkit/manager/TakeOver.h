// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/schemes/SchemeComparison.h"

#include <vector>

namespace Orvane {

class ILayerStore;
class IStyleEditorClient;

/// Gives the layers the second values of these differences, in one transaction, with one redraw and as one
/// step of undo, in the way of an editor. Lines of one layer follow each other; lines without a value and of
/// layers that have gone are left out. Asks the watcher of the map after each layer; raises what the client
/// and the database raise, and nothing is changed then.
void TakeOver(ILayerStore& map, IStyleEditorClient& client, const std::vector<SchemeDifference>& differences);

} // namespace Orvane
