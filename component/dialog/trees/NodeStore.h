// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeKey.h"

#include <QString>

#include <vector>

namespace Orvane {

class IStyleEditorClient;

/// Questions about a node to the layer database, and what the trees store there. All raise what the host and
/// its database raise, unchanged.

/// True when the node's layer or group has a row.
bool NodeExists(IStyleEditorClient& client, const NodeReference& node);

/// True when the node may be renamed: no system layer, and no group or layer without a row.
bool CanEditNode(IStyleEditorClient& client, const NodeReference& node);

/// The name as it is stored, without what the listed text adds; empty when there is no row or no name.
QString ReadNodeName(IStyleEditorClient& client, const NodeReference& node);

/// Stores for all these groups in one transaction whether they are shown expanded; a group without a row is
/// left out.
void StoreGroupsExpanded(IStyleEditorClient& client, const std::vector<qint32>& groupIDs, bool expanded);

} // namespace Orvane
