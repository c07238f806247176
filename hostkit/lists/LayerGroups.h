// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <map>
#include <vector>

namespace Orvane {

class ILayerStore;

/// Changes the groups of a layer store. A layer may be in any number of groups.
///
///     client.RecordStep([&] {
///         LayerGroups::Create(*store, "Water", {riverID, lakeID});
///         return QString("New Group");
///     });
///     client.RefreshEditors();
///
/// Each function stores its change in one transaction, or nothing. Open editors show it after
/// StandardClient::RefreshEditors. Outside StandardClient::RecordStep the user cannot undo it. All raise
/// errors of the store, HostError::UnknownGroup for a group that does not exist, HostError::UnknownLayer for
/// a layer that does not exist, and HostError::ListInvalid for an ID that occurs twice.
namespace LayerGroups {

/// Makes a group with these layers in this order, the last one of the tree, and returns its ID. An empty
/// group is not in the tree.
qint32 Create(ILayerStore& store, const QString& name, const std::vector<qint32>& layerIDs = {});

/// Stores the name. Two groups may have the same.
void Rename(ILayerStore& store, qint32 groupID, const QString& name);

/// Removes the group; its layers stay.
void Delete(ILayerStore& store, qint32 groupID);
/// The same for many.
void Delete(ILayerStore& store, const std::vector<qint32>& groupIDs);

/// Adds layers at the end of the group, in this order. Those that are in it already stay where they are.
void AddLayers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs);

/// Takes layers out of the group. Those that are not in it are skipped, also if they do not exist.
void RemoveLayers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs);

/// The group's layers, in the order of the tree.
std::vector<qint32> Layers(ILayerStore& store, qint32 groupID);

/// Gives the group exactly these layers in this order.
void SetLayers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs);
/// The same for many groups, by their IDs.
void SetLayers(ILayerStore& store, const std::map<qint32, std::vector<qint32>>& groups);

/// The IDs of all groups, pseudo ones too, in the order of the tree.
std::vector<qint32> Order(ILayerStore& store);

/// Puts these groups first, in this order; the others follow in the order that they have.
void SetOrder(ILayerStore& store, const std::vector<qint32>& groupIDs);

} // namespace LayerGroups

} // namespace Orvane
