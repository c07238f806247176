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

/// Gathering what the two trees list. All raise what the host and its database raise, unchanged, and 13 (type
/// mismatch) for a column whose value is not of its type. Layers with a Code of -2 or less are never listed.

/// Texts of nodes that have none of their own, translated.
struct TreeTexts {
    QString groupNotFound; ///< for a group whose row does not exist
    QString noName; ///< for a group whose name is empty
};

/// The groups that have layers to list, in their order, each once, and under each its layers in theirs. A
/// layer of several groups stands under each. groupFilter: only groups of that name, pseudo or not; without
/// one all that are not pseudo.
std::vector<GroupEntry>
LoadLayerTree(IStyleEditorClient& client, const std::optional<QString>& groupFilter, const TreeTexts& texts);

/// All layers, by name. filter: asked about each; nullptr lists all.
std::vector<LayerEntry> ReloadLayerList(IStyleEditorClient& client, const IStyleFilter* filter);

/// The one layer; nothing when it does not exist or is never listed.
std::optional<LayerEntry> ReadOneLayer(IStyleEditorClient& client, qint32 layerID);

} // namespace Orvane
