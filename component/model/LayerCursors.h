// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerTreeEntries.h"

#include <OrvaneShellLib/IRecordset.h>

#include <QtGlobal>

#include <memory>
#include <vector>

namespace Orvane {

class ILayerDatabase;
class IStyleEditorClient;

/// Table cursors that seek by ID, and short reads of single rows. All raise what the host and its database
/// raise.

/// A cursor over Layers that seeks by LayerID.
std::unique_ptr<IRecordset> OpenLayersByID(IStyleEditorClient& client);

/// A cursor over LayerGroups that seeks by ID.
std::unique_ptr<IRecordset> OpenGroupsByID(ILayerDatabase& database);

/// Moves to the row with that key; false if there is none.
bool SeekID(IRecordset& table, qint32 id);

/// The IDs of the group's layers, in the order in which they are loaded and written, including hidden and
/// missing layers. Empty for a group that does not exist.
std::vector<qint32> ReadMemberLayerIDs(IStyleEditorClient& client, qint32 groupID);

/// True if the layer is a member of a group.
bool IsInAGroup(IStyleEditorClient& client, qint32 layerID);

/// True when the layer is a system layer: it may not be deleted, renamed or given another code. False for a
/// layer that does not exist.
bool IsSystemLayer(IStyleEditorClient& client, qint32 layerID);

/// These layers without the system layers among them, in their order.
std::vector<qint32> WithoutSystemLayers(IStyleEditorClient& client, const std::vector<qint32>& layerIDs);

/// True if one of these layers exists.
bool AnyLayerExists(IStyleEditorClient& client, const std::vector<qint32>& layerIDs);

/// The quick modes of those of these layers that exist, in their order; Normal for a value that cannot be
/// read.
std::vector<LayerMode> ReadQuickModes(IStyleEditorClient& client, const std::vector<qint32>& layerIDs);

/// The same for all layers of the flat list, whatever a filter says; rows whose ID cannot be read are left
/// out.
std::vector<LayerMode> ReadAllQuickModes(IStyleEditorClient& client);

/// How many layers are read one after another; for more, one query for all layers is not slower.
inline constexpr qsizetype MostLayersOneByOne = 100;

/// The quick modes of these layers; of all layers if these are many.
std::vector<LayerMode> ReadQuickModesWith(IStyleEditorClient& client, const std::vector<qint32>& layerIDs);

/// Stores whether the group's node is shown expanded. Does nothing for a group that does not exist.
void StoreGroupExpanded(IStyleEditorClient& client, qint32 groupID, bool expanded);

} // namespace Orvane
