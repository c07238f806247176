// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"

#include <QString>

#include <vector>

namespace Orvane {

class IStyleEditorClient;

/// Reads information about a node from the layer database, and writes what the trees store there. All
/// functions raise what the host and its database raise, unchanged.

/// True when the node's layer or group has a row.
bool NodeExists(IStyleEditorClient& client, const NodeReference& node);

/// True if the node may be renamed: the host lets the map be changed, its layer or group has a row, and it is
/// not a system layer.
bool CanEditNode(IStyleEditorClient& client, const NodeReference& node);

/// The stored name, without the additions of the listed text; empty if there is no row or no name.
QString ReadNodeName(IStyleEditorClient& client, const NodeReference& node);

/// Stores for all these groups in one transaction whether they are shown expanded; a group without a row is
/// skipped.
void StoreGroupsExpanded(IStyleEditorClient& client, const std::vector<qint32>& groupIDs, bool expanded);

} // namespace Orvane
