// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>
#include <QtGlobal>

#include <optional>

namespace Orvane {

/// The texts of all queries that the component issues. Hosts may compare them character by character, so they
/// must not be changed, not even a blank.
namespace LayerQueries {

/// All rows of the groups tree: one row for each layer of each group, with the Layers columns and the
/// membership's GroupID and Ordering. groupName: only the group with that name, pseudo or not; without a
/// name, all groups that are not pseudo. A quote in the name is doubled. Rows with a Code of -2 or less are
/// included.
QString Tree(const std::optional<QString>& groupName);

/// The rows of the flat list, by name.
QString LayerList();

/// The row of one layer; none if its Code hides it.
QString OneLayer(qint32 layerID);

/// The IDs of a group's layers.
QString MemberLayerIDs(qint32 groupID);

/// The membership rows of a group.
QString MembershipsOfGroup(qint32 groupID);

/// The membership rows of a layer.
QString MembershipsOfLayer(qint32 layerID);

/// The IDs of the groups that a layer is in, each once.
QString GroupsOfLayer(qint32 layerID);

} // namespace LayerQueries

/// The quick mode (1 normal, 2 backdrop, 4 hidden) for a value of the OverrideMode column: 1 for Null and for
/// any number that is not a mode. Raises 13 (type mismatch) for a text that holds no number.
qint16 QuickModeFromOverrideMode(const Value& overrideMode);

/// The value to store in OverrideMode for a quick mode. Nothing for 0 ("various") and for any other value
/// than 1, 2 or 4: the column then stays as it is.
std::optional<qint16> OverrideModeFromQuickMode(qint16 quickMode);

/// The key of a layer or group in a collection that is keyed by text, e.g. "IDequals_17".
QString CollectionKey(qint32 id);

} // namespace Orvane
