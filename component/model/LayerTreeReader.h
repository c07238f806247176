// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/ColumnError.h"
#include "component/model/LayerTreeEntries.h"

#include <QSet>
#include <QString>
#include <QtGlobal>

#include <optional>
#include <utility>
#include <vector>

namespace Orvane {

class IStyleEditorClient;
class IStyleFilter;

/// Reading what the two trees list. All functions raise what the host and its database raise, unchanged. A
/// value of the wrong type or size stops no list: a row whose ID cannot be read is left out, another row is
/// listed and marked as faulty, in the quick mode Normal if its own cannot be read. Layers with a Code of -2
/// or less are never listed.

/// Translated texts for nodes that have no text of their own.
struct TreeTexts {
    QString groupNotFound; ///< for a group whose row does not exist
    QString noName; ///< for a group whose name is empty
};

/// What LoadLayerTree read.
struct TreeReading {
    std::vector<GroupEntry> groups;
    std::optional<ColumnError> fault; ///< the first value that could not be read
};

/// What ReloadLayerList read.
struct ListReading {
    std::vector<LayerEntry> layers;
    std::optional<ColumnError> fault; ///< the first value that could not be read
};

/// The groups that have layers to list, in their order, each once, with its layers in their order. A layer of
/// several groups is listed under each of them. groupFilter: only groups with that name, pseudo or not;
/// without a filter, all groups that are not pseudo.
TreeReading
LoadLayerTree(IStyleEditorClient& client, const std::optional<QString>& groupFilter, const TreeTexts& texts);

/// All layers, by name. filter: called for each layer; nullptr lists all.
ListReading ReloadLayerList(IStyleEditorClient& client, const IStyleFilter* filter);

/// What RereadLayers read of one layer.
struct ListedLayer {
    LayerEntry entry;
    QString name; ///< by which the flat list is sorted
    bool isInList = false; ///< false if the filter leaves it out of the flat list
};

/// What RereadLayers read.
struct LayersReading {
    std::vector<std::pair<qint32, std::optional<ListedLayer>>> layers; ///< nothing: gone, or never listed
    std::optional<ColumnError> fault; ///< the first value that could not be read
};

/// Single layers, as both lists show them. filter: as for ReloadLayerList.
LayersReading
RereadLayers(IStyleEditorClient& client, const QSet<qint32>& layerIDs, const IStyleFilter* filter);

/// One layer; nothing if it does not exist or is never listed.
std::optional<LayerEntry> ReadOneLayer(IStyleEditorClient& client, qint32 layerID);

} // namespace Orvane
