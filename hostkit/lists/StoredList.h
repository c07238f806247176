// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/lists/ListedLayer.h>

#include <optional>
#include <vector>

namespace Orvane {

class ILayerStore;

/// The layers and groups of a layer store as plain lists. LayerList does the same for a program with a
/// StandardClient.
///
///     LayerStores::Make(path, IfExists::Refuse, [&](std::unique_ptr<ILayerStore> store) {
///         StoredList::Update(*store, layers, groups);
///     });
///
/// All functions raise errors of the store.
namespace StoredList {

/// All layers by their IDs. A value that is Null or unusable gives the field's default.
std::vector<ListedLayer> Layers(ILayerStore& store);

/// One layer; nothing if it does not exist.
std::optional<ListedLayer> Layer(ILayerStore& store, qint32 layerID);

/// All groups in the order of the tree, also those without layers.
std::vector<ListedGroup> Groups(ILayerStore& store);

/// Makes the store's layers the same as these, in one transaction: adds those with new IDs, stores the
/// columns that differ, and deletes the others with their places in groups and their values in schemes. Where
/// a field is as Layers returns it, its column stays untouched. Returns true if there was a difference.
/// Raises HostError::ListInvalid for an ID that is 0 or occurs twice; then nothing is changed.
bool Update(ILayerStore& store, const std::vector<ListedLayer>& layers);

/// Does the same for layers and groups. Of a group that exists, Expanded stays as the user left it. Raises
/// HostError::UnknownLayer also if a group names a layer that is not in the list.
bool Update(
    ILayerStore& store, const std::vector<ListedLayer>& layers, const std::vector<ListedGroup>& groups);

} // namespace StoredList

} // namespace Orvane
