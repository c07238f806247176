// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerTreeEntries.h"

#include <QString>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace Orvane {

class IStyleEditorClient;
class IStyleFilter;

/// Reading what the two trees list. All functions raise what the host and its database raise, unchanged, and
/// 13 (type mismatch) for a column whose value has the wrong type. Layers with a Code of -2 or less are never
/// listed.

/// Translated texts for nodes that have no text of their own.
struct TreeTexts {
    QString groupNotFound; ///< for a group whose row does not exist
    QString noName; ///< for a group whose name is empty
};

/// The groups that have layers to list, in their order, each once, with its layers in their order. A layer of
/// several groups is listed under each of them. groupFilter: only groups with that name, pseudo or not;
/// without a filter, all groups that are not pseudo.
std::vector<GroupEntry>
LoadLayerTree(IStyleEditorClient& client, const std::optional<QString>& groupFilter, const TreeTexts& texts);

/// All layers, by name. filter: called for each layer; nullptr lists all.
std::vector<LayerEntry> ReloadLayerList(IStyleEditorClient& client, const IStyleFilter* filter);

/// One layer; nothing if it does not exist or is never listed.
std::optional<LayerEntry> ReadOneLayer(IStyleEditorClient& client, qint32 layerID);

} // namespace Orvane
